#include "console/trailingTexts.h"

#include "layout/stacks.h"

namespace quorvel {

Gtk::Widget* withTrailingTexts(Gtk::Widget* content, int spacing, std::initializer_list<Gtk::Label*> texts) {
  auto* column = vstack(spacing, {}, HorizontalAlignment::trailing);
  for (auto* text : texts) {
    text->set_xalign(1);
    text->set_justify(Gtk::Justification::RIGHT);
    column->add({text});
  }
  return stretched(hstack(16, {content, hspacer(), column}, VerticalAlignment::top));
}

} // namespace quorvel
