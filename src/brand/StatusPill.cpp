#include "brand/StatusPill.h"

#include "brand/cssClass.h"
#include "brand/text.h"
#include "brand/tone.h"
#include "layout/stacks.h"

namespace quorvel {

StatusPill::StatusPill(const Glib::ustring& title, AccentTone tone, PillStyle style)
    : title_(singleLine(title, {TextStyle::caption, FontWeight::bold}, Pango::EllipsizeMode::NONE)) {
  add_css_class("status-pill");
  append(*padded(9, 5, title_));
  show(title, tone, style);
}

void StatusPill::show(const Glib::ustring& title, AccentTone tone, PillStyle style) {
  title_->set_text(title);
  setTone(*this, tone);
  setLook(*this, style);
}

} // namespace quorvel
