#include "QuorvelApp.h"

#include "DesktopBrowserModel.h"
#include "MainWindow.h"
#include "Preferences.h"
#include "SettingsWindow.h"
#include "ShortcutsWindow.h"
#include "StyleSheet.h"

#include <gtkmm/aboutdialog.h>

namespace quorvel {
namespace {

std::unique_ptr<Gtk::Window> makeAbout() {
  auto about = std::make_unique<Gtk::AboutDialog>();
  about->set_program_name("Quorvel");
  about->set_version(QUORVEL_VERSION);
  about->set_comments("Desktop agent client");
  about->set_logo_icon_name(QuorvelApp::identifier);
  return about;
}

} // namespace

QuorvelApp::QuorvelApp() : Gtk::Application(identifier) {}

QuorvelApp::~QuorvelApp() = default;

void QuorvelApp::on_startup() {
  // First of all: the page is fetched while windows and style sheets are still being built.
  browser_ = std::make_unique<DesktopBrowserModel>();
  Gtk::Application::on_startup();
  addActions();
}

void QuorvelApp::on_activate() {
  if (!window_) {
    installStyle();
    window_ = std::make_unique<MainWindow>(*browser_, *this);
    add_window(*window_);
    window_->signal_hide().connect([this] { quit(); });
  }
  appDelegate_.applicationDidFinishLaunching();
}

void QuorvelApp::addActions() {
  add_action("settings", [this] { showSettings(); });
  add_action("shortcuts",
             [this] { showBeside(shortcuts_, [] { return std::make_unique<ShortcutsWindow>(); }); });
  add_action("about", [this] { showBeside(about_, makeAbout); });
  add_action("quit", [this] { quit(); });
}

void QuorvelApp::showSettings() {
  showBeside(settings_, [this] {
    preferences_ = std::make_unique<Preferences>();
    return std::make_unique<SettingsWindow>(*preferences_);
  });
}

template <class Make>
void QuorvelApp::showBeside(std::unique_ptr<Gtk::Window>& window, Make&& make) {
  if (!window) {
    window = make();
    window->set_transient_for(*window_);
    window->set_hide_on_close(true);
  }
  window->present();
}

} // namespace quorvel
