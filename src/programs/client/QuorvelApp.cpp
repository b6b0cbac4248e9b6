#include "programs/client/QuorvelApp.h"

#include "brand/StyleSheet.h"
#include "brand/heldKeys.h"
#include "client/DesktopBrowserModel.h"
#include "preferences/Preferences.h"
#include "programs/client/MainWindow.h"
#include "programs/client/SecondaryWindow.h"
#include "programs/client/ShortcutsView.h"
#include "programs/client/habits.h"
#include "settings/SettingsView.h"

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
  makeCommands();
}

void QuorvelApp::on_activate() {
  if (!window_) {
    installStyle();
    letHeldKeysActOnce();
    makeWindow();
  }
  appDelegate_.applicationDidFinishLaunching();
}

void QuorvelApp::makeWindow() {
  window_ = std::make_unique<MainWindow>(*browser_, *this, *commands_);
  if (const auto size = readWindowSize(windowSizeFile()))
    window_->setSize(*size);
  add_window(*window_);
  const auto endWithWindow = [this] {
    end();
    return false;
  };
  window_->signal_close_request().connect(endWithWindow, false);
}

void QuorvelApp::end() {
  if (window_)
    writeWindowSize(windowSizeFile(), window_->size());
  quit();
}

void QuorvelApp::makeCommands() {
  const auto makeShortcuts = [this] {
    return std::make_unique<SecondaryWindow>("Keyboard Shortcuts",
                                             *Gtk::make_managed<ShortcutsView>(*commands_));
  };
  commands_.emplace(
      *browser_,
      Commands::Program{.showSettings = [this] { showBeside(settings_, [this] { return makeSettings(); }); },
                        .showShortcuts = [this, makeShortcuts] { showBeside(shortcuts_, makeShortcuts); },
                        .showAbout = [this] { showBeside(about_, makeAbout); },
                        .quit = [this] { end(); }});
  commands_->addTo(*this);
  addClosingKey(*this);
}

std::unique_ptr<Gtk::Window> QuorvelApp::makeSettings() {
  preferences_ = std::make_unique<Preferences>();
  return std::make_unique<SecondaryWindow>("Settings", *Gtk::make_managed<SettingsView>(*preferences_));
}

void QuorvelApp::showBeside(std::unique_ptr<Gtk::Window>& window,
                            const std::function<std::unique_ptr<Gtk::Window>()>& make) {
  if (!window_)
    activate(); // a command came over the message bus before anything else
  if (!window) {
    window = make();
    add_window(*window); // or the program's keys would be dead in it
    window->set_transient_for(*window_);
    window->set_hide_on_close(true);
  }
  window->present();
}

} // namespace quorvel
