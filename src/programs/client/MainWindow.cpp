#include "programs/client/MainWindow.h"

#include "client/ContentView.h"
#include "commands/PrimaryMenu.h"
#include "commands/titleBar.h"
#include "programs/client/CommandMenu.h"
#include "programs/client/habits.h"

#include <glibmm/main.h>
#include <utility>

namespace quorvel {
namespace {

/// As large as the client will be, and as dark.
Gtk::Widget* emptyClient() {
  auto* empty = Gtk::make_managed<HStack>(0);
  empty->add_css_class("client-window");
  empty->set_size_request(ContentView::minimumWidth, ContentView::minimumHeight);
  return empty;
}

} // namespace

MainWindow::MainWindow(DesktopBrowserModel& browser, Gtk::Application& application, const Commands& commands)
    : browser_(browser) {
  set_title("Quorvel");
  set_icon_name("com.quorvel.Desktop");
  auto& header = giveTitleBar(*this);
  // The menu says the program's name already, and the sidebar below it.
  header.set_title_widget(*Gtk::make_managed<HStack>(0));
  header.pack_start(*Gtk::make_managed<CommandMenu>(commands.client, browser, application));
  header.pack_end(*Gtk::make_managed<PrimaryMenu>(commands.program));
  set_child(*emptyClient());
  // A long address would otherwise make the window as wide as it would like to be.
  set_default_size(ContentView::minimumWidth, -1);
  addBrowsingHabits(*this);
}

MainWindow::~MainWindow() {
  pause_.disconnect();
}

void MainWindow::on_map() {
  Gtk::ApplicationWindow::on_map();
  if (std::exchange(isEmpty_, false))
    pause_ = Glib::signal_idle().connect(sigc::mem_fun(*this, &MainWindow::showClient), Glib::PRIORITY_LOW);
}

bool MainWindow::showClient() {
  auto* client = Gtk::make_managed<ContentView>(browser_);
  set_child(*client);
  client->child_focus(Gtk::DirectionType::TAB_FORWARD); // as of a window that appears with it
  return false;
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
