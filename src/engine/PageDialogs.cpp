#include "engine/PageDialogs.h"

#include "engine/shortened.h"

#include <glibmm/main.h>
#include <utility>

namespace quorvel {
namespace {

PageDialog::Kind kindOf(WebKitScriptDialog* dialog) {
  switch (webkit_script_dialog_get_dialog_type(dialog)) {
  case WEBKIT_SCRIPT_DIALOG_CONFIRM:
    return PageDialog::Kind::confirm;
  case WEBKIT_SCRIPT_DIALOG_PROMPT:
    return PageDialog::Kind::prompt;
  case WEBKIT_SCRIPT_DIALOG_BEFORE_UNLOAD_CONFIRM:
    return PageDialog::Kind::leave;
  case WEBKIT_SCRIPT_DIALOG_ALERT:
    break;
  }
  return PageDialog::Kind::alert;
}

void give(WebKitScriptDialog* dialog, const DialogAnswer& answer) {
  const auto kind = kindOf(dialog);
  if (kind == PageDialog::Kind::prompt && answer.isYes)
    webkit_script_dialog_prompt_set_text(dialog, answer.text.c_str());
  else if (kind == PageDialog::Kind::confirm || kind == PageDialog::Kind::leave)
    webkit_script_dialog_confirm_set_confirmed(dialog, answer.isYes);
}

/// What somebody says who wants to get on.
DialogAnswer shortestAnswer(WebKitScriptDialog* dialog) {
  return {.isYes = kindOf(dialog) == PageDialog::Kind::leave};
}

} // namespace

void PageDialogs::Release::operator()(WebKitScriptDialog* dialog) const {
  webkit_script_dialog_close(dialog);
  webkit_script_dialog_unref(dialog);
}

PageDialogs::PageDialogs(WebKitWebView* view, Owner owner) : view_(view), owner_(std::move(owner)) {
  const auto onDialog = +[](WebKitWebView*, WebKitScriptDialog* dialog, PageDialogs* self) -> gboolean {
    self->ask(dialog);
    return TRUE;
  };
  g_signal_connect(view_, "script-dialog", G_CALLBACK(onDialog), this);
  g_signal_connect_swapped(view_, "web-process-terminated",
                           G_CALLBACK(+[](PageDialogs* self) { self->dismiss(); }), this);
}

PageDialogs::~PageDialogs() {
  g_signal_handlers_disconnect_by_data(view_, this);
}

void PageDialogs::ask(WebKitScriptDialog* dialog) {
  Dialog asked(webkit_script_dialog_ref(dialog));
  if (isSilenced_ || owner_.isLeaving()) {
    dropLater(std::move(asked));
    return;
  }
  const bool isPrompt = kindOf(dialog) == PageDialog::Kind::prompt;
  const PageDialog shown{
      .kind = kindOf(dialog),
      .text = shortened(webkit_script_dialog_get_message(dialog), whereTextScrolls),
      .answer =
          isPrompt ? shortened(webkit_script_dialog_prompt_get_default_text(dialog), whereTextScrolls) : "",
      .number = ++count_};
  shown_ = std::move(asked);
  owner_.onChange(shown);
}

/// Only when the window has nothing else to do: a page that asks for ever would keep it from everything.
void PageDialogs::dropLater(Dialog dialog) {
  give(dialog.get(), shortestAnswer(dialog.get()));
  const std::shared_ptr<WebKitScriptDialog> kept = std::move(dialog);
  Glib::signal_idle().connect_once([kept] {}, Glib::PRIORITY_LOW);
}

void PageDialogs::answer(const DialogAnswer& answer) {
  if (!shown_)
    return;
  isSilenced_ = isSilenced_ || answer.silencesPage;
  give(shown_.get(), answer);
  // The page may ask again at once.
  const auto answered = std::exchange(shown_, nullptr);
  owner_.onChange(std::nullopt);
}

void PageDialogs::dismiss() {
  if (shown_)
    answer(shortestAnswer(shown_.get()));
}

void PageDialogs::startAfresh() {
  count_ = 0;
  isSilenced_ = false;
}

} // namespace quorvel
