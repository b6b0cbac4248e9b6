#include "brand/tone.h"

#include "brand/cssClass.h"
#include "brand/surfaces.h"

namespace quorvel {

void setTone(Gtk::Widget& widget, AccentTone tone) {
  for (const auto each : allCases<AccentTone>())
    setCssClass(widget, "tone-" + std::string(rawValue(each)), each == tone);
}

Gtk::Widget* dot(AccentTone tone, int diameter) {
  return toned(tone, disc("dot", diameter));
}

} // namespace quorvel
