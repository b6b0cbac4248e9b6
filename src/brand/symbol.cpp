#include "brand/symbol.h"

#include "brand/cssClass.h"
#include "layout/accessible.h"

#include <algorithm>
#include <array>
#include <string>

namespace quorvel {
namespace {

/// The symbols whose arrow means a way through lines of text, and not a place on the screen.
constexpr std::array<std::string_view, 3> directional{"arrow.up.forward.app", "chevron.left",
                                                      "chevron.right"};

/// The weight of the first case of a look whose class the widget has.
template <class Look>
std::optional<int> weightBy(const Gtk::Widget& widget) {
  for (const auto look : allCases<Look>())
    if (widget.has_css_class(std::string(rawValue(look))))
      return row(look).weight;
  return std::nullopt;
}

/// As for text: without a weight of its own a symbol has that of its style.
int weightOf(const Gtk::Widget& widget) {
  const auto own = weightBy<FontWeight>(widget);
  return own ? *own : weightBy<TextStyle>(widget).value_or(row(FontWeight::regular).weight);
}

/// Each weight is a drawing of its own; the regular one has the symbol's plain name.
std::string weightEnding(int weight) {
  return weight == row(FontWeight::regular).weight ? "" : "." + std::to_string(weight);
}

} // namespace

Gtk::Image* symbol(std::string_view name, const TextLook& look) {
  auto* image = Gtk::make_managed<Gtk::Image>();
  image->add_css_class("symbol");
  applyLook(*image, look);
  setSymbol(*image, name);
  return decorative(image);
}

void setSymbol(Gtk::Image& image, std::string_view name) {
  setCssClass(image, "directional", std::ranges::find(directional, name) != directional.end());
  image.set_from_icon_name(std::string(name) + weightEnding(weightOf(image)) + "-symbolic");
}

} // namespace quorvel
