#include "programs/client/MainWindow.h"

#include "client/ContentView.h"
#include "commands/PrimaryMenu.h"
#include "programs/client/CommandMenu.h"
#include "programs/client/habits.h"

#include <gtkmm/headerbar.h>

namespace quorvel {

MainWindow::MainWindow(DesktopBrowserModel& browser, Gtk::Application& application,
                       const Commands& commands) {
  set_title("Quorvel");
  set_icon_name("com.quorvel.Desktop");
  auto* header = Gtk::make_managed<Gtk::HeaderBar>();
  header->add_css_class("slim");
  header->pack_start(*Gtk::make_managed<CommandMenu>(commands.client, browser, application));
  header->pack_end(*Gtk::make_managed<PrimaryMenu>(commands.program));
  set_titlebar(*header);
  set_child(*Gtk::make_managed<ContentView>(browser));
  // A long address would otherwise make the window as wide as it would like to be.
  set_default_size(ContentView::minimumWidth, -1);
  addBrowsingHabits(*this);
}

WindowSize MainWindow::size() const {
  WindowSize size{0, 0, property_maximized()};
  get_default_size(size.width, size.height);
  return size;
}

void MainWindow::setSize(const WindowSize& size) {
  set_default_size(size.width, size.height);
  property_maximized() = size.isMaximized;
}

} // namespace quorvel
