#include "client/DownloadsView.h"

#include "brand/buttons.h"
#include "brand/symbol.h"
#include "brand/text.h"
#include "client/DesktopBrowserModel.h"
#include "client/displayedFileName.h"
#include "layout/Frame.h"
#include "layout/accessible.h"
#include "observation/observe.h"

#include <algorithm>
#include <glibmm/miscutils.h>
#include <gtkmm/eventcontrollerfocus.h>
#include <gtkmm/eventcontrollermotion.h>
#include <gtkmm/progressbar.h>
#include <gtkmm/root.h>

namespace quorvel {
namespace {

constexpr int mostHeight = 140, rowHeight = 28, barWidth = 140, statusWidth = 170;

/// For the ear; the figures are the progress bar's.
std::string sentence(const Download& download) {
  switch (download.state) {
  case Download::State::done:
    return download.name + " is downloaded";
  case Download::State::failed:
    return download.name + " could not be downloaded";
  case Download::State::underWay:
  case Download::State::cancelled:
    break;
  }
  return "Downloading " + download.name;
}

Glib::ustring size(std::uint64_t bytes) {
  return Glib::format_size(bytes);
}

Glib::ustring status(const Download& download) {
  if (download.state == Download::State::failed)
    return "Could not be downloaded";
  if (download.state == Download::State::done)
    return "Downloaded, " + size(download.received);
  return download.expected ? size(download.received) + " of " + size(download.expected)
                           : size(download.received);
}

bool hasFocusWithin(Gtk::Widget& widget) {
  auto* focus = widget.get_root() ? widget.get_root()->get_focus() : nullptr;
  return focus && focus->is_ancestor(widget);
}

} // namespace

/// One download.
class DownloadRow : public HStack {
 public:
  struct Actions {
    std::function<void(const Download&)> cancel, showInFolder;
  };
  DownloadRow(const Download& download, Actions actions);
  void show(const Download& download);

 private:
  Download download_;
  Gtk::Label* name_;
  Gtk::ProgressBar* progress_;
  Gtk::Label* status_;
  Gtk::Button* cancel_;
  Gtk::Button* showInFolder_;
};

DownloadRow::DownloadRow(const Download& download, Actions actions)
    : HStack(10), name_(singleLine("", {TextStyle::caption, FontWeight::semibold, TextColor::ink},
                                   Pango::EllipsizeMode::MIDDLE)),
      progress_(Gtk::make_managed<Gtk::ProgressBar>()),
      status_(text("", {TextStyle::caption, {}, TextColor::secondaryInk})),
      cancel_(button("Cancel", ButtonStyle::bordered, [this, actions] { actions.cancel(download_); })),
      showInFolder_(button("Show in folder", ButtonStyle::bordered,
                           [this, actions] { actions.showInFolder(download_); })) {
  // What a screen reader speaks of when it changes, as soon as it has nothing else to say.
  property_accessible_role() = Role::STATUS;
  set_size_request(-1, rowHeight);
  name_->set_overflow(Gtk::Overflow::HIDDEN); // marks above and below letters may be piled up to any height
  name_->set_xalign(0);
  status_->set_wrap(false);
  status_->set_xalign(1);
  progress_->set_valign(Gtk::Align::CENTER);
  auto* mark = symbol("tray.and.arrow.down", {TextStyle::caption, FontWeight::bold, TextColor::muted});
  add({mark, stretched(name_), Gtk::make_managed<Frame>(Frame::Size{.minimumWidth = barWidth}, *progress_),
       Gtk::make_managed<Frame>(Frame::Size{.minimumWidth = statusWidth}, *status_), cancel_, showInFolder_});
  show(download);
}

void DownloadRow::show(const Download& download) {
  download_ = download;
  const bool hasFocus = cancel_->is_focus();
  const bool isUnderWay = download.state == Download::State::underWay;
  name_->set_text(displayedFileName(download.name));
  status_->set_text(status(download));
  const auto share = static_cast<double>(download.received) /
                     static_cast<double>(std::max<std::uint64_t>(download.expected, 1));
  progress_->set_fraction(std::min(share, 1.0));
  progress_->set_visible(isUnderWay && download.expected > 0);
  cancel_->set_visible(isUnderWay);
  showInFolder_->set_visible(download.state == Download::State::done);
  if (hasFocus && !isUnderWay)
    showInFolder_->grab_focus();
  setAccessibleName(*name_, sentence(download));
  setAccessibleName(*progress_, "Progress of " + download.name);
  setAccessibleName(*cancel_, "Cancel " + download.name);
  setAccessibleName(*showInFolder_, "Show in folder: " + download.name);
}

DownloadsView::DownloadsView(DesktopBrowserModel& browser)
    : HStack(0), browser_(browser), lines_(vstack(4, {})),
      rows_(*lines_, [this](const Download& download) { return makeRow(download); }) {
  add_css_class("client-downloads");
  auto* scroller = verticalScroller("Downloads", padded(14, 7, stretched(lines_)));
  scroller->set_max_content_height(mostHeight);
  add({stretched(scroller)});
  watchUse();
  observe(browser_.downloads, *this, &DownloadsView::refresh);
}

DownloadRow* DownloadsView::makeRow(const Download& download) {
  return stretched(Gtk::make_managed<DownloadRow>(
      download, DownloadRow::Actions{[this](const Download& shown) { browser_.cancel(shown); },
                                     [this](const Download& shown) { browser_.showInFolder(shown); }}));
}

/// Nothing goes from under somebody's hand.
void DownloadsView::watchUse() {
  const auto pointer = Gtk::EventControllerMotion::create();
  const auto focus = Gtk::EventControllerFocus::create();
  const auto look = [this, pointer, focus] {
    browser_.downloads.setLookedAt(pointer->contains_pointer() || focus->contains_focus());
  };
  pointer->property_contains_pointer().signal_changed().connect(look);
  focus->property_contains_focus().signal_changed().connect(look);
  add_controller(pointer);
  add_controller(focus);
}

void DownloadsView::refresh() {
  const bool hadFocus = hasFocusWithin(*this);
  rows_.show(*browser_.downloads.list);
  set_visible(!browser_.downloads.list->empty());
  if (hadFocus && !hasFocusWithin(*this))
    browser_.webView().widget().grab_focus();
}

} // namespace quorvel
