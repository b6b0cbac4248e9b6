#pragma once

#include "brand/Color.h"
#include "support/eventually.h"

#include <gmock/gmock.h>
#include <gtkmm.h>
#include <string>
#include <vector>

namespace quorvel::tests {

/// A real window that shows one widget at a given size, for tests that look at real widgets.
class TestWindow : public Gtk::Window {
 public:
  /// Shows `widget`, `width` points wide; with a height of -1 it is as high as it asks to be.
  explicit TestWindow(Gtk::Widget& widget, int width = 900, int height = -1);
  ~TestWindow() override;

  /// Shows the same widget in another width.
  void resize(int width, int height = -1);
  /// What is on screen, pixel by pixel.
  Color pixel(int x, int y);
  /// The whole of it, for comparing.
  std::vector<unsigned char> picture();
  /// Writes the whole of it into a PNG file.
  void savePicture(const std::string& path);

 private:
  Cairo::RefPtr<Cairo::ImageSurface> draw();

  Gtk::Widget& widget_;
  Gtk::Fixed ground_;
};

/// A pixel is this opaque colour, as far as eight bits a component can tell.
MATCHER_P(IsColor, expected, "") {
  const auto same = [](double a, double b) { return std::abs(a - b) < 1.6 / 255; };
  *result_listener << "(" << arg.red << ", " << arg.green << ", " << arg.blue << ")";
  return same(arg.red, expected.red) && same(arg.green, expected.green) && same(arg.blue, expected.blue);
}

/// All of a window or menu, once it has drawn what was announced.
Cairo::RefPtr<Cairo::ImageSurface> drawingOf(Gtk::Widget& window);
/// Writes all of a window, with its header bar, into a PNG file.
void savePicture(Gtk::Window& window, const std::string& path);

/// Runs the main loop until what was announced has been drawn.
void drawFrame(Gtk::Widget& widget);

/// The widgets below `root`, itself included, depth first and in order, that are of this type.
template <class Widget>
std::vector<Widget*> all(Gtk::Widget& root);
/// The only visible label with exactly this text; nothing where there is none.
Gtk::Label* labelled(Gtk::Widget& root, const Glib::ustring& text);
/// The texts of all labels that are shown, in order.
std::vector<std::string> texts(Gtk::Widget& root);
/// The button of which a label has this text, or whose tooltip it is.
Gtk::Button* buttonNamed(Gtk::Widget& root, const Glib::ustring& name);

/// Where `widget` is drawn inside `ancestor`, in points.
Gdk::Rectangle boundsIn(const Gtk::Widget& ancestor, const Gtk::Widget& widget);
/// Where a window's drawing has it, with the frame around the window.
Gdk::Rectangle boundsInDrawing(const Gtk::Window& window, const Gtk::Widget& widget);
/// The colour that a text or a symbol is drawn in.
Color inkOf(Gtk::Widget& widget);
/// Whether this is the name that assistive technology reads for the widget.
bool hasAccessibleName(Gtk::Widget& widget, const std::string& name);
bool hasAccessibleDescription(Gtk::Widget& widget, const std::string& description);
/// Whether assistive technology is told that the widget is selected.
bool isAccessiblySelected(Gtk::Widget& widget);
/// What a press of the pointer or of Return does; nothing where the button is disabled.
void click(Gtk::Button& button);

template <class Widget>
void collect(Gtk::Widget& root, std::vector<Widget*>& found) {
  if (auto* match = dynamic_cast<Widget*>(&root))
    found.push_back(match);
  for (auto* child = root.get_first_child(); child; child = child->get_next_sibling())
    collect(*child, found);
}
template <class Widget>
std::vector<Widget*> all(Gtk::Widget& root) {
  std::vector<Widget*> found;
  collect(root, found);
  return found;
}

} // namespace quorvel::tests
