#include "e2e/stage/ClientTest.h"

#include <algorithm>
#include <iostream>

namespace quorvel::e2e {

std::string linkTo(const std::string& address, const std::string& attributes) {
  return "<a style='position:fixed;inset:0' href='" + address + "' " + attributes + ">Go</a>";
}

std::string buttonFor(const std::string& script) {
  return "<button style='position:fixed;inset:0;width:100%' onclick=\"" + script + "\">Go</button>";
}

std::string windowTitled(const std::string& title) {
  return outputOf({"xdotool", "search", "--onlyvisible", "--name", "^" + title + "$"});
}

Arguments lacking(const std::string& what, const std::vector<std::filesystem::path>& folders) {
  Arguments command = {QUORVEL_SURROUNDINGS, what};
  command.insert(command.end(), folders.begin(), folders.end());
  command.emplace_back("--");
  return command;
}

Client& ClientTest::launch(const Environment& environment, const Arguments& through) {
  client_.reset();
  client_ = std::make_unique<Client>(environment, through);
  return client();
}

Client& ClientTest::start(const Environment& environment, const Arguments& through) {
  const auto shownBefore = static_cast<int>(std::ranges::count(stage.reports(), "shown=/agent.html"));
  launch(environment, through);
  EXPECT_TRUE(eventually([&] { return client().window().has_value(); })) << client().said();
  waitForPage("/agent.html", shownBefore + 1);
  EXPECT_THAT(descendants(client().process().id(), "WebKitWebProces"), Not(IsEmpty()));
  expectConfined();
  return client();
}

void ClientTest::waitForPage(const std::string& path, int times) {
  EXPECT_TRUE(eventually([&] { return std::ranges::count(stage.reports(), "shown=" + path); }, Ge(times)))
      << path << " did not come on the screen";
  EXPECT_TRUE(eventually([&] { return !client().spins(); })) << "the spinner does not go";
}

void ClientTest::expectAddress(const std::string& address) {
  EXPECT_TRUE(eventually([&] { return client().address(); }, Eq(address)));
}

void ClientTest::expectHighlighted(const std::vector<std::string>& rows) {
  EXPECT_TRUE(eventually([&] { return client().highlighted(); }, Eq(rows)));
}

void ClientTest::quit() {
  expectConfined();
  client().type("ctrl+q");
  EXPECT_EQ(client().process().waitForEnd(), 0) << client().said();
}

void ClientTest::expectConfined() {
  const auto program = client().process().id();
  for (const auto page : descendants(program, "WebKitWebProces"))
    EXPECT_THAT(lacksOfSandbox(page, program), Eq(mayLack));
}

void ClientTest::TearDown() {
  if (client_ && !client().process().status())
    expectConfined();
  if (!HasFailure() || !client_)
    return;
  const std::filesystem::path folder = QUORVEL_FAILURES;
  std::filesystem::create_directories(folder);
  const auto picture =
      folder / (std::string(testing::UnitTest::GetInstance()->current_test_info()->name()) + ".png");
  stage.savePicture(picture);
  std::cerr << "A picture is in " << picture << ".\nThe program said:\n" << client().said();
  for (const auto& window : client().windows())
    std::cerr << "Its window:\n" << describe(window);
  for (const auto& request : stage.requests().requests())
    std::cerr << request.method << ' ' << request.host << request.target << '\n';
}

} // namespace quorvel::e2e
