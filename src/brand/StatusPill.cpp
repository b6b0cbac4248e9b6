#include "brand/StatusPill.h"

#include "brand/text.h"
#include "brand/tone.h"
#include "layout/stacks.h"

namespace quorvel {

StatusPill::StatusPill(const Glib::ustring& title, AccentTone tone, bool isProminent)
    : title_(singleLine(title, {TextStyle::caption, FontWeight::bold}, Pango::EllipsizeMode::NONE)) {
  add_css_class("status-pill");
  append(*padded(9, 5, title_));
  show(title, tone, isProminent);
}

void StatusPill::show(const Glib::ustring& title, AccentTone tone, bool isProminent) {
  title_->set_text(title);
  setTone(*this, tone);
  if (isProminent)
    add_css_class("prominent");
  else
    remove_css_class("prominent");
}

} // namespace quorvel
