#pragma once

#include "engine/PageDialog.h"
#include "layout/stacks.h"

#include <functional>
#include <gtkmm/box.h>
#include <gtkmm/button.h>
#include <gtkmm/checkbutton.h>
#include <gtkmm/entry.h>
#include <gtkmm/label.h>
#include <optional>

namespace quorvel {

/// A dialog of the page, over the page alone, which stands still under it: everything else of the window
/// works on. It is not there while there is no dialog.
class PageDialogView : public Gtk::Box {
 public:
  using Answer = std::function<void(const DialogAnswer&)>;
  explicit PageDialogView(Answer answer);

  /// `site` is whose dialog it is. A dialog that is shown already stays as it is, with what was typed into
  /// it.
  void show(const std::optional<PageDialog>& dialog, const std::string& site);

 private:
  void showNew(const PageDialog& dialog, const std::string& site);
  void answer(bool isYes);

  Answer answer_;
  std::optional<PageDialog> shown_;
  Gtk::Label* site_;
  Gtk::Label* text_;
  Gtk::Entry* entry_;
  Gtk::CheckButton* silence_;
  Gtk::Button* no_;
  Gtk::Button* yes_;
};

} // namespace quorvel
