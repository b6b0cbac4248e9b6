#include "engine/pageGround.h"

#include "engine/ownWorld.h"

namespace quorvel {
namespace {

// A page that comes back from the history shows itself without being read once more.
constexpr auto look = R"({
  const isBare = style => style.backgroundImage == 'none' && /^rgba.*, 0\)$/.test(style.backgroundColor);
  const look = () => {
    const root = document.documentElement, styles = [root, document.body ?? root].map(each => getComputedStyle(each));
    const [red, green, blue] = styles[1].color.match(/[\d.]+/g).map(Number);
    if (styles.every(isBare) && red + green + blue < 384)
      webkit.messageHandlers.pageGround.postMessage('');
  };
  look();
  addEventListener('pageshow', look);
})";

constexpr GdkRGBA black{0, 0, 0, 1}, white{1, 1, 1, 1};

} // namespace

void keepGroundDark(WebKitWebView* view) {
  webkit_web_view_set_background_color(view, &black);
  const auto onLoad = +[](WebKitWebView* loading, WebKitLoadEvent event) {
    if (event == WEBKIT_LOAD_COMMITTED)
      webkit_web_view_set_background_color(loading, &black);
  };
  g_signal_connect(view, "load-changed", G_CALLBACK(onLoad), nullptr);

  auto* content = webkit_web_view_get_user_content_manager(view);
  const auto onBarePage = +[](WebKitUserContentManager*, JSCValue*, WebKitWebView* shown) {
    webkit_web_view_set_background_color(shown, &white);
  };
  g_signal_connect_object(content, "script-message-received::pageGround", G_CALLBACK(onBarePage), view,
                          GConnectFlags(0));
  runInPages(view, {look, "pageGround", WEBKIT_USER_CONTENT_INJECT_TOP_FRAME,
                    WEBKIT_USER_SCRIPT_INJECT_AT_DOCUMENT_END});
}

} // namespace quorvel
