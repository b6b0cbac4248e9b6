#include "client/DesktopBrowserModel.h"

#include <glibmm/main.h>
#include <utility>

namespace quorvel {

DesktopBrowserModel::DesktopBrowserModel() : DesktopBrowserModel(Surroundings{}) {}

DesktopBrowserModel::DesktopBrowserModel(Surroundings surroundings)
    : downloads(surroundings.startTimer), openInSystem_(std::move(surroundings.openInSystem)),
      showInFolder_(std::move(surroundings.showInFolder)),
      webView_(surroundings.folders, std::move(surroundings.startTimer), viewOwner()) {
  load(QuorvelRoute::agent);
}

WebView::Owner DesktopBrowserModel::viewOwner() {
  return {.onChange = [this] { updateState(); },
          .openInSystem = openInSystem_,
          .openWindow = [this](const std::string& address) { load(address); },
          .onDialog = [this](const std::optional<PageDialog>& asked) { dialog = asked; },
          .onDownload = [this](const Download& download) { downloads.show(download); },
          .onUnconfined = [this](const std::string& text) { warning = text; }};
}

void DesktopBrowserModel::load(QuorvelRoute route) {
  load(url(route));
}

void DesktopBrowserModel::load(const std::string& address) {
  currentURLString = address;
  webView_.load(address);
}

void DesktopBrowserModel::reload() {
  webView_.reload();
}

void DesktopBrowserModel::goBack() {
  webView_.goBack();
}

void DesktopBrowserModel::goForward() {
  webView_.goForward();
}

void DesktopBrowserModel::openExternal() {
  const auto address = webView_.address();
  openInSystem_(address.empty() ? url(QuorvelRoute::agent) : address);
}

bool DesktopBrowserModel::isShowing(QuorvelRoute route) const {
  const auto address = webView_.address();
  return matches(route, address.empty() ? std::string_view(*currentURLString) : address);
}

std::string DesktopBrowserModel::addressOnScreen() const {
  return webView_.addressOfAsker().value_or(*currentURLString);
}

void DesktopBrowserModel::answer(const DialogAnswer& answer) {
  webView_.answer(answer);
}

void DesktopBrowserModel::cancel(const Download& download) {
  webView_.cancelDownload(download.id);
}

void DesktopBrowserModel::showInFolder(const Download& download) {
  showInFolder_(download.path);
}

void DesktopBrowserModel::dismissDialogs() {
  webView_.dismissDialogs();
}

void DesktopBrowserModel::updateState() {
  Glib::signal_idle().connect_once(sigc::mem_fun(*this, &DesktopBrowserModel::copyState),
                                   Glib::PRIORITY_DEFAULT);
}

void DesktopBrowserModel::copyState() {
  canGoBack = webView_.canGoBack();
  canGoForward = webView_.canGoForward();
  isLoading = webView_.isLoading();
  currentURLString.update([this](std::string& address) { webView_.copyAddress(address); });
  title = webView_.title().value_or("Quorvel");
}

} // namespace quorvel
