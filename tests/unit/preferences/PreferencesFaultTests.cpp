// What the machine and other programs can do to the preferences' file, its folder and its locks.

#include "unit/preferences/PreferencesFixture.h"

#include <chrono>
#include <fcntl.h>
#include <sys/file.h>

namespace quorvel {
namespace {

using namespace std::string_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

const std::string inspectorOff = "[Preferences]\nQuorvel.showInspector=false\n";

struct PreferencesFaultTest : PreferencesTest {
  bool showsInspectorOff() const { return !Preferences(file).isOn(Key::showInspector); }
  void putInPlace(const std::string& text) const {
    write("");
    std::ofstream(folder / "new", std::ios::binary) << text;
    fs::rename(folder / "new", file);
  }
};

/// A lock on a folder, held by somebody who will not let go of it.
class ForeignLock {
 public:
  explicit ForeignLock(const fs::path& folder)
      : folder_(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    EXPECT_EQ(::flock(folder_, LOCK_EX), 0);
  }
  ForeignLock(const ForeignLock&) = delete;
  ForeignLock& operator=(const ForeignLock&) = delete;
  ~ForeignLock() { ::close(folder_); }

 private:
  int folder_;
};

/// While it lives, new files and folders get no rights but these are taken away from what is asked for.
struct Umask {
  explicit Umask(mode_t mask) : before(::umask(mask)) {}
  ~Umask() { ::umask(before); }
  const mode_t before;
};

/// Before the system's library would notice, which looks for a missing folder every four seconds.
template <class Condition>
bool promptly(Condition holds) {
  return eventually(holds, ::testing::Eq(true), std::chrono::seconds(3));
}

// ---- Encodings -------------------------------------------------------------------------------------------

TEST_F(PreferencesFaultTest, NoEncodingMarkHidesAKey) {
  for (const std::string encoding : {"UTF-8", "UTF-16LE", "UTF-16BE", "UTF-32LE", "UTF-32BE"}) {
    write(Glib::convert("\ufeff" + inspectorOff, encoding, "UTF-8"));
    EXPECT_TRUE(showsInspectorOff()) << encoding;
  }
}

TEST_F(PreferencesFaultTest, AFlipKeepsTheEncodingOfTheFile) {
  for (const std::string encoding : {"UTF-8", "UTF-16LE", "UTF-16BE", "UTF-32LE", "UTF-32BE"}) {
    write(Glib::convert("\ufeff# caf\u00e9\n" + inspectorOff, encoding, "UTF-8"));
    Preferences(file).set(Key::dailyBriefEnabled, false);
    EXPECT_EQ(Glib::convert(written(), "UTF-8", encoding),
              "\ufeff# caf\u00e9\n" + inspectorOff + "Quorvel.dailyBriefEnabled=false\n")
        << encoding;
  }
}

TEST_F(PreferencesFaultTest, BytesThatBeginLikeAMarkByChanceHideNoKey) {
  for (const std::string mark : {"\xff\xfe", "\xfe\xff"}) {
    write(mark + " rubbish\n" + inspectorOff);
    EXPECT_TRUE(showsInspectorOff());
  }
}

TEST_F(PreferencesFaultTest, AFileBrokenInItsEncodingIsLeftAlone) {
  const auto before = Glib::convert("\ufeff" + inspectorOff, "UTF-16LE", "UTF-8") + "x";
  write(before);
  Preferences preferences(file);
  preferences.set(Key::dailyBriefEnabled, false);
  EXPECT_FALSE(preferences.isOn(Key::dailyBriefEnabled));
  EXPECT_EQ(written(), before);
}

// ---- Files that cannot be read or would not be read again
// --------------------------------------------------

TEST_F(PreferencesFaultTest, AFileThatAFlipWouldMakeTooLargeIsLeftAlone) {
  std::string before = inspectorOff;
  before.append("#").append(std::string(1024 * 1024 - before.size() - 2, 'x')).append("\n");
  write(before);
  Preferences preferences(file);
  EXPECT_FALSE(preferences.isOn(Key::showInspector)) << "as large as a file may be";
  preferences.set(Key::dailyBriefEnabled, false);
  EXPECT_FALSE(preferences.isOn(Key::dailyBriefEnabled));
  EXPECT_EQ(written(), before);
  EXPECT_TRUE(showsInspectorOff());
}

TEST_F(PreferencesFaultTest, NoMaskForNewFilesMakesOneThatItsOwnerCannotReadOrWrite) {
  for (const mode_t mask : {0777U, 0377U, 0477U, 0077U, 0U}) {
    fs::remove_all(folder);
    {
      const Umask scope(mask);
      Preferences(file).set(Key::showInspector, false);
      Preferences(file).set(Key::dailyBriefEnabled, false);
    }
    EXPECT_EQ(mode(folder), 0700u) << std::oct << mask;
    EXPECT_EQ(mode(file), 0600u) << std::oct << mask;
    EXPECT_EQ(written(), inspectorOff + "Quorvel.dailyBriefEnabled=false\n");
  }
}

TEST_F(PreferencesFaultTest, AFileThatCannotBeReadAnyMoreShowsTheDefaultsAndComesBack) {
  write(inspectorOff);
  Preferences preferences(file);
  fs::rename(file, folder / "aside");
  fs::create_directory(file);
  EXPECT_TRUE(eventually([&] { return preferences.isOn(Key::showInspector); }));
  preferences.set(Key::dailyBriefEnabled, false);
  EXPECT_TRUE(fs::is_directory(file));
  fs::remove(file);
  fs::rename(folder / "aside", file);
  EXPECT_TRUE(eventually([&] { return !preferences.isOn(Key::showInspector); }));
}

// ---- Links
// -------------------------------------------------------------------------------------------------

TEST_F(PreferencesFaultTest, ADanglingLinkStaysAndTheFileItNamesIsMade) {
  const auto target = root / "dotfiles" / "quorvel.ini";
  fs::create_directories(target.parent_path());
  fs::create_directories(folder);
  for (const auto& named : {target, fs::path("../dotfiles/quorvel.ini")}) {
    fs::create_symlink(named, file);
    Preferences(file).set(Key::showInspector, false);
    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_TRUE(fs::is_regular_file(target));
    EXPECT_EQ(written(), inspectorOff);
    fs::remove(target);
    fs::remove(file);
  }
}

TEST_F(PreferencesFaultTest, ALinkIntoAMissingFolderStaysAndNoFolderIsMadeForIt) {
  const auto target = root / "not-mounted" / "quorvel.ini";
  fs::create_directories(folder);
  fs::create_symlink(target, file);
  Preferences preferences(file);
  preferences.set(Key::showInspector, false);
  EXPECT_FALSE(preferences.isOn(Key::showInspector));
  EXPECT_TRUE(fs::is_symlink(file));
  EXPECT_FALSE(fs::exists(target.parent_path()));

  fs::create_directories(target.parent_path());
  EXPECT_TRUE(eventually([&] { return written() == inspectorOff; })) << "written once its place is there";
}

TEST_F(PreferencesFaultTest, LinksThatLeadInACircleStay) {
  fs::create_directories(folder);
  fs::create_symlink(folder / "other", file);
  fs::create_symlink(file, folder / "other");
  Preferences preferences(file);
  preferences.set(Key::showInspector, false);
  EXPECT_FALSE(preferences.isOn(Key::showInspector));
  EXPECT_TRUE(fs::is_symlink(file));
  EXPECT_THAT(namesInFolder(), UnorderedElementsAre("preferences.ini", "other"));
}

TEST_F(PreferencesFaultTest, ALinkThatTakesTheFilesPlaceWhileTheProgramRunsIsFollowed) {
  write(inspectorOff);
  Preferences preferences(file);
  const auto target = root / "dotfiles" / "quorvel.ini";
  fs::create_directories(target.parent_path());
  fs::rename(file, target);
  fs::create_symlink(target, file);
  preferences.set(Key::dailyBriefEnabled, false);
  EXPECT_TRUE(fs::is_symlink(file));
  EXPECT_EQ(written(), inspectorOff + "Quorvel.dailyBriefEnabled=false\n");

  ASSERT_TRUE(eventually([] { return !Glib::MainContext::get_default()->pending(); }));
  std::ofstream(target) << "";
  EXPECT_TRUE(eventually([&] { return preferences.isOn(Key::showInspector); }));
}

// ---- Locks
// -------------------------------------------------------------------------------------------------

TEST_F(PreferencesFaultTest, AForeignLockHoldsNoFlipUp) {
  using Clock = std::chrono::steady_clock;
  fs::create_directories(folder);
  Preferences preferences(file);
  const ForeignLock lock(folder);
  for (const auto key : allCases<Key>()) {
    const auto start = Clock::now();
    preferences.set(key, false);
    EXPECT_LT(Clock::now() - start, std::chrono::milliseconds(100)) << rawValue(key);
    EXPECT_FALSE(preferences.isOn(key));
  }
  EXPECT_FALSE(fs::exists(file));
}

TEST_F(PreferencesFaultTest, AFlipUnderAForeignLockIsWrittenOnceTheLockIsGone) {
  fs::create_directories(folder);
  Preferences preferences(file);
  {
    const ForeignLock lock(folder);
    preferences.set(Key::showInspector, false);
  }
  EXPECT_FALSE(fs::exists(file));
  EXPECT_TRUE(eventually([&] { return written() == inspectorOff; }));
}

TEST_F(PreferencesFaultTest, AFlipThatIsNotYetWrittenIsWrittenAtTheEnd) {
  fs::create_directories(folder);
  {
    Preferences preferences(file);
    const ForeignLock lock(folder);
    preferences.set(Key::showInspector, false);
  }
  EXPECT_EQ(written(), inspectorOff);
}

TEST_F(PreferencesFaultTest, AFlipThatFoundTheDiskFullIsWrittenOnceThereIsRoom) {
  fs::create_directories(folder);
  Preferences preferences(file);
  {
    const FullDisk scope(3);
    preferences.set(Key::showInspector, false);
  }
  EXPECT_TRUE(eventually([&] { return written() == inspectorOff; }));
}

// ---- Killed writes
// -----------------------------------------------------------------------------------------

TEST_F(PreferencesFaultTest, WhatAKilledWriteLeftIsRemovedAtTheNextStart) {
  write(inspectorOff);
  killAPeerThatWrites();
  EXPECT_EQ(written(), inspectorOff);
  ASSERT_EQ(namesInFolder().size(), 2u) << "the killed program left something";
  const Preferences preferences(file);
  EXPECT_THAT(namesInFolder(), ElementsAre("preferences.ini"));
}

TEST_F(PreferencesFaultTest, WhatAnotherProgramIsWritingIsNotRemoved) {
  write(inspectorOff);
  killAPeerThatWrites();
  const ForeignLock lock(folder);
  const Preferences preferences(file);
  EXPECT_EQ(namesInFolder().size(), 2u);
}

TEST_F(PreferencesFaultTest, FilesOfOthersInTheFolderStay) {
  write(inspectorOff);
  for (const auto* name :
       {"preferences.ini.backup", "preferences.ini.new", ".preferences.ini.swp", "preferences.ini~"})
    std::ofstream(folder / name) << "mine";
  const auto before = namesInFolder();
  Preferences(file).set(Key::dailyBriefEnabled, false);
  EXPECT_EQ(namesInFolder(), before);
}

// ---- Folders
// -----------------------------------------------------------------------------------------------

TEST_F(PreferencesFaultTest, AFileThatAppearsWithItsFoldersIsFollowed) {
  file = root / "config" / "deep" / "quorvel" / "preferences.ini";
  folder = file.parent_path();
  const Preferences preferences(file);
  write(inspectorOff);
  EXPECT_TRUE(promptly([&] { return !preferences.isOn(Key::showInspector); }));
}

TEST_F(PreferencesFaultTest, AFolderDeletedAndMadeAgainIsFollowed) {
  write(inspectorOff);
  const Preferences preferences(file);
  for (int i = 0; i < 3; ++i) {
    fs::remove_all(folder);
    ASSERT_TRUE(promptly([&] { return preferences.isOn(Key::showInspector); }));
    write(inspectorOff);
    ASSERT_TRUE(promptly([&] { return !preferences.isOn(Key::showInspector); }));
    write("");
    ASSERT_TRUE(promptly([&] { return preferences.isOn(Key::showInspector); }));
  }
}

TEST_F(PreferencesFaultTest, AFolderDeletedAndMadeAgainUnnoticedIsFollowed) {
  write(inspectorOff);
  const Preferences preferences(file);
  fs::remove_all(folder);
  write(inspectorOff);
  ASSERT_TRUE(promptly([] { return !Glib::MainContext::get_default()->pending(); }));
  write("");
  EXPECT_TRUE(promptly([&] { return preferences.isOn(Key::showInspector); }));
}

TEST_F(PreferencesFaultTest, AFolderThatAnotherOneReplacesIsFollowed) {
  write(inspectorOff);
  const Preferences preferences(file);
  fs::create_directories(root / "restored");
  std::ofstream(root / "restored" / "preferences.ini") << "[Preferences]\nQuorvel.dailyBriefEnabled=false\n";
  fs::rename(folder, root / "old");
  fs::rename(root / "restored", folder);
  EXPECT_TRUE(promptly(
      [&] { return preferences.isOn(Key::showInspector) && !preferences.isOn(Key::dailyBriefEnabled); }));
  write("");
  EXPECT_TRUE(promptly([&] { return preferences.isOn(Key::dailyBriefEnabled); }));
}

TEST_F(PreferencesFaultTest, AFolderFarAboveDeletedAndMadeAgainIsFollowed) {
  file = root / "home" / "config" / "quorvel" / "preferences.ini";
  folder = file.parent_path();
  write(inspectorOff);
  const Preferences preferences(file);
  fs::remove_all(root / "home");
  ASSERT_TRUE(promptly([&] { return preferences.isOn(Key::showInspector); }));
  write(inspectorOff);
  EXPECT_TRUE(promptly([&] { return !preferences.isOn(Key::showInspector); }));
}

} // namespace
} // namespace quorvel
