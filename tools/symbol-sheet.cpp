// Draws every symbol at 16, 24 and 48 pixels, with its name, into one picture: symbol_sheet PICTURE
#include "brand/StyleSheet.h"
#include "brand/symbol.h"
#include "layout/stacks.h"
#include "support/TestWindow.h"

#include <gtkmm.h>

namespace quorvel {
namespace {

constexpr int columns = 4;

std::vector<std::string> symbolNames() {
  constexpr std::string_view ending = "-symbolic.svg";
  std::vector<std::string> names;
  for (const auto& file :
       Gio::Resource::enumerate_children_global("/com/quorvel/Desktop/icons/scalable/actions"))
    names.push_back(file.substr(0, file.size() - ending.size()));
  std::ranges::sort(names);
  return names;
}

Gtk::Widget* sized(std::string_view name, int pixels) {
  auto* image = symbol(name, {});
  image->set_pixel_size(pixels);
  return image;
}

Gtk::Widget* specimen(const std::string& name) {
  return padded(16, 12,
                vstack(8, {hstack(16, {sized(name, 16), sized(name, 24), sized(name, 48)}),
                           singleLine(name, {TextStyle::caption, {}, TextColor::secondaryInk},
                                      Pango::EllipsizeMode::NONE)}));
}

Gtk::Widget* sheet() {
  auto* grid = Gtk::make_managed<Gtk::Grid>();
  grid->set_column_homogeneous();
  int place = 0;
  for (const auto& name : symbolNames()) {
    grid->attach(*specimen(name), place % columns, place / columns);
    ++place;
  }
  return grid;
}

} // namespace
} // namespace quorvel

int main(int argc, char** argv) {
  if (argc != 2) {
    g_printerr("usage: symbol_sheet PICTURE\n");
    return 2;
  }
  if (!gtk_init_check()) {
    g_printerr("symbol_sheet: there is no display to draw on\n");
    return 1;
  }
  const auto application = Gtk::Application::create();
  quorvel::installStyle();
  quorvel::tests::TestWindow window(*quorvel::sheet(), -1);
  window.savePicture(argv[1]);
}
