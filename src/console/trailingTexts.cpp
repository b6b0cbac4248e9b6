#include "trailingTexts.h"

#include "FirstThatFits.h"
#include "stacks.h"

namespace quorvel {

Gtk::Widget* withTrailingTexts(Gtk::Widget* content, int spacing, std::initializer_list<Gtk::Label*> texts) {
  auto* column = vstack(spacing, {}, HorizontalAlignment::trailing);
  for (auto* text : texts) {
    text->set_xalign(1);
    text->set_justify(Gtk::Justification::RIGHT);
    column->add({text});
  }
  for (auto* member : {content, static_cast<Gtk::Widget*>(column)})
    member->set_valign(Gtk::Align::START);
  // A box would weigh the two by what they need at the row's height, and wrap the texts first.
  return stretched(Gtk::make_managed<FirstThatFits>(
      std::vector<FirstThatFits::Form>{{Gtk::Orientation::HORIZONTAL, 16, {content, hspacer(), column}}}));
}

} // namespace quorvel
