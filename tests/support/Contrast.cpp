#include "support/Contrast.h"

#include "support/TestWindow.h"

#include <cmath>
#include <map>
#include <optional>

namespace quorvel::tests {
namespace {

/// Below this, not even a caption of the palette is.
constexpr double least = 2.6;

double luminance(const Color& color) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.red) + 0.7152 * linear(color.green) + 0.0722 * linear(color.blue);
}

/// The colour that most of a part of the picture has; nothing where the part is out of sight.
std::optional<Color> groundOf(const Cairo::RefPtr<Cairo::ImageSurface>& picture, const Gdk::Rectangle& part) {
  const int right = std::min(part.get_x() + part.get_width(), picture->get_width()),
            bottom = std::min(part.get_y() + part.get_height(), picture->get_height());
  std::map<std::array<unsigned char, 3>, int> counts;
  for (int y = std::max(part.get_y(), 0); y < bottom; ++y)
    for (int x = std::max(part.get_x(), 0); x < right; ++x) {
      const auto* bgra = picture->get_data() + y * picture->get_stride() + x * 4;
      ++counts[{bgra[2], bgra[1], bgra[0]}];
    }
  const auto most = std::ranges::max_element(counts, {}, [](const auto& each) { return each.second; });
  if (most == counts.end())
    return std::nullopt;
  const auto& [rgb, count] = *most;
  return Color{rgb[0] / 255.0, rgb[1] / 255.0, rgb[2] / 255.0};
}

/// Everything that is written or drawn in the current colour.
std::string inscription(Gtk::Widget& widget) {
  if (auto* label = dynamic_cast<Gtk::Label*>(&widget))
    return label->get_text();
  auto* image = dynamic_cast<Gtk::Image*>(&widget);
  return image ? image->get_icon_name().raw() : "";
}

} // namespace

Color over(const Color& upper, const Color& lower) {
  const auto mixed = [&](double a, double b) { return a * upper.alpha + b * (1 - upper.alpha); };
  return {mixed(upper.red, lower.red), mixed(upper.green, lower.green), mixed(upper.blue, lower.blue)};
}

double contrast(const Color& mark, const Color& ground) {
  const double upper = luminance(over(mark, ground)), lower = luminance(ground);
  return (std::max(upper, lower) + 0.05) / (std::min(upper, lower) + 0.05);
}

std::vector<std::string> illegibleParts(Gtk::Widget& root) {
  std::vector<std::string> found;
  const auto picture = drawingOf(root);
  for (auto* widget : all<Gtk::Widget>(root)) {
    const auto written = inscription(*widget);
    // A menu that hangs from a button is a picture of its own.
    if (written.empty() || !widget->get_mapped() || !widget->is_sensitive() ||
        widget->get_native() != root.get_native())
      continue;
    const auto ink = inkOf(*widget);
    const auto ground = groundOf(picture, boundsIn(root, *widget));
    if (ground && ink.alpha > 0 && contrast(ink, *ground) < least)
      found.push_back(written + ": " + std::to_string(contrast(ink, *ground)));
  }
  return found;
}

} // namespace quorvel::tests
