#include "engine/NavigationPolicy.h"

#include <fstream>
#include <gtest/gtest.h>

namespace quorvel {
namespace {

TEST(NavigationPolicy, MailAndTelephoneLinksGoToTheSystemWhereverTheyAppear) {
  for (const char* address : {"mailto:help@quorvel.example", "tel:+441632960000"}) {
    EXPECT_EQ(choose({address}), NavigationChoice::system) << address;
    EXPECT_EQ(choose({address, true}), NavigationChoice::system) << address << " for a new window";
    EXPECT_EQ(choose({address, false, true}), NavigationChoice::system) << address << " dropped";
  }
}

TEST(NavigationPolicy, TheLetterCaseOfASchemeDoesNotMatter) {
  EXPECT_EQ(choose({"MAILTO:help@quorvel.example"}), NavigationChoice::system);
  EXPECT_EQ(choose({"Tel:+441632960000"}), NavigationChoice::system);
}

TEST(NavigationPolicy, OnlyTheWholeSchemeCounts) {
  EXPECT_EQ(choose({"mailtoo:x"}), NavigationChoice::view);
  EXPECT_EQ(choose({"telnet://host.example/"}), NavigationChoice::view);
  EXPECT_EQ(choose({"https://quorvel.example/mailto:x"}), NavigationChoice::view);
}

TEST(NavigationPolicy, EverythingElseStaysInTheViewOnAnyHost) {
  EXPECT_EQ(choose({"https://app.quorvel.example/pricing.html"}), NavigationChoice::view);
  EXPECT_EQ(choose({"https://elsewhere.example/"}), NavigationChoice::view);
  EXPECT_EQ(choose({"https://elsewhere.example/", true}), NavigationChoice::view);
}

TEST(NavigationPolicy, ANavigationWithoutAnAddressIsAllowed) {
  EXPECT_EQ(choose({""}), NavigationChoice::view);
  EXPECT_EQ(choose({"about:blank"}), NavigationChoice::view) << "pages fill such frames by script";
}

TEST(NavigationPolicy, AWindowWithoutAnAddressIsNothingToLoad) {
  EXPECT_EQ(choose({"", true}), NavigationChoice::nothing);
  EXPECT_EQ(choose({"about:blank", true}), NavigationChoice::nothing);
}

TEST(NavigationPolicy, AWindowIsNoWayToRunAScriptOrReadAFile) {
  EXPECT_EQ(choose({"javascript:alert(1)", true}), NavigationChoice::nothing);
  EXPECT_EQ(choose({"file:///etc/passwd", true}), NavigationChoice::nothing);
}

TEST(NavigationPolicy, AWindowHasToBeOnTheWeb) {
  for (const char* address :
       {"about:blank#x", "about:blank?x", "ABOUT:blank", "about:srcdoc", "about:memory", "data:text/html,x",
        "blob:https://app.quorvel.example/1", "view-source:https://app.quorvel.example/", "webkit://gpu",
        "ftp://host.example/", "resource:///org/x", "File:///etc/passwd", "httpss://host.example/", "x", ":"})
    EXPECT_EQ(choose({address, true}), NavigationChoice::nothing) << address;
  EXPECT_EQ(choose({"http://host.example/", true}), NavigationChoice::view);
  EXPECT_EQ(choose({"HTTPS://host.example/", true}), NavigationChoice::view);
}

TEST(NavigationPolicy, SchemesThatAPageThinksOfLeaveNothingBehind) {
  const auto memory = [] {
    long whole = 0, resident = 0; // in pages
    std::ifstream("/proc/self/statm") >> whole >> resident;
    return resident;
  };
  const auto before = memory();
  for (int i = 0; i < 2'000; ++i)
    EXPECT_EQ(choose({std::string(20'000, 'x') + std::to_string(i) + ":"}), NavigationChoice::view);
  EXPECT_LT(memory() - before, 2'000) << "forty million letters were seen";
}

TEST(NavigationPolicy, ADroppedFileDoesNotReplaceThePage) {
  EXPECT_EQ(choose({"file:///home/user/letter.pdf", false, true}), NavigationChoice::nothing);
  EXPECT_EQ(choose({"https://elsewhere.example/", false, true}), NavigationChoice::view);
}

} // namespace
} // namespace quorvel
