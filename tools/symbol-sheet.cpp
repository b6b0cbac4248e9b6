// Draws every symbol, with its name, in three weights at 16, 24 and 48 pixels, into one picture: symbol-sheet
// PICTURE
#include "brand/StyleSheet.h"
#include "brand/symbol.h"
#include "layout/stacks.h"
#include "support/DisplayLease.h"
#include "support/TestWindow.h"

#include <gtkmm.h>

namespace quorvel {
namespace {

constexpr int columns = 5;
constexpr FontWeight weights[] = {FontWeight::regular, FontWeight::semibold, FontWeight::bold};

bool isHeavierDrawing(const std::string& name) {
  return std::ranges::any_of(EnumerationTable<FontWeight>::rows, [&](const auto& weight) {
    return name.ends_with('.' + std::to_string(weight.weight));
  });
}

std::vector<std::string> symbolNames() {
  constexpr std::string_view ending = "-symbolic.svg";
  std::vector<std::string> names;
  for (const auto& file :
       Gio::Resource::enumerate_children_global("/com/quorvel/Desktop/icons/scalable/actions"))
    names.push_back(file.substr(0, file.size() - ending.size()));
  std::erase_if(names, isHeavierDrawing);
  std::ranges::sort(names);
  return names;
}

Gtk::Widget* sized(std::string_view name, FontWeight weight, int pixels) {
  auto* image = symbol(name, {.weight = weight});
  image->set_pixel_size(pixels);
  return image;
}

Gtk::Widget* specimen(const std::string& name) {
  auto* drawings = vstack(4, {});
  for (const auto weight : weights)
    drawings->add({hstack(16, {sized(name, weight, 16), sized(name, weight, 24), sized(name, weight, 48)})});
  return padded(16, 12,
                vstack(8, {drawings, singleLine(name, {TextStyle::caption, {}, TextColor::secondaryInk},
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
  const quorvel::tests::DisplayLease display; // no test has its window under this one
  if (!gtk_init_check()) {
    g_printerr("symbol_sheet: there is no display to draw on\n");
    return 1;
  }
  const auto application = Gtk::Application::create();
  quorvel::installStyle();
  quorvel::tests::TestWindow window(*quorvel::sheet(), -1);
  window.savePicture(argv[1]);
}
