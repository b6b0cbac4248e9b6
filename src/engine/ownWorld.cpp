#include "engine/ownWorld.h"

#include "engine/engineTexts.h"

#include <memory>
#include <utility>

namespace quorvel {
namespace {

constexpr auto world = "quorvel";

using Answer = std::function<void(const std::string&)>;

void tellAnswer(GObject* view, GAsyncResult* result, gpointer answer) {
  const std::unique_ptr<Answer> onAnswer(static_cast<Answer*>(answer));
  g_autoptr(GError) error = nullptr;
  g_autoptr(JSCValue) value =
      webkit_web_view_evaluate_javascript_finish(WEBKIT_WEB_VIEW(view), result, &error);
  if (g_error_matches(error, G_IO_ERROR, G_IO_ERROR_CANCELLED))
    return;
  g_autofree char* text = value ? jsc_value_to_string(value) : nullptr;
  (*onAnswer)(textOrNothing(text));
}

} // namespace

void runInPages(WebKitWebView* view, const OwnScript& script) {
  auto* content = webkit_web_view_get_user_content_manager(view);
  webkit_user_content_manager_register_script_message_handler(content, script.channel, world);
  auto* added =
      webkit_user_script_new_for_world(script.text, script.frames, script.time, world, nullptr, nullptr);
  webkit_user_content_manager_add_script(content, added);
  webkit_user_script_unref(added);
}

void askPage(WebKitWebView* view, const char* expression, GCancellable* question, Answer onAnswer) {
  auto answer = std::make_unique<Answer>(std::move(onAnswer));
  webkit_web_view_evaluate_javascript(view, expression, -1, world, nullptr, question, tellAnswer,
                                      answer.release());
}

} // namespace quorvel
