#include "brand/StyleSheet.h"
#include "programs/console/ConsoleColumns.h"
#include "support/TemporaryFolder.h"
#include "support/TestWindow.h"

#include <array>
#include <iostream>

using namespace quorvel;

namespace {

struct Size {
  int width, height;
};
constexpr std::array sizes{Size{1180, 760}, Size{1600, 1000}};

std::string fileName(WorkspaceSection section, Size size) {
  return "console-" + std::string(rawValue(section)) + "-" + std::to_string(size.width) + "x" +
         std::to_string(size.height) + ".png";
}

/// Each section of the console with the sample workspace.
void takePictures(const std::filesystem::path& folder, Size size) {
  quorvel::tests::TemporaryFolder settings;
  Preferences preferences(settings.path / "preferences.ini");
  WorkspaceStore store;
  ConsoleColumns columns(store, preferences);
  quorvel::tests::TestWindow window(columns, size.width, size.height);
  for (const auto section : allCases<WorkspaceSection>()) {
    store.selectedSection = section;
    window.savePicture(folder / fileName(section, size));
  }
}

} // namespace

/// Saves a picture of every screen into a folder. Needs a display as large as the largest picture.
int main(int argc, char** argv) {
  if (argc != 2 || !std::filesystem::is_directory(argv[1])) {
    std::cerr << "usage: quorvel-screenshots FOLDER" << std::endl;
    return 2;
  }
  if (!gtk_init_check()) {
    std::cerr << "quorvel-screenshots needs a display, and found none." << std::endl;
    return 1;
  }
  Gtk::Application::create();
  installStyle();
  for (const auto size : sizes)
    takePictures(argv[1], size);
}
