#include "support/TestWindow.h"

#include <algorithm>
#include <stdexcept>

namespace quorvel::tests {
namespace {

bool hasAccessibleText(Gtk::Widget& widget, GtkAccessibleProperty property, const std::string& text) {
  auto* accessible = GTK_ACCESSIBLE(widget.gobj());
  if (!gtk_test_accessible_has_property(accessible, property))
    return false;
  char* difference = gtk_test_accessible_check_property(accessible, property, text.c_str());
  const bool isSame = difference == nullptr;
  g_free(difference);
  return isSame;
}

} // namespace

TestWindow::TestWindow(Gtk::Widget& widget, int width, int height) : widget_(widget) {
  set_child(ground_);
  ground_.put(widget_, 0, 0);
  resize(width, height);
  present();
  if (!eventually([&] { return widget_.get_mapped() && widget_.get_width() > 0; }))
    throw std::runtime_error("the widget was never shown");
}

TestWindow::~TestWindow() {
  ground_.remove(widget_);
  close();
}

void TestWindow::resize(int width, int height) {
  // A widget in a fixed ground gets its natural size, so the wanted size is asked for.
  int minimum, natural, ignored;
  widget_.set_size_request(width, -1);
  widget_.measure(Gtk::Orientation::VERTICAL, width, minimum, natural, ignored, ignored);
  widget_.set_size_request(width, height < 0 ? natural : height);
  set_default_size(width, height < 0 ? natural : height);
  if (get_mapped())
    drawFrame(widget_);
}

Cairo::RefPtr<Cairo::ImageSurface> TestWindow::draw() {
  return drawingOf(*this);
}

Color TestWindow::pixel(int x, int y) {
  const auto surface = draw();
  double offsetX = 0, offsetY = 0;
  widget_.translate_coordinates(*this, x, y, offsetX, offsetY);
  const auto* bgra =
      surface->get_data() + static_cast<int>(offsetY) * surface->get_stride() + static_cast<int>(offsetX) * 4;
  return {bgra[2] / 255.0, bgra[1] / 255.0, bgra[0] / 255.0};
}

std::vector<unsigned char> TestWindow::picture() {
  const auto surface = draw();
  const auto size =
      static_cast<std::size_t>(surface->get_stride()) * static_cast<std::size_t>(surface->get_height());
  return {surface->get_data(), surface->get_data() + size};
}

void TestWindow::savePicture(const std::string& path) {
  tests::savePicture(*this, path);
}

Cairo::RefPtr<Cairo::ImageSurface> drawingOf(Gtk::Widget& window) {
  drawFrame(window);
  const auto paintable = Gtk::WidgetPaintable::create(window);
  const int width = paintable->get_intrinsic_width(), height = paintable->get_intrinsic_height();
  const auto snapshot = Gtk::Snapshot::create();
  paintable->snapshot(snapshot, width, height);
  auto* node = gtk_snapshot_to_node(snapshot->gobj());
  const auto surface = Cairo::ImageSurface::create(Cairo::Surface::Format::ARGB32, width, height);
  gsk_render_node_draw(node, Cairo::Context::create(surface)->cobj());
  gsk_render_node_unref(node);
  surface->flush();
  return surface;
}

void savePicture(Gtk::Window& window, const std::string& path) {
  drawingOf(window)->write_to_png(path);
}

void drawFrame(Gtk::Widget& widget) {
  // Callbacks run before the frame in which they are added is laid out, so the second one has seen a whole
  // frame.
  int frames = 0;
  widget.add_tick_callback([&](const auto&) { return ++frames < 2; });
  if (!eventually([&] { return frames >= 2; }))
    throw std::runtime_error("no frame was drawn");
}

Gtk::Label* labelled(Gtk::Widget& root, const Glib::ustring& text) {
  for (auto* label : all<Gtk::Label>(root))
    if (label->get_text() == text && label->get_mapped())
      return label;
  return nullptr;
}

std::vector<std::string> texts(Gtk::Widget& root) {
  std::vector<std::string> result;
  for (auto* label : all<Gtk::Label>(root))
    if (label->get_mapped())
      result.push_back(label->get_text());
  return result;
}

Gtk::Button* buttonNamed(Gtk::Widget& root, const Glib::ustring& name) {
  for (auto* button : all<Gtk::Button>(root)) {
    const auto labels = all<Gtk::Label>(*button);
    if (button->get_tooltip_text() == name ||
        std::ranges::any_of(labels, [&](auto* label) { return label->get_text() == name; }))
      return button;
  }
  return nullptr;
}

Gdk::Rectangle boundsIn(const Gtk::Widget& ancestor, const Gtk::Widget& widget) {
  graphene_rect_t bounds;
  if (!gtk_widget_compute_bounds(const_cast<GtkWidget*>(widget.gobj()),
                                 const_cast<GtkWidget*>(ancestor.gobj()), &bounds))
    throw std::runtime_error("the widget is not inside the other");
  return {static_cast<int>(bounds.origin.x), static_cast<int>(bounds.origin.y),
          static_cast<int>(bounds.size.width), static_cast<int>(bounds.size.height)};
}

Gdk::Rectangle boundsInDrawing(const Gtk::Window& window, const Gtk::Widget& widget) {
  const auto frame = boundsIn(window, window), bounds = boundsIn(window, widget);
  return {bounds.get_x() - frame.get_x(), bounds.get_y() - frame.get_y(), bounds.get_width(),
          bounds.get_height()};
}

Color inkOf(Gtk::Widget& widget) {
  const auto color = widget.get_style_context()->get_color();
  return {color.get_red(), color.get_green(), color.get_blue(), color.get_alpha()};
}

bool hasAccessibleName(Gtk::Widget& widget, const std::string& name) {
  return hasAccessibleText(widget, GTK_ACCESSIBLE_PROPERTY_LABEL, name);
}

bool hasAccessibleDescription(Gtk::Widget& widget, const std::string& description) {
  return hasAccessibleText(widget, GTK_ACCESSIBLE_PROPERTY_DESCRIPTION, description);
}

bool isAccessiblySelected(Gtk::Widget& widget) {
  auto* accessible = GTK_ACCESSIBLE(widget.gobj());
  if (!gtk_test_accessible_has_state(accessible, GTK_ACCESSIBLE_STATE_SELECTED))
    throw std::runtime_error("the widget tells nobody whether it is selected");
  char* difference = gtk_test_accessible_check_state(accessible, GTK_ACCESSIBLE_STATE_SELECTED, TRUE);
  const bool isSelected = difference == nullptr;
  g_free(difference);
  return isSelected;
}

void click(Gtk::Button& button) {
  // Activating a button shows it pressed for a moment first; what follows is the same.
  if (button.is_sensitive() && button.get_mapped())
    g_signal_emit_by_name(button.gobj(), "clicked");
}

} // namespace quorvel::tests
