#include "brand/card.h"

#include "layout/stacks.h"

namespace quorvel {

Gtk::Widget* quorvelCard(Gtk::Widget* content, int padding) {
  auto* card = Gtk::make_managed<HStack>(0);
  applyCardStyle(*card);
  // The content fills its card, but the card is as keen on width as the content was.
  card->set_hexpand(content->compute_expand(Gtk::Orientation::HORIZONTAL));
  content->set_hexpand(true);
  card->append(*padded(padding, content));
  return card;
}

void applyCardStyle(Gtk::Widget& widget) {
  widget.add_css_class("quorvel-card");
}

} // namespace quorvel
