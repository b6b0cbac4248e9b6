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

TEST_P(PermissionTest, IsRefused) {
  // Without a camera there would be nothing to refuse.
  webkit_settings_set_enable_mock_capture_devices(webkit_web_view_get_settings(webView()), TRUE);
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
        Permission{"NamesOfDevices", "navigator.mediaDevices.enumerateDevices().then(all => "
                                     "all.some(device => device.label) || Promise.reject())"},
        Permission{"Clipboard", "navigator.clipboard.readText()"},
        Permission{"ProtectedMedia", "navigator.requestMediaKeySystemAccess('org.w3.clearkey', [{}])"},
        Permission{"MidiDevices", "navigator.requestMIDIAccess()"},
        Permission{"Pointer", "new Promise((yes, no) => { document.onpointerlockchange = yes;"
                              "document.onpointerlockerror = no; document.body.requestPointerLock() })"},
        Permission{"WholeScreen", "document.body.requestFullscreen()"},
        Permission{"WholeScreenByItsOldName",
                   "new Promise((yes, no) => { document.onwebkitfullscreenchange = yes;"
                   "document.onwebkitfullscreenerror = no; document.body.webkitRequestFullscreen() })"}),
    [](const auto& permission) { return permission.param.name; });

} // namespace
} // namespace quorvel
