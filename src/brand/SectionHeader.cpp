#include "brand/SectionHeader.h"

#include "brand/text.h"

namespace quorvel {

SectionHeader::SectionHeader(const Glib::ustring& eyebrow, const Glib::ustring& title,
                             const Glib::ustring& detail)
    : VStack(8) {
  add({text(eyebrow.uppercase(), {TextStyle::caption, FontWeight::black, TextColor::green}),
       text(title, {TextStyle::largeTitle, FontWeight::bold, TextColor::ink}),
       text(detail, {TextStyle::callout, {}, TextColor::secondaryInk})});
}

} // namespace quorvel
