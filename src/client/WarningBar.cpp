#include "client/WarningBar.h"

#include "brand/symbol.h"
#include "brand/text.h"
#include "brand/tone.h"

namespace quorvel {

WarningBar::WarningBar()
    : HStack(0), sentence_(text("", {TextStyle::callout, FontWeight::semibold, TextColor::ink})) {
  add_css_class("client-warning");
  auto* mark = toned(AccentTone::gold,
                     symbol("lock.open.fill", {TextStyle::callout, FontWeight::bold, TextColor::tone}));
  add({padded(14, 10, stretched(hstack(10, {mark, stretched(sentence_)})))});
  show("");
}

void WarningBar::show(const Glib::ustring& warning) {
  sentence_->set_text(warning);
  set_visible(!warning.empty());
}

} // namespace quorvel
