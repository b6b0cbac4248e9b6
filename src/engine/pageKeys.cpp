#include "engine/pageKeys.h"

#include <memory>
#include <string>
#include <string_view>

namespace quorvel {
namespace {

constexpr auto channel = "pageKey", ownWorld = "quorvel";

// Being there before the page's scripts it hears of every key, and waits until they have had theirs.
constexpr auto script = R"(addEventListener('keydown', event => {
  const isArrow = event.key == 'ArrowLeft' || event.key == 'ArrowRight';
  const isHistoryKey = isArrow && event.altKey && !event.ctrlKey && !event.shiftKey && !event.repeat;
  const isUndoKey = event.key.toLowerCase() == 'z' && event.ctrlKey && !event.altKey;
  const meaning = isUndoKey ? (event.shiftKey ? 'Redo' : 'Undo') : event.key;
  if ((isHistoryKey || isUndoKey) && event.isTrusted && !event.metaKey)
    setTimeout(() => event.defaultPrevented || webkit.messageHandlers.pageKey.postMessage(meaning));
}, true);)";

/// Back is where the arrow of its button points.
void go(WebKitWebView* view, bool isLeft) {
  const bool isMirrored = gtk_widget_get_direction(GTK_WIDGET(view)) == GTK_TEXT_DIR_RTL;
  if (isLeft != isMirrored)
    webkit_web_view_go_back(view);
  else
    webkit_web_view_go_forward(view);
}

void answer(WebKitWebView* view, std::string_view key) {
  if (key == WEBKIT_EDITING_COMMAND_UNDO || key == WEBKIT_EDITING_COMMAND_REDO)
    webkit_web_view_execute_editing_command(view, std::string(key).c_str());
  else
    go(view, key == "ArrowLeft");
}

} // namespace

void answerKeysThePageLeaves(WebKitWebView* view) {
  auto* content = webkit_web_view_get_user_content_manager(view);
  const auto onKey = +[](WebKitUserContentManager*, JSCValue* key, WebKitWebView* shown) {
    const std::unique_ptr<char, decltype(&g_free)> name(jsc_value_to_string(key), g_free);
    answer(shown, name.get());
  };
  g_signal_connect_object(content, "script-message-received::pageKey", G_CALLBACK(onKey), view,
                          GConnectFlags(0));
  webkit_user_content_manager_register_script_message_handler(content, channel, ownWorld);
  auto* listener = webkit_user_script_new_for_world(script, WEBKIT_USER_CONTENT_INJECT_ALL_FRAMES,
                                                    WEBKIT_USER_SCRIPT_INJECT_AT_DOCUMENT_START, ownWorld,
                                                    nullptr, nullptr);
  webkit_user_content_manager_add_script(content, listener);
  webkit_user_script_unref(listener);
}

} // namespace quorvel
