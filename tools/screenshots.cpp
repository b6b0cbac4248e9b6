#include "programs/console/ConsoleApplication.h"
#include "support/DisplayLease.h"
#include "support/TemporaryFolder.h"
#include "support/TestWindow.h"

#include <array>
#include <filesystem>
#include <iostream>

using namespace quorvel;

namespace {

/// How large the content of the window is, below its header bar.
struct Size {
  int width, height;
};
constexpr std::array sizes{Size{1180, 760}, Size{1600, 1000}};

std::string fileName(WorkspaceSection section, Size size) {
  return "console-" + std::string(rawValue(section)) + "-" + std::to_string(size.width) + "x" +
         std::to_string(size.height) + ".png";
}

/// Each section of the console with the sample workspace, in the program's own window.
void takePictures(ConsoleApplication& console, const std::filesystem::path& folder, Size size) {
  auto& window = *console.get_windows().front();
  auto& content = *window.get_child();
  content.set_size_request(size.width, size.height);
  window.set_default_size(size.width, 1);
  if (!tests::eventually(
          [&] { return content.get_width() == size.width && content.get_height() == size.height; }))
    throw std::runtime_error("the window does not take its size");
  for (const auto section : allCases<WorkspaceSection>()) {
    console.store().selectedSection = section;
    tests::savePicture(window, folder / fileName(section, size));
  }
}

} // namespace

/// Saves a picture of every screen into a folder. Needs a display as large as the largest picture.
int main(int argc, char** argv) {
  if (argc != 2 || !std::filesystem::is_directory(argv[1])) {
    std::cerr << "usage: screenshots FOLDER" << std::endl;
    return 2;
  }
  // No preference of the user's shows, and no test has its window under this one.
  const tests::TemporaryFolder home;
  g_setenv("XDG_CONFIG_HOME", home.path.c_str(), true);
  const tests::DisplayLease display;
  const auto console = ConsoleApplication::create(Gio::Application::Flags::NON_UNIQUE);
  const std::filesystem::path folder = argv[1];
  console->signal_activate().connect([&] {
    Glib::signal_idle().connect_once([&] {
      for (const auto size : sizes)
        takePictures(*console, folder, size);
      console->quit();
    });
  });
  return console->run();
}
