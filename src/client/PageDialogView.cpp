#include "client/PageDialogView.h"

#include "brand/buttons.h"
#include "brand/surfaces.h"
#include "brand/text.h"
#include "layout/Frame.h"
#include "layout/accessible.h"

#include <gtkmm/eventcontrollerkey.h>
#include <utility>

namespace quorvel {
namespace {

constexpr int cardWidth = 420, mostTextHeight = 240;

struct Words {
  const char* no; ///< none where there is nothing to choose
  const char* yes;
};

Words wordsOf(PageDialog::Kind kind) {
  if (kind == PageDialog::Kind::alert)
    return {"", "OK"};
  return kind == PageDialog::Kind::leave ? Words{"Stay", "Leave"} : Words{"Cancel", "OK"};
}

Gtk::Widget* scrolling(Gtk::Label* text) {
  auto* scroller = verticalScroller("Question", text);
  scroller->set_max_content_height(mostTextHeight);
  return stretched(scroller);
}

} // namespace

PageDialogView::PageDialogView(Answer answer)
    : answer_(std::move(answer)),
      site_(singleLine("", {TextStyle::caption, FontWeight::bold, TextColor::muted},
                       Pango::EllipsizeMode::START)),
      text_(text("", {TextStyle::body})), entry_(Gtk::make_managed<Gtk::Entry>()),
      silence_(Gtk::make_managed<Gtk::CheckButton>("Do not show more dialogs of this page")),
      no_(button("", ButtonStyle::bordered, [this] { this->answer(false); })),
      yes_(button("", ButtonStyle::prominent, [this] { this->answer(true); })) {
  add_css_class("client-dialog");
  text_->set_wrap_mode(
      Pango::WrapMode::WORD_CHAR); // a page may say a single word that is wider than anything
  setAccessibleName(*entry_, "Answer");
  entry_->signal_activate().connect([this] { this->answer(true); });
  const auto keys = Gtk::EventControllerKey::create();
  keys->signal_key_pressed().connect(
      [this](guint key, guint, Gdk::ModifierType) {
        if (key == GDK_KEY_Escape)
          this->answer(false);
        return key == GDK_KEY_Escape;
      },
      false);
  add_controller(keys);

  auto* content = vstack(12, {site_, scrolling(text_), stretched(entry_), silence_,
                              stretched(hstack(10, {hspacer(), no_, yes_}))});
  auto* card = Gtk::make_managed<Frame>(Frame::Size{.width = cardWidth},
                                        *raisedPanel(Outline::strongLine, padded(18, stretched(content))));
  card->set_halign(Gtk::Align::CENTER);
  card->set_valign(Gtk::Align::CENTER);
  card->set_hexpand(true);
  append(*card);
  set_visible(false);
}

void PageDialogView::show(const std::optional<PageDialog>& dialog, const std::string& site) {
  if (dialog == shown_)
    return;
  shown_ = dialog;
  set_visible(dialog.has_value());
  if (dialog)
    showNew(*dialog, site);
}

void PageDialogView::showNew(const PageDialog& dialog, const std::string& site) {
  const auto words = wordsOf(dialog.kind);
  site_->set_text(site);
  text_->set_text(dialog.text);
  entry_->set_text(dialog.answer);
  entry_->set_visible(dialog.kind == PageDialog::Kind::prompt);
  silence_->set_active(false);
  silence_->set_visible(dialog.canBeSilenced());
  no_->set_label(words.no);
  no_->set_visible(*words.no);
  yes_->set_label(words.yes);
  // The answer that does nothing, for a key that was meant for the page.
  auto& first = entry_->get_visible() ? static_cast<Gtk::Widget&>(*entry_)
                : no_->get_visible()  ? *no_
                                      : *yes_;
  first.grab_focus();
}

void PageDialogView::answer(bool isYes) {
  answer_({.isYes = isYes, .text = entry_->get_text(), .silencesPage = silence_->get_active()});
}

} // namespace quorvel
