#include "startup/messageBuses.h"
#include "support/TemporaryFolder.h"

#include <filesystem>
#include <gio/gunixsocketaddress.h>
#include <gmock/gmock.h>
#include <sched.h>
#include <unistd.h>

namespace quorvel {
namespace {

namespace fs = std::filesystem;

/// A folder for sockets, some of which somebody listens at.
struct MessageBusesTest : ::testing::Test {
  ~MessageBusesTest() override { g_object_unref(listener); }

  std::string listenAt(const std::string& name) {
    const auto path = folder / name;
    GSocketAddress* place = g_unix_socket_address_new(path.c_str());
    EXPECT_TRUE(g_socket_listener_add_address(listener, place, G_SOCKET_TYPE_STREAM,
                                              G_SOCKET_PROTOCOL_DEFAULT, nullptr, nullptr, nullptr));
    g_object_unref(place);
    return "unix:path=" + path.string();
  }
  std::string nobodyAt(const std::string& name) const { return "unix:path=" + (folder / name).string(); }

  const tests::TemporaryFolder temporary;
  const fs::path folder = temporary.path;
  GSocketListener* listener = g_socket_listener_new();
};

TEST_F(MessageBusesTest, ABusThatAnswersIsUsable) {
  const auto bus = listenAt("bus");
  EXPECT_EQ(usableBusAddress(bus), bus);
  EXPECT_EQ(usableBusAddress(bus + ",guid=0123456789abcdef0123456789abcdef"),
            bus + ",guid=0123456789abcdef0123456789abcdef");
}

TEST_F(MessageBusesTest, ABusWithoutAFileIsUsable) {
  const auto name = folder.filename().string();
  GSocketAddress* place =
      g_unix_socket_address_new_with_type(name.c_str(), -1, G_UNIX_SOCKET_ADDRESS_ABSTRACT);
  g_socket_listener_add_address(listener, place, G_SOCKET_TYPE_STREAM, G_SOCKET_PROTOCOL_DEFAULT, nullptr,
                                nullptr, nullptr);
  g_object_unref(place);
  EXPECT_EQ(usableBusAddress("unix:abstract=" + name), "unix:abstract=" + name);
}

TEST_F(MessageBusesTest, AnAddressThatLeadsNowhereIsNot) {
  for (const auto& address :
       {nobodyAt("nobody"), nobodyAt("no folder/bus"), std::string("unix:path=/nonexistent"),
        std::string("unix:path=/nonexistent/bus"), std::string("unix:abstract=quorvel-nobody"),
        std::string("unix:"), std::string("unix:path="), std::string()})
    EXPECT_EQ(usableBusAddress(address), std::nullopt) << address;
}

TEST_F(MessageBusesTest, AFolderThatTheEngineWouldNotFindIsNotSharedWithItsHelper) {
  fs::create_directory(folder / "a b");
  listenAt("a b/bus");
  EXPECT_EQ(usableBusAddress("unix:path=" + folder.string() + "/a%20b/bus"), std::nullopt);
}

TEST_F(MessageBusesTest, TheRootFolderIsNeverShared) {
  fs::create_directory(folder / "run");
  listenAt("bus");
  listenAt("run/bus");
  const auto isUsableBelow = [this](const std::string& address) {
    if (::geteuid() != 0)
      ::unshare(CLONE_NEWUSER);
    std::_Exit(::chroot(folder.c_str()) == 0 && ::chdir("/") == 0 ? usableBusAddress(address).has_value()
                                                                  : -1);
  };
  EXPECT_EXIT(isUsableBelow("unix:path=/run/bus"), ::testing::ExitedWithCode(1), "");
  EXPECT_EXIT(isUsableBelow("unix:path=/bus"), ::testing::ExitedWithCode(0), "");
}

TEST_F(MessageBusesTest, OfSeveralAddressesTheFirstUsableOneIsTaken) {
  const auto bus = listenAt("bus");
  EXPECT_EQ(usableBusAddress(nobodyAt("nobody") + ";" + bus + ";" + listenAt("another")), bus);
}

TEST_F(MessageBusesTest, ABusOfAnotherKindIsLeftAlone) {
  EXPECT_EQ(usableBusAddress("tcp:host=bus.example,port=7"), "tcp:host=bus.example,port=7");
}

TEST_F(MessageBusesTest, TheEnvironmentNamesOnlyUsableBuses) {
  const auto bus = listenAt("bus");
  g_setenv("DBUS_SESSION_BUS_ADDRESS", nobodyAt("nobody").c_str(), true);
  g_setenv("AT_SPI_BUS_ADDRESS", nobodyAt("nobody").c_str(), true);
  keepUsableBuses();
  EXPECT_STREQ(g_getenv("DBUS_SESSION_BUS_ADDRESS"), "disabled:");
  EXPECT_STREQ(g_getenv("AT_SPI_BUS_ADDRESS"), "");

  g_setenv("DBUS_SESSION_BUS_ADDRESS", bus.c_str(), true);
  g_unsetenv("AT_SPI_BUS_ADDRESS");
  keepUsableBuses();
  EXPECT_STREQ(g_getenv("DBUS_SESSION_BUS_ADDRESS"), bus.c_str());
  EXPECT_EQ(g_getenv("AT_SPI_BUS_ADDRESS"), nullptr);
}

} // namespace
} // namespace quorvel
