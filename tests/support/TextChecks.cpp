#include "support/TextChecks.h"

#include "support/TestWindow.h"

namespace quorvel::tests {
namespace {

bool isInside(const Gdk::Rectangle& inner, const Gtk::Widget& outer) {
  return inner.get_x() >= 0 && inner.get_y() >= 0 && inner.get_x() + inner.get_width() <= outer.get_width() &&
         inner.get_y() + inner.get_height() <= outer.get_height();
}

bool isCut(Gtk::Widget& screen, Gtk::Label& label) {
  int needed, ignored;
  const int width = label.get_width() + label.get_margin_start() + label.get_margin_end();
  label.measure(Gtk::Orientation::VERTICAL, width, needed, ignored, ignored, ignored);
  needed -= label.get_margin_top() + label.get_margin_bottom();
  const bool isShortened = label.get_layout()->is_ellipsized() && !label.get_single_line_mode();
  if (isShortened || label.get_height() < needed)
    return true;
  for (auto* outer = label.get_parent(); outer != screen.get_parent() && !dynamic_cast<Gtk::Viewport*>(outer);
       outer = outer->get_parent())
    if (!isInside(boundsIn(*outer, label), *outer))
      return true;
  return false;
}

} // namespace

std::vector<std::string> cutTexts(Gtk::Widget& screen) {
  std::vector<std::string> result;
  for (auto* label : all<Gtk::Label>(screen))
    if (label->get_mapped() && isCut(screen, *label))
      result.push_back(label->get_text());
  return result;
}

std::vector<std::string> overlappingTexts(Gtk::Widget& screen) {
  auto labels = all<Gtk::Label>(screen);
  std::erase_if(labels, [](auto* label) { return !label->get_mapped(); });
  std::vector<std::string> result;
  for (std::size_t i = 0; i < labels.size(); ++i)
    for (std::size_t j = 0; j < i; ++j)
      if (boundsIn(screen, *labels[i]).intersects(boundsIn(screen, *labels[j])))
        result.push_back(labels[i]->get_text() + " / " + labels[j]->get_text());
  return result;
}

} // namespace quorvel::tests
