#include "brand/symbol.h"

#include <string>

namespace quorvel {

Gtk::Image* symbol(std::string_view name, const TextLook& look) {
  auto* image = Gtk::make_managed<Gtk::Image>();
  image->add_css_class("symbol");
  applyLook(*image, look);
  setSymbol(*image, name);
  return image;
}

void setSymbol(Gtk::Image& image, std::string_view name) {
  image.set_from_icon_name(std::string(name) + "-symbolic");
}

} // namespace quorvel
