#include "engine/PageKeys.h"

#include "engine/ownWorld.h"

#include <memory>
#include <optional>
#include <string_view>
#include <utility>

namespace quorvel {
namespace {

// Being there before the page's scripts it hears of every key, and waits until they have had theirs.
constexpr auto listener = R"(addEventListener('keydown', event => {
  const isArrow = event.key == 'ArrowLeft' || event.key == 'ArrowRight';
  const isHistoryKey = isArrow && event.altKey && !event.ctrlKey && !event.shiftKey && !event.repeat;
  const isUndoKey = event.key.toLowerCase() == 'z' && event.ctrlKey && !event.altKey;
  const meaning = isUndoKey ? (event.shiftKey ? 'Redo' : 'Undo') : event.key;
  if ((isHistoryKey || isUndoKey) && event.isTrusted && !event.metaKey)
    setTimeout(() => event.defaultPrevented || webkit.messageHandlers.pageKey.postMessage(meaning));
}, true);)";

} // namespace

PageKeys::PageKeys(WebKitWebView* view, TimerFunction startTimer, Owner owner)
    : view_(view), startTimer_(std::move(startTimer)), owner_(std::move(owner)),
      presses_(gtk_event_controller_key_new()) {
  listenInPages();
  listenBeforePages();
}

PageKeys::~PageKeys() {
  forgetQuestion();
  g_signal_handlers_disconnect_by_data(webkit_web_view_get_user_content_manager(view_), this);
  gtk_widget_remove_controller(GTK_WIDGET(view_), presses_);
}

void PageKeys::listenInPages() {
  auto* content = webkit_web_view_get_user_content_manager(view_);
  const auto onKey = +[](WebKitUserContentManager*, JSCValue* key, PageKeys* self) {
    const std::unique_ptr<char, decltype(&g_free)> name(jsc_value_to_string(key), g_free);
    self->answer(name.get());
  };
  g_signal_connect(content, "script-message-received::pageKey", G_CALLBACK(onKey), this);
  runInPages(view_, {listener, "pageKey", WEBKIT_USER_CONTENT_INJECT_ALL_FRAMES,
                     WEBKIT_USER_SCRIPT_INJECT_AT_DOCUMENT_START});
}

void PageKeys::answer(const char* key) {
  const std::string_view name(key);
  if (name == WEBKIT_EDITING_COMMAND_UNDO || name == WEBKIT_EDITING_COMMAND_REDO)
    webkit_web_view_execute_editing_command(view_, key);
  else
    owner_.onLeft(keyOfArrow(name == "ArrowLeft"));
}

/// Back is where the arrow of its button points.
PageKeys::Key PageKeys::keyOfArrow(bool isLeft) const {
  const bool isMirrored = gtk_widget_get_direction(GTK_WIDGET(view_)) == GTK_TEXT_DIR_RTL;
  return isLeft != isMirrored ? Key::back : Key::forward;
}

void PageKeys::listenBeforePages() {
  gtk_event_controller_set_propagation_phase(presses_, GTK_PHASE_CAPTURE);
  const auto onPress =
      +[](GtkEventControllerKey*, guint letter, guint, GdkModifierType held, PageKeys* self) -> gboolean {
    self->notePress(letter, held);
    return GDK_EVENT_PROPAGATE;
  };
  g_signal_connect(presses_, "key-pressed", G_CALLBACK(onPress), this);
  gtk_widget_add_controller(GTK_WIDGET(view_), presses_);
}

void PageKeys::notePress(guint letter, GdkModifierType held) {
  const auto modifiers = held & gtk_accelerator_get_default_mod_mask();
  const bool isArrow = letter == GDK_KEY_Left || letter == GDK_KEY_Right;
  std::optional<Key> key;
  if (isArrow && modifiers == GDK_ALT_MASK)
    key = keyOfArrow(letter == GDK_KEY_Left);
  else if (letter == GDK_KEY_F5 && modifiers == 0)
    key = Key::reload;
  // The first press is the one that is waited for.
  if (!key || timer_.connected())
    return;
  timer_ = startTimer_(patience, [this, unread = *key] {
    forgetQuestion();
    owner_.onUnread(unread);
  });
  ask();
}

/// The process reads keys and questions in their order.
void PageKeys::ask() {
  askPage(view_, "0", question_.get(), [this](const std::string&) { timer_.disconnect(); });
}

void PageKeys::forgetQuestion() {
  timer_.disconnect();
  g_cancellable_cancel(question_.get());
  question_.reset(g_cancellable_new());
}

} // namespace quorvel
