#include "client/showInFolder.h"

#include "support/TemporaryFolder.h"

#include <fstream>
#include <giomm.h>

namespace quorvel {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::Eq;
using tests::eventually;

/// A file manager on the test's own bus, as long as this lives.
class FileManager {
 public:
  FileManager() : bus_(Gio::DBus::Connection::get_sync(Gio::DBus::BusType::SESSION)) {
    const auto node = Gio::DBus::NodeInfo::create_for_xml(
        "<node><interface name='org.freedesktop.FileManager1'><method name='ShowItems'>"
        "<arg name='URIs' type='as' direction='in'/><arg name='StartupId' type='s' direction='in'/>"
        "</method></interface></node>");
    object_ = bus_->register_object("/org/freedesktop/FileManager1", node->lookup_interface(), answers_);
    name_ = Gio::DBus::own_name(Gio::DBus::BusType::SESSION, "org.freedesktop.FileManager1", {},
                                [this](const auto&, const auto&) { isThere_ = true; }, {});
    EXPECT_TRUE(eventually([this] { return isThere_; }));
  }
  ~FileManager() {
    Gio::DBus::unown_name(name_);
    bus_->unregister_object(object_);
  }
  FileManager(const FileManager&) = delete;
  FileManager& operator=(const FileManager&) = delete;

  std::vector<std::string> shown;

 private:
  void onCall(const Glib::RefPtr<Gio::DBus::Connection>&, const Glib::ustring&, const Glib::ustring&,
              const Glib::ustring&, const Glib::ustring&, const Glib::VariantContainerBase& arguments,
              const Glib::RefPtr<Gio::DBus::MethodInvocation>& call) {
    Glib::Variant<std::vector<Glib::ustring>> files;
    arguments.get_child(files, 0);
    for (const auto& file : files.get())
      shown.push_back(file);
    call->return_value({});
  }

  Glib::RefPtr<Gio::DBus::Connection> bus_;
  Gio::DBus::InterfaceVTable answers_{sigc::mem_fun(*this, &FileManager::onCall)};
  bool isThere_ = false;
  guint object_ = 0, name_ = 0;
};

TEST(ShowInFolderTest, TheFileManagerIsToldOfTheFile) {
  FileManager manager;
  showInFolder("/tmp/some report.pdf");
  EXPECT_TRUE(eventually([&] { return manager.shown; }, ElementsAre("file:///tmp/some%20report.pdf")));
}

/// The desktop has a program for folders, as long as this lives.
class FolderProgram {
 public:
  FolderProgram() {
    const auto script = folder_.path / "open";
    std::ofstream(script) << "#!/bin/sh\nprintf '%s' \"$1\" >'" << (folder_.path / "opened").string()
                          << "'\n";
    permissions(script, fs::perms::owner_all);
    create_directories(entry_.parent_path());
    create_directories(defaults_.parent_path());
    std::ofstream(entry_) << "[Desktop Entry]\nType=Application\nName=Folders\nExec=" << script.string()
                          << " %f\n";
    std::ofstream(defaults_) << "[Default Applications]\ninode/directory=folders.desktop\n";
  }
  ~FolderProgram() {
    fs::remove(entry_);
    fs::remove(defaults_);
  }
  FolderProgram(const FolderProgram&) = delete;
  FolderProgram& operator=(const FolderProgram&) = delete;

  std::string opened() const {
    std::string line;
    std::getline(std::ifstream(folder_.path / "opened"), line);
    return line;
  }

 private:
  const tests::TemporaryFolder folder_;
  const fs::path entry_ = fs::path(Glib::get_user_data_dir()) / "applications/folders.desktop";
  const fs::path defaults_ = fs::path(Glib::get_user_config_dir()) / "mimeapps.list";
};

TEST(ShowInFolderTest, WhereNoneAnswersTheFolderIsOpened) {
  const FolderProgram program;
  const tests::TemporaryFolder folder;
  showInFolder((folder.path / "report.pdf").string());
  EXPECT_TRUE(eventually([&] { return program.opened(); }, Eq(folder.path.string())));
}

} // namespace
} // namespace quorvel
