#include "support/RealInput.h"

#include "support/TestWindow.h"

#include <X11/XKBlib.h>
#include <gdk/x11/gdkx.h>
#include <gdkmm/surface.h>
#include <glibmm/spawn.h>
#include <gtkmm/native.h>
#include <stdexcept>

namespace quorvel::tests {
namespace {

void xdotool(std::vector<std::string> arguments) {
  gdk_display_sync(gdk_display_get_default()); // what went before, such as a menu that closes, counts first
  arguments.insert(arguments.begin(), "xdotool");
  int status = 0;
  Glib::spawn_sync("", arguments, Glib::SpawnFlags::SEARCH_PATH, {}, nullptr, nullptr, &status);
  if (status != 0)
    throw std::runtime_error("xdotool failed");
}

// The toolkit means to leave X11 behind (GTK 4.18 says so first); real keys and pointers need it here.
G_GNUC_BEGIN_IGNORE_DEPRECATIONS
::Display* xDisplay() {
  return gdk_x11_display_get_xdisplay(Gdk::Display::get_default()->gobj());
}
::Window xWindow(const Gtk::Native& native) {
  return gdk_x11_surface_get_xid(const_cast<GdkSurface*>(native.get_surface()->gobj()));
}
G_GNUC_END_IGNORE_DEPRECATIONS

/// Keys that are held repeat themselves early and fast while this exists.
class QuickRepeat {
 public:
  QuickRepeat() {
    XkbGetAutoRepeatRate(xDisplay(), XkbUseCoreKbd, &delay_, &interval_);
    set(150, 20);
  }
  ~QuickRepeat() { set(delay_, interval_); }

 private:
  static void set(unsigned delay, unsigned interval) {
    XkbSetAutoRepeatRate(xDisplay(), XkbUseCoreKbd, delay, interval);
    XSync(xDisplay(), false);
  }
  unsigned delay_ = 0, interval_ = 0; // of the display, in milliseconds
};

/// By way of a place beside it: a pointer that is there already would not be heard of.
void movePointer(::Window window, int x, int y) {
  for (const int each : {x + 1, x})
    xdotool({"mousemove", "--window", std::to_string(window), std::to_string(each), std::to_string(y)});
}

} // namespace

void pointAt(Gtk::Widget& widget) {
  auto* native = widget.get_native();
  double x = 0, y = 0, surfaceX = 0, surfaceY = 0;
  widget.translate_coordinates(dynamic_cast<Gtk::Widget&>(*native), widget.get_width() / 2.0,
                               widget.get_height() / 2.0, x, y);
  native->get_surface_transform(surfaceX, surfaceY);
  movePointer(xWindow(*native), static_cast<int>(x + surfaceX), static_cast<int>(y + surfaceY));
}

void clickOn(Gtk::Widget& widget) {
  pointAt(widget);
  xdotool({"click", "1"});
}

std::string tipOf(Gtk::Widget& widget) {
  GtkWidget* shown = nullptr;
  const auto onMap = +[](GSignalInvocationHint*, guint, const GValue* values, gpointer found) -> gboolean {
    auto* mapped = static_cast<GtkWidget*>(g_value_get_object(values));
    if (std::string_view(G_OBJECT_TYPE_NAME(mapped)) == "GtkTooltipWindow")
      *static_cast<GtkWidget**>(found) = mapped;
    return true;
  };
  const auto signal = g_signal_lookup("map", GTK_TYPE_WIDGET);
  const auto hook = g_signal_add_emission_hook(signal, 0, onMap, &shown, nullptr);
  using Clock = std::chrono::steady_clock;
  auto nextMove = Clock::now();
  const bool hasAppeared = eventually([&] {
    if (Clock::now() >= nextMove) {
      pointAt(widget);
      nextMove = Clock::now() + std::chrono::seconds(2);
    }
    return shown != nullptr;
  });
  g_signal_remove_emission_hook(signal, hook);
  return hasAppeared ? all<Gtk::Label>(*Glib::wrap(shown)).front()->get_text() : "";
}

void strikeKey(const std::string& name) {
  xdotool({"key", name});
}

void holdKey(const std::string& name, Gtk::Widget& window) {
  constexpr int longEnough = 28;
  const QuickRepeat quickRepeat;
  int presses = 0;
  const auto keys = Gtk::EventControllerKey::create();
  keys->set_propagation_phase(Gtk::PropagationPhase::CAPTURE);
  keys->signal_key_pressed().connect([&](guint, guint, Gdk::ModifierType) { return ++presses < 0; }, false);
  window.add_controller(keys);
  const auto isHeard = [&] { return presses > 0; };
  xdotool({"keydown", name});
  // While a menu closes the display may have nobody to send a key to.
  if (!eventually(isHeard, testing::Eq(true), std::chrono::seconds(3))) {
    xdotool({"keyup", name});
    xdotool({"keydown", name});
  }
  const bool hasRepeated = eventually([&] { return presses >= longEnough; });
  xdotool({"keyup", name});
  window.remove_controller(keys);
  if (!hasRepeated)
    throw std::runtime_error("the key never repeated itself");
}

void focusOn(Gtk::Widget& widget) {
  auto& window = dynamic_cast<Gtk::Window&>(*widget.get_root());
  if (!eventually([&] { return window.is_active(); }))
    throw std::runtime_error("the window never got the keyboard");
  widget.grab_focus();
}

} // namespace quorvel::tests
