#include "brand/SectionHeader.h"

#include "brand/text.h"
#include "vocabulary/letterByLetter.h"

#include <glibmm/unicode.h>

namespace quorvel {

SectionHeader::SectionHeader(const Glib::ustring& eyebrow, const Glib::ustring& title,
                             const Glib::ustring& detail)
    : VStack(8) {
  add({text(letterByLetter(eyebrow, Glib::Unicode::toupper),
            {TextStyle::caption, FontWeight::black, TextColor::green}),
       text(title, {TextStyle::largeTitle, FontWeight::bold, TextColor::ink}),
       text(detail, {TextStyle::callout, {}, TextColor::secondaryInk})});
}

} // namespace quorvel
