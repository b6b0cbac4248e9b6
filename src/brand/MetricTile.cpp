#include "brand/MetricTile.h"

#include "brand/symbol.h"
#include "brand/tone.h"

namespace quorvel {

MetricTile::MetricTile(const Glib::ustring& title, const Glib::ustring& value, const Glib::ustring& detail,
                       AccentTone tone)
    : VStack(0),
      value_(text(value, {TextStyle::figure, FontWeight::semibold, TextColor::ink, FontDesign::rounded})) {
  add_css_class("metric-tile");
  auto* marks = hstack(
      defaultSpacing,
      {dot(tone, 10), hspacer(),
       toned(tone, symbol("arrow.up.right", {TextStyle::caption, FontWeight::bold, TextColor::tone}))});
  auto* figure = vstack(3, {text(title, {TextStyle::caption, FontWeight::bold, TextColor::muted}), value_,
                            text(detail, {TextStyle::caption, {}, TextColor::muted})});
  add({padded(18, stretched(vstack(16, {marks, figure})))});
}

void MetricTile::setValue(const Glib::ustring& value) {
  value_->set_text(value);
}

} // namespace quorvel
