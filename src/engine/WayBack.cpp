#include "engine/WayBack.h"

#include "engine/engineTexts.h"
#include "engine/ownWorld.h"

namespace quorvel {
namespace {

// What assistive technology presses in a page comes as no event of the view's, but as a click that no script
// can make.
constexpr auto listener = R"(addEventListener('click', event => {
  if (event.isTrusted)
    webkit.messageHandlers.pageClick.postMessage('');
}, true);)";

} // namespace

WayBack::WayBack(WebKitWebView* view) : view_(view) {
  const auto onEvent = +[](WebKitWebView*, WebKitLoadEvent event, WayBack* self) {
    if (event == WEBKIT_LOAD_COMMITTED)
      self->noteDocument();
  };
  g_signal_connect(view_, "load-changed", G_CALLBACK(onEvent), this);
  const auto onClick = +[](WayBack* self) { self->noteOwner(); };
  g_signal_connect_swapped(webkit_web_view_get_user_content_manager(view_),
                           "script-message-received::pageClick", G_CALLBACK(onClick), this);
  runInPages(view_, {listener, "pageClick", WEBKIT_USER_CONTENT_INJECT_ALL_FRAMES,
                     WEBKIT_USER_SCRIPT_INJECT_AT_DOCUMENT_START});
}

WayBack::~WayBack() {
  g_signal_handlers_disconnect_by_data(view_, this);
  g_signal_handlers_disconnect_by_data(webkit_web_view_get_user_content_manager(view_), this);
}

void WayBack::noteDocument() {
  hold();
  // A page about a failure has no entry of its own.
  isPageAlone_ = own_ && origin_ && addressOf(view_) == webkit_back_forward_list_item_get_uri(own_.get());
  whenItCame_.reset(isPageAlone_ ? webkit_web_view_get_session_state(view_) : nullptr);
}

void WayBack::hold() {
  own_ = referenceTo(webkit_back_forward_list_get_current_item(history()));
  origin_ = referenceTo(webkit_back_forward_list_get_back_item(history()));
}

WebKitBackForwardListItem* WayBack::target() const {
  g_autoptr(GList) later = webkit_back_forward_list_get_forward_list(history());
  const bool isBeyond =
      webkit_back_forward_list_get_current_item(history()) != own_.get() && !g_list_find(later, own_.get());
  return isPageAlone_ && isBeyond ? origin_.get() : nullptr;
}

bool WayBack::isLost() const {
  g_autoptr(GList) earlier = webkit_back_forward_list_get_back_list(history());
  return target() && !g_list_find(earlier, origin_.get());
}

WebKitBackForwardListItem* WayBack::restore() {
  webkit_web_view_restore_session_state(view_, whenItCame_.get());
  hold();
  return origin_.get();
}

} // namespace quorvel
