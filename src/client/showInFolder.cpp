#include "client/showInFolder.h"

#include "client/openInSystem.h"

#include <giomm/dbusconnection.h>
#include <glibmm/convert.h>
#include <glibmm/miscutils.h>
#include <vector>

namespace quorvel {
namespace {

using Bus = Glib::RefPtr<Gio::DBus::Connection>;

void openFolderOf(const std::string& path) {
  openInSystem(Glib::filename_to_uri(Glib::path_get_dirname(path)));
}

/// As file managers agreed on it.
void askFileManager(const Bus& bus, const std::string& path) {
  const std::vector<Glib::ustring> files{Glib::filename_to_uri(path)};
  const auto question = Glib::VariantContainerBase::create_tuple(
      {Glib::Variant<std::vector<Glib::ustring>>::create(files), Glib::Variant<Glib::ustring>::create("")});
  const auto onAnswer = [bus, path](Glib::RefPtr<Gio::AsyncResult>& answer) {
    try {
      bus->call_finish(answer);
    } catch (const Glib::Error&) {
      openFolderOf(path);
    }
  };
  bus->call("/org/freedesktop/FileManager1", "org.freedesktop.FileManager1", "ShowItems", question, onAnswer,
            "org.freedesktop.FileManager1");
}

} // namespace

void showInFolder(const std::string& path) {
  const auto onBus = [path](Glib::RefPtr<Gio::AsyncResult>& found) {
    try {
      askFileManager(Gio::DBus::Connection::get_finish(found), path);
    } catch (const Glib::Error&) {
      openFolderOf(path);
    }
  };
  Gio::DBus::Connection::get(Gio::DBus::BusType::SESSION, onBus);
}

} // namespace quorvel
