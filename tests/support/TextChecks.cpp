#include "support/TextChecks.h"

#include "layout/Container.h"
#include "support/TestWindow.h"

#include <algorithm>
#include <iterator>

namespace quorvel::tests {
namespace {

bool isInside(const Gdk::Rectangle& inner, const Gtk::Widget& outer) {
  return inner.get_x() >= 0 && inner.get_y() >= 0 && inner.get_x() + inner.get_width() <= outer.get_width() &&
         inner.get_y() + inner.get_height() <= outer.get_height();
}

bool isCut(Gtk::Widget& screen, Gtk::Label& label) {
  int needed, ignored;
  label.get_layout()->get_pixel_size(ignored, needed);
  const bool isShortened = label.get_layout()->is_ellipsized() && !label.get_single_line_mode();
  if (isShortened || label.get_height() < needed)
    return true;
  for (auto* outer = label.get_parent(); outer != screen.get_parent() && !dynamic_cast<Gtk::Viewport*>(outer);
       outer = outer->get_parent())
    if (!isInside(boundsIn(*outer, label), *outer))
      return true;
  return false;
}

/// What can be seen of a text: a scroll area shows only a part of what is in it.
Gdk::Rectangle visibleBounds(Gtk::Widget& screen, const Gtk::Widget& text) {
  auto bounds = boundsIn(screen, text);
  for (auto* outer = text.get_parent(); outer != screen.get_parent(); outer = outer->get_parent())
    if (dynamic_cast<const Gtk::Viewport*>(outer))
      bounds.intersect(boundsIn(screen, *outer));
  return bounds;
}

/// What one would call a part of the screen: by its texts, or its kind where it has none.
std::string nameOf(Gtk::Widget& part) {
  std::string name = G_OBJECT_TYPE_NAME(part.gobj());
  for (const auto& text : texts(part))
    name += " " + text;
  return name;
}

/// The children of a stack, a grid or a frame; nothing where a widget of the toolkit arranges its own.
std::vector<Gtk::Widget*> partsOf(Gtk::Widget& whole) {
  std::vector<Gtk::Widget*> parts;
  if (dynamic_cast<Gtk::Box*>(&whole) || dynamic_cast<Container*>(&whole))
    for (auto* child = whole.get_first_child(); child; child = child->get_next_sibling())
      if (child->get_mapped() && child->get_child_visible())
        parts.push_back(child);
  return parts;
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
      if (visibleBounds(screen, *labels[i]).intersects(visibleBounds(screen, *labels[j])))
        result.push_back(labels[i]->get_text() + " / " + labels[j]->get_text());
  return result;
}

std::vector<std::string> overlappingParts(Gtk::Widget& screen) {
  std::vector<std::string> result;
  for (auto* whole : all<Gtk::Widget>(screen)) {
    const auto parts = partsOf(*whole);
    for (std::size_t i = 0; i < parts.size(); ++i) {
      if (!isInside(boundsIn(*whole, *parts[i]), *whole))
        result.push_back(nameOf(*parts[i]) + " out of " + nameOf(*whole));
      for (std::size_t j = 0; j < i; ++j)
        if (boundsIn(screen, *parts[i]).intersects(boundsIn(screen, *parts[j])))
          result.push_back(nameOf(*parts[i]) + " / " + nameOf(*parts[j]));
    }
  }
  return result;
}

std::vector<std::string> textFaults(Gtk::Widget& screen) {
  auto faults = cutTexts(screen);
  std::ranges::copy(overlappingTexts(screen), std::back_inserter(faults));
  std::ranges::copy(overlappingParts(screen), std::back_inserter(faults));
  return faults;
}

} // namespace quorvel::tests
