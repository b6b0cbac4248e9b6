#include "unit/preferences/PreferencesFixture.h"

#include <fcntl.h>
#include <list>
#include <sys/file.h>

namespace quorvel {
namespace {

using ::testing::ElementsAre;

TEST_F(PreferencesTest, OnAFreshAccountEverySwitchIsOnAndNothingIsMade) {
  const Preferences preferences(file);
  for (const auto key : allCases<Key>())
    EXPECT_TRUE(preferences.isOn(key)) << rawValue(key);
  EXPECT_FALSE(fs::exists(folder)) << "not even the folder";
}

TEST_F(PreferencesTest, AFlippedSwitchIsInTheFileAtOnceAndAlone) {
  Preferences preferences(file);
  preferences.set(Key::showInspector, false);
  EXPECT_FALSE(preferences.isOn(Key::showInspector));
  EXPECT_EQ(written(), "[Preferences]\nQuorvel.showInspector=false\n");
  EXPECT_THAT(namesInFolder(), ElementsAre("preferences.ini")) << "nothing else is left behind";
}

TEST_F(PreferencesTest, TheFolderAndTheFileAreTheUsersAlone) {
  Preferences preferences(file);
  preferences.set(Key::showInspector, false);
  EXPECT_EQ(mode(folder), 0700u);
  EXPECT_EQ(mode(file), 0600u);
}

TEST_F(PreferencesTest, SettingASwitchToWhatItShowsWritesAndAnnouncesNothing) {
  Preferences preferences(file);
  int announcements = 0;
  preferences.objectWillChange().connect([&] { ++announcements; });
  preferences.set(Key::showInspector, true);
  EXPECT_EQ(announcements, 0);
  EXPECT_FALSE(fs::exists(file));
}

TEST_F(PreferencesTest, AFlipIsAnnouncedOnceBeforeItTakesEffect) {
  Preferences preferences(file);
  std::vector<bool> seen;
  preferences.objectWillChange().connect([&] { seen.push_back(preferences.isOn(Key::showInspector)); });
  preferences.set(Key::showInspector, false);
  EXPECT_THAT(seen, ElementsAre(true));
}

TEST_F(PreferencesTest, EverySwitchIsRememberedUnderItsOwnKey) {
  for (const auto flipped : allCases<Key>()) {
    fs::remove(file);
    Preferences(file).set(flipped, false);
    EXPECT_EQ(written(), "[Preferences]\n" + std::string(rawValue(flipped)) + "=false\n");
    const Preferences later(file);
    for (const auto key : allCases<Key>())
      EXPECT_EQ(later.isOn(key), key != flipped) << rawValue(key);
  }
}

TEST_F(PreferencesTest, ASwitchFlippedBackStaysInTheFile) {
  Preferences preferences(file);
  preferences.set(Key::showInspector, false);
  preferences.set(Key::showInspector, true);
  EXPECT_EQ(written(), "[Preferences]\nQuorvel.showInspector=true\n");
}

TEST_F(PreferencesTest, GarbageCountsAsAbsentAndSurvivesTheNextWrite) {
  write("\xff\xfe rubbish\n# "
        "mine\n[Preferences]\nQuorvel.showInspector=maybe\nQuorvel.keepActivityHistory=false\n");
  Preferences preferences(file);
  EXPECT_TRUE(preferences.isOn(Key::showInspector));
  EXPECT_FALSE(preferences.isOn(Key::keepActivityHistory));
  preferences.set(Key::dailyBriefEnabled, false);
  EXPECT_EQ(written(), "\xff\xfe rubbish\n# mine\n[Preferences]\nQuorvel.showInspector=maybe\n"
                       "Quorvel.keepActivityHistory=false\nQuorvel.dailyBriefEnabled=false\n");
}

TEST_F(PreferencesTest, ADeletedKeyIsOnAgain) {
  write("[Preferences]\nQuorvel.showInspector=false\nQuorvel.dailyBriefEnabled=false\n");
  const Preferences preferences(file);
  ASSERT_FALSE(preferences.isOn(Key::showInspector));
  write("[Preferences]\nQuorvel.dailyBriefEnabled=false\n");
  EXPECT_TRUE(eventually([&] { return preferences.isOn(Key::showInspector); }));
  EXPECT_FALSE(preferences.isOn(Key::dailyBriefEnabled));
}

TEST_F(PreferencesTest, WithTheFileDeletedEverySwitchIsOnAgain) {
  write("[Preferences]\nQuorvel.showInspector=false\n");
  const Preferences preferences(file);
  fs::remove(file);
  EXPECT_TRUE(eventually([&] { return preferences.isOn(Key::showInspector); }));
}

TEST_F(PreferencesTest, AFlipAfterTheFolderWasDeletedMakesItAgain) {
  Preferences preferences(file);
  preferences.set(Key::showInspector, false);
  fs::remove_all(folder);
  preferences.set(Key::dailyBriefEnabled, false);
  EXPECT_THAT(written(), ::testing::HasSubstr("Quorvel.dailyBriefEnabled=false\n"));
}

TEST_F(PreferencesTest, TwoWindowsWithTheSameFileFollowEachOther) {
  Preferences one(file);
  Preferences other(file);
  one.set(Key::showInspector, false);
  EXPECT_TRUE(eventually([&] { return !other.isOn(Key::showInspector); }));
  other.set(Key::showInspector, true);
  EXPECT_TRUE(eventually([&] { return one.isOn(Key::showInspector); }));
}

TEST_F(PreferencesTest, AChangeFromOutsideIsAnnouncedBeforeItTakesEffectAndTheOwnIsNotAnnouncedAgain) {
  Preferences preferences(file);
  std::vector<std::pair<bool, bool>> seen;
  preferences.objectWillChange().connect([&] {
    seen.emplace_back(preferences.isOn(Key::showInspector), preferences.isOn(Key::dailyBriefEnabled));
  });
  preferences.set(Key::showInspector, false);
  peerFlips(Key::dailyBriefEnabled);
  ASSERT_TRUE(eventually([&] { return !preferences.isOn(Key::dailyBriefEnabled); }));
  EXPECT_THAT(seen, ElementsAre(std::pair(true, true), std::pair(false, true)));
}

TEST_F(PreferencesTest, AnotherProgramSeesAFlipAtOnce) {
  Peer peer({file, "follow", "Quorvel.showInspector"});
  ASSERT_EQ(peer.nextLine(), "ready\n");
  Preferences(file).set(Key::showInspector, false);
  EXPECT_EQ(peer.lastWords(), "off\n");
}

TEST_F(PreferencesTest, AFlipKeepsWhatAnotherProgramWroteSinceTheLastRead) {
  Preferences preferences(file);
  EXPECT_EQ(peerFlips(Key::keepActivityHistory), "off\n");
  ASSERT_TRUE(preferences.isOn(Key::keepActivityHistory)) << "the main loop has not told us yet";
  preferences.set(Key::showInspector, false);
  EXPECT_EQ(written(), "[Preferences]\nQuorvel.keepActivityHistory=false\nQuorvel.showInspector=false\n");
  EXPECT_FALSE(preferences.isOn(Key::keepActivityHistory));
}

TEST_F(PreferencesTest, ProgramsThatFlipDifferentKeysAtTheSameTimeLoseNothing) {
  const auto keys = allCases<Key>();
  std::list<Peer> peers;
  for (const auto key : keys)
    peers.emplace_back(std::vector<std::string>{file, "flip", std::string(rawValue(key)), "51"});
  for (auto& peer : peers)
    EXPECT_EQ(peer.lastWords(), "off\n");
  const Preferences preferences(file);
  for (const auto key : keys)
    EXPECT_FALSE(preferences.isOn(key)) << rawValue(key);
  EXPECT_THAT(namesInFolder(), ElementsAre("preferences.ini"));
}

TEST_F(PreferencesTest, WhileAnotherProgramHoldsTheLockASwitchWorksInMemoryAndIsWrittenWithTheNext) {
  fs::create_directories(folder);
  Preferences preferences(file);
  const int lock = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  ASSERT_EQ(::flock(lock, LOCK_EX), 0);
  preferences.set(Key::showInspector, false);
  EXPECT_FALSE(preferences.isOn(Key::showInspector));
  EXPECT_FALSE(fs::exists(file));
  ::close(lock);
  preferences.set(Key::dailyBriefEnabled, false);
  EXPECT_EQ(written(), "[Preferences]\nQuorvel.showInspector=false\nQuorvel.dailyBriefEnabled=false\n");
}

TEST_F(PreferencesTest, InAReadOnlyFolderASwitchWorksInMemoryAndTheFileStaysAsItIs) {
  const std::string before = "[Preferences]\nQuorvel.showInspector=false\n";
  write(before);
  fs::permissions(folder, fs::perms(0555));
  Preferences preferences(file);
  {
    const WithoutRights scope;
    preferences.set(Key::dailyBriefEnabled, false);
  }
  EXPECT_FALSE(preferences.isOn(Key::dailyBriefEnabled));
  EXPECT_EQ(written(), before);
  fs::permissions(folder, fs::perms(0755));
  EXPECT_THAT(namesInFolder(), ElementsAre("preferences.ini"));
}

TEST_F(PreferencesTest, AWriteProtectedFileIsNotReplaced) {
  const std::string before = "[Preferences]\nQuorvel.showInspector=false\n";
  write(before);
  fs::permissions(file, fs::perms(0444));
  fs::permissions(folder, fs::perms(0777));
  Preferences preferences(file);
  {
    const WithoutRights scope;
    preferences.set(Key::dailyBriefEnabled, false);
  }
  EXPECT_FALSE(preferences.isOn(Key::dailyBriefEnabled));
  EXPECT_EQ(written(), before);
}

TEST_F(PreferencesTest, AFileThatMayNotBeReadCountsAsAbsentAndIsNotReplaced) {
  const std::string before = "[Preferences]\nQuorvel.showInspector=false\n";
  write(before);
  fs::permissions(file, fs::perms(0));
  fs::permissions(folder, fs::perms(0777));
  {
    const WithoutRights scope;
    Preferences preferences(file);
    EXPECT_TRUE(preferences.isOn(Key::showInspector));
    preferences.set(Key::dailyBriefEnabled, false);
    EXPECT_FALSE(preferences.isOn(Key::dailyBriefEnabled));
  }
  fs::permissions(file, fs::perms(0600));
  EXPECT_EQ(written(), before);
}

TEST_F(PreferencesTest, OnAFullDiskTheFileStaysWholeAndTheFlipIsWrittenWithTheNextThatFits) {
  const std::string before = "[Preferences]\nQuorvel.showInspector=false\n";
  write(before);
  Preferences preferences(file);
  {
    const FullDisk scope(before.size() + 3);
    preferences.set(Key::dailyBriefEnabled, false);
  }
  EXPECT_FALSE(preferences.isOn(Key::dailyBriefEnabled));
  EXPECT_EQ(written(), before);
  EXPECT_THAT(namesInFolder(), ElementsAre("preferences.ini"));

  preferences.set(Key::keepActivityHistory, false);
  EXPECT_EQ(written(), before + "Quorvel.keepActivityHistory=false\nQuorvel.dailyBriefEnabled=false\n");
}

TEST_F(PreferencesTest, AFlipThatCouldNotBeWrittenYieldsToALaterOneFromOutside) {
  Preferences preferences(file);
  {
    const FullDisk scope(0);
    preferences.set(Key::showInspector, false);
  }
  write("[Preferences]\nQuorvel.showInspector=true\n");
  EXPECT_TRUE(eventually([&] { return preferences.isOn(Key::showInspector); }));
}

TEST_F(PreferencesTest, AFlipThatCouldNotBeWrittenIsNotWrittenOverALaterOneFromOutsideWithTheNext) {
  Preferences preferences(file);
  {
    const FullDisk scope(0);
    preferences.set(Key::showInspector, false);
  }
  write("[Preferences]\nQuorvel.showInspector=true\n");
  preferences.set(Key::dailyBriefEnabled, false);
  EXPECT_EQ(written(), "[Preferences]\nQuorvel.showInspector=true\nQuorvel.dailyBriefEnabled=false\n");
}

TEST_F(PreferencesTest, WithoutAPlaceForTheFolderASwitchWorksInMemory) {
  std::ofstream(root / "file") << "no folder";
  Preferences preferences(root / "file" / "quorvel" / "preferences.ini");
  preferences.set(Key::showInspector, false);
  EXPECT_FALSE(preferences.isOn(Key::showInspector));
  EXPECT_TRUE(preferences.isOn(Key::dailyBriefEnabled));
}

TEST_F(PreferencesTest, AFolderOrAPipeInTheFilesPlaceIsLeftAlone) {
  fs::create_directories(file);
  Preferences withFolder(file);
  withFolder.set(Key::showInspector, false);
  EXPECT_FALSE(withFolder.isOn(Key::showInspector));
  EXPECT_TRUE(fs::is_directory(file));

  const auto pipe = folder / "pipe.ini";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  Preferences withPipe(pipe);
  withPipe.set(Key::showInspector, false);
  EXPECT_FALSE(withPipe.isOn(Key::showInspector));
  EXPECT_TRUE(fs::is_fifo(pipe));
}

TEST_F(PreferencesTest, AFileTooLargeToBePreferencesIsLeftAlone) {
  write("");
  fs::resize_file(file, 8ull << 30);
  Preferences preferences(file);
  preferences.set(Key::showInspector, false);
  EXPECT_FALSE(preferences.isOn(Key::showInspector));
  EXPECT_EQ(fs::file_size(file), 8ull << 30);
}

TEST_F(PreferencesTest, ASymbolicLinkStaysAndWhatItPointsToIsWrittenAndWatched) {
  const auto target = root / "dotfiles" / "quorvel.ini";
  fs::create_directories(target.parent_path());
  std::ofstream(target) << "[Preferences]\nQuorvel.showInspector=false\n";
  fs::create_directories(folder);
  fs::create_symlink(target, file);

  Preferences preferences(file);
  EXPECT_FALSE(preferences.isOn(Key::showInspector));
  preferences.set(Key::dailyBriefEnabled, false);
  EXPECT_TRUE(fs::is_symlink(file));
  EXPECT_EQ(written(), "[Preferences]\nQuorvel.showInspector=false\nQuorvel.dailyBriefEnabled=false\n");
  std::ofstream(target) << "";
  EXPECT_TRUE(eventually([&] { return preferences.isOn(Key::showInspector); }));
}

TEST_F(PreferencesTest, TheStandardFileIsInTheUsersConfigurationFolder) {
  Peer peer({"standard", "flip", "Quorvel.showInspector", "1"}, {"XDG_CONFIG_HOME=" + root.string()});
  EXPECT_EQ(peer.lastWords(), "off\n");
  EXPECT_EQ(written(), "[Preferences]\nQuorvel.showInspector=false\n");
  EXPECT_EQ(mode(folder), 0700u);
}

TEST_F(PreferencesTest, WithoutAHomeASwitchWorksInMemory) {
  Peer peer({"standard", "flip", "Quorvel.showInspector", "1"}, {"HOME=/proc/no-home"});
  EXPECT_EQ(peer.lastWords(), "off\n");
}

} // namespace
} // namespace quorvel
