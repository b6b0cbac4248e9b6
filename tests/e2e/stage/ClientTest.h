#pragma once

#include "e2e/stage/Client.h"
#include "e2e/stage/Stage.h"
#include "support/eventually.h"

#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <memory>

namespace quorvel::e2e {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::EndsWith;
using testing::Eq;
using testing::Ge;
using testing::Gt;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using tests::eventually;

inline const std::string origin = QUORVEL_ORIGIN;
inline const std::string agentPage = "/agent.html?source=mac_app";

/// A link that covers the whole page, so that a click anywhere follows it.
std::string linkTo(const std::string& address, const std::string& attributes = "");
/// Covers the whole page with a button that runs a script.
std::string buttonFor(const std::string& script);

/// The number of the window on screen with exactly this title, for xdotool; "" where there is none.
std::string windowTitled(const std::string& title);

/// What a program is started through so that something is lacking around it, or in these folders; the script
/// `surroundings` tells what that may be.
Arguments lacking(const std::string& what, const std::vector<std::filesystem::path>& folders = {});

/// A fresh account in a private network, and the program in it as soon as a test starts it.
class ClientTest : public testing::Test {
 protected:
  /// Starts the program and waits until its window and its first page are there.
  Client& start(const Environment& environment = {}, const Arguments& through = {});
  /// Starts the program and waits for nothing.
  Client& launch(const Environment& environment = {}, const Arguments& through = {});
  /// Ends the program as a user would.
  void quit();
  Client& client() { return *client_; }

  /// Expects every page's process to be in a sandbox, as each test does by itself at the start and at the
  /// end.
  void expectConfined();
  /// What this test's pages may lack of a sandbox. Root's need no user namespace to get the others.
  std::vector<std::string> mayLack =
      ::geteuid() == 0 ? std::vector<std::string>{"a user namespace"} : std::vector<std::string>();

  /// Waits until a reporting page has come on the screen for the n-th time and has ended loading.
  void waitForPage(const std::string& path, int times = 1);
  /// Expects the address field to come to show this.
  void expectAddress(const std::string& address);
  /// Expects exactly these sidebar rows to come to be highlighted.
  void expectHighlighted(const std::vector<std::string>& rows);

  void TearDown() override;

  Stage stage;

 private:
  std::unique_ptr<Client> client_;
};

} // namespace quorvel::e2e
