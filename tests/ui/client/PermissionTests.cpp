#include "ui/client/ModelTest.h"

namespace quorvel {
namespace {

struct Permission {
  const char* name;
  const char* request; ///< an expression that is a promise, which fails where it is refused
};

void PrintTo(const Permission& permission, std::ostream* out) {
  *out << permission.name;
}

class PermissionTest : public ModelTest, public ::testing::WithParamInterface<Permission> {};

/// Where nobody knows the place there is nothing to refuse.
void provideAPlace(WebKitWebContext* engine) {
  const auto onAsked = +[](WebKitGeolocationManager* manager) -> gboolean {
    auto* place = webkit_geolocation_position_new(52.5, 13.4, 10);
    webkit_geolocation_manager_update_position(manager, place);
    webkit_geolocation_position_free(place);
    return TRUE;
  };
  g_signal_connect(webkit_web_context_get_geolocation_manager(engine), "start", G_CALLBACK(onAsked), nullptr);
}

TEST_P(PermissionTest, IsRefused) {
  // Nor is there without a camera, a microphone and a screen.
  webkit_settings_set_enable_mock_capture_devices(webkit_web_view_get_settings(webView()), TRUE);
  provideAPlace(webkit_web_view_get_context(webView()));
  server.page("/asking.html", "<title>Asking</title><body><p>text</p></body>");
  auto& view = model->webView().widget();
  tests::TestWindow window(view, 600, 400);
  show("/asking.html");
  runScript(std::string("(async () => ") + GetParam().request +
            ")().then(() => { document.title = 'granted' }, () => { document.title = 'refused' }); 0");
  EXPECT_TRUE(tests::eventually([&] { return *model->title; }, testing::Eq("refused")));
}

INSTANTIATE_TEST_SUITE_P(
    Every, PermissionTest,
    ::testing::Values(
        Permission{"Place", "new Promise((yes, no) => navigator.geolocation.getCurrentPosition(yes, no))"},
        Permission{
            "Notices",
            "Notification.requestPermission().then(answer => answer == 'granted' || Promise.reject())"},
        Permission{"Camera", "navigator.mediaDevices.getUserMedia({video: true})"},
        Permission{"Microphone", "navigator.mediaDevices.getUserMedia({audio: true})"},
        Permission{"Screen", "navigator.mediaDevices.getDisplayMedia()"},
        // The engine never tells them to a page that has not asked for a device.
        Permission{"NamesOfDevices", "navigator.mediaDevices.getUserMedia({video: true}).catch(() => {})"
                                     ".then(() => navigator.mediaDevices.enumerateDevices()).then(all => "
                                     "all.some(device => device.label) || Promise.reject())"},
        Permission{"Clipboard", "navigator.clipboard.readText()"},
        Permission{"KeepingTheScreenOn", "navigator.wakeLock.request('screen')"},
        Permission{"Pointer", "new Promise((yes, no) => { document.onpointerlockchange = yes;"
                              "document.onpointerlockerror = no; document.body.requestPointerLock() })"},
        Permission{"WholeScreen", "document.body.requestFullscreen()"},
        Permission{"WholeScreenByItsOldName",
                   "new Promise((yes, no) => { document.onwebkitfullscreenchange = yes;"
                   "document.onwebkitfullscreenerror = no; document.body.webkitRequestFullscreen() })"}),
    [](const auto& permission) { return permission.param.name; });

using UnknownPermissionTest = ModelTest;

/// A page that can ask for them has to be refused as above.
TEST_F(UnknownPermissionTest, NoPageCanAskForProtectedMediaOrMidiDevices) {
  show("/agent.html");
  runScript("document.title = typeof navigator.requestMediaKeySystemAccess + typeof "
            "navigator.requestMIDIAccess; 0");
  EXPECT_TRUE(tests::eventually([&] { return *model->title; }, testing::Eq("undefinedundefined")));
}

} // namespace
} // namespace quorvel
