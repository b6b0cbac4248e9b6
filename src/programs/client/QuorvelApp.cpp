#include "programs/client/QuorvelApp.h"

#include "brand/StyleSheet.h"
#include "brand/heldKeys.h"
#include "client/DesktopBrowserModel.h"
#include "client/ServiceOrigin.h"
#include "client/openInSystem.h"
#include "commands/AboutView.h"
#include "commands/ShortcutsView.h"
#include "engine/WebFolders.h"
#include "engine/engineVersion.h"
#include "preferences/Preferences.h"
#include "programs/client/MainWindow.h"
#include "programs/client/habits.h"
#include "settings/SettingsView.h"

namespace quorvel {
namespace {

About aboutClient() {
  const auto folders = WebFolders::ofUser();
  return {.name = "Quorvel",
          .version = QUORVEL_VERSION,
          .summary = "Desktop agent client",
          .icon = QuorvelApp::identifier,
          .details = {engineVersion() + ", " + toolkitVersion(), "Website: " + std::string(serviceOrigin),
                      "Sign-in and storage: " + folders.data, "Cache: " + folders.cache,
                      "Preferences: " + Preferences::standardPath(), "Window size: " + windowSizeFile()},
          .showWebsite = [] { openInSystem(std::string(serviceOrigin)); }};
}

} // namespace

QuorvelApp::QuorvelApp() : Gtk::Application(identifier) {
  installSymbols();
  unset_resource_base_path(); // where the toolkit would look for more symbols, and read them all again
}

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
  browser_->dismissDialogs(); // while one asks what to print the engine keeps the program from ending
  quit();
}

void QuorvelApp::makeCommands() {
  const auto makeShortcuts = [this] {
    return makeShortcutsWindow({{"Quorvel", commands_->client}, {"Program", commands_->program}});
  };
  commands_.emplace(
      *browser_,
      Commands::Program{
          .showSettings = [this] { showBesideMain(settings_, [this] { return makeSettings(); }); },
          .showShortcuts = [this, makeShortcuts] { showBesideMain(shortcuts_, makeShortcuts); },
          .showAbout = [this] { showBesideMain(about_, [] { return makeAboutWindow(aboutClient()); }); },
          .quit = [this] { end(); }});
  commands_->addTo(*this);
  addClosingKey(*this);
}

std::unique_ptr<Gtk::Window> QuorvelApp::makeSettings() {
  preferences_ = std::make_unique<Preferences>();
  return std::make_unique<SecondaryWindow>("Settings", *Gtk::make_managed<SettingsView>(*preferences_));
}

void QuorvelApp::showBesideMain(std::unique_ptr<Gtk::Window>& window, const MakeWindow& make) {
  if (!window_)
    activate(); // a command came over the message bus before anything else
  showBeside(*window_, window, make);
}

} // namespace quorvel
