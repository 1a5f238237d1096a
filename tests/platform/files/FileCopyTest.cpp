#include "platform/files/FileCopy.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <map>
#include <utility>

#include "support/TestDisks.h"
#include "support/TempFolder.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;

/// A readable stand-in for the bytes of a file.
std::string Digest(const std::string& bytes) {
  return bytes.size() < 40
             ? bytes
             : std::to_string(bytes.size()) + " bytes, " + std::to_string(std::hash<std::string>{}(bytes));
}

/// All that is in a folder: relative path and digest, "/" for folders, "-> target" for links.
std::map<std::string, std::string> Contents(const TempFolder& folder) {
  std::map<std::string, std::string> all;
  for (const auto& entry : fs::recursive_directory_iterator(folder.Path())) {
    const std::string name = entry.path().lexically_relative(folder.Path()).string();
    if (entry.is_symlink()) all[name] = "-> " + fs::read_symlink(entry.path()).string();
    else if (entry.is_directory()) all[name] = "/";
    else all[name] = Digest(folder.Get(name));
  }
  return all;
}

const std::string kVideo(300000, 'v');

/// A student with a video, its sidecar, a lesson and a link; and a place to go to.
void MakeStudent(const TempFolder& folder) {
  fs::create_directories(folder.Path("Ann/Smith, Jr./lessons"));
  fs::create_directories(folder.Path("Bob"));
  folder.Put("Ann/Smith, Jr./(001) DL.avi", kVideo);
  folder.Put("Ann/Smith, Jr./(001) DL.ved", "1XXXXXXX");
  folder.Put("Ann/Smith, Jr./lessons/One.avi", "lesson");
  fs::create_symlink("/etc", folder.Path("Ann/Smith, Jr./elsewhere"));
}

std::vector<CopyUnit> OneVideo(const TempFolder& folder) {
  return {{{folder.Path("Ann/Smith, Jr./(001) DL.avi"), folder.Path("Bob/New/(001) DL.avi")},
           {folder.Path("Ann/Smith, Jr./(001) DL.ved"), folder.Path("Bob/New/(001) DL.ved")}}};
}

std::vector<CopyUnit> WholeStudent(const TempFolder& folder) {
  return {{{folder.Path("Ann/Smith, Jr."), folder.Path("Bob/Smith, Jr.")}}};
}

TEST(CopyJob, CopiesAVideoAndItsSidecarWithTheirTimesIntoANewFolder) {
  TempFolder folder;
  MakeStudent(folder);
  const fs::path video = folder.Path("Ann/Smith, Jr./(001) DL.avi");
  const auto old = fs::last_write_time(video) - std::chrono::hours(10000);
  fs::last_write_time(video, old);
  fs::permissions(folder.Path("Ann/Smith, Jr./(001) DL.ved"), fs::perms::owner_read);

  CopyJob job(CopyJob::Kind::Copy, OneVideo(folder));
  int steps = 1;
  while (job.Step(100000) == CopyJob::State::Running) ++steps;
  ASSERT_EQ(job.Status(), CopyJob::State::Done) << job.Error();
  EXPECT_GT(steps, 4);  // in slices
  EXPECT_EQ(Digest(folder.Get("Bob/New/(001) DL.avi")), Digest(kVideo));
  EXPECT_EQ(folder.Get("Bob/New/(001) DL.ved"), "1XXXXXXX");
  EXPECT_EQ(job.Progress().bytesDone, job.Progress().bytesTotal);
  EXPECT_EQ(job.Progress().filesDone, 2);
  EXPECT_EQ(fs::last_write_time(folder.Path("Bob/New/(001) DL.avi")), old);
  const auto perms = fs::status(folder.Path("Bob/New/(001) DL.ved")).permissions();
  EXPECT_NE(perms & fs::perms::owner_write, fs::perms::none) << "what was read-only on a disc can be worked on";
}

TEST(CopyJob, MovesAStudentWithinADriveAndBetweenTwo) {
  for (const bool twoDrives : {false, true}) {
    SCOPED_TRACE(twoDrives);
    TempFolder folder;
    MakeStudent(folder);
    TwoDrives drives;
    CopyJob job(CopyJob::Kind::Move, WholeStudent(folder), twoDrives ? drives : RealDisk());
    ASSERT_EQ(RunToEnd(job), CopyJob::State::Done) << job.Error();
    const std::map<std::string, std::string> wanted = {{"Ann", "/"},
                                                       {"Bob", "/"},
                                                       {"Bob/Smith, Jr.", "/"},
                                                       {"Bob/Smith, Jr./(001) DL.avi", Digest(kVideo)},
                                                       {"Bob/Smith, Jr./(001) DL.ved", "1XXXXXXX"},
                                                       {"Bob/Smith, Jr./elsewhere", "-> /etc"},
                                                       {"Bob/Smith, Jr./lessons", "/"},
                                                       {"Bob/Smith, Jr./lessons/One.avi", "lesson"}};
    EXPECT_EQ(Contents(folder), wanted);
    EXPECT_EQ(job.Error(), "");
  }
}

TEST(CopyJob, AMoveBetweenDrivesRemovesOnlyWhatItCopied) {
  // Another workstation works on the student while the copy is under way, and just before the old one goes.
  class BusyDrives final : public TwoDrives {
   public:
    explicit BusyDrives(const TempFolder& folder) : folder_(folder) {}
    int RenameNew(const std::string& from, const std::string& to) override {
      const int result = TwoDrives::RenameNew(from, to);
      if (result == 0) folder_.Put("Ann/Smith, Jr./(001) DL.ved", "1XXXXXXX and more");
      return result;
    }

   private:
    const TempFolder& folder_;
  };
  TempFolder folder;
  MakeStudent(folder);
  const fs::path video = folder.Path("Ann/Smith, Jr./(001) DL.avi");
  fs::last_write_time(video, fs::last_write_time(video) - std::chrono::hours(1));
  BusyDrives drives(folder);
  CopyJob job(CopyJob::Kind::Move, WholeStudent(folder), drives);
  while (job.Progress().bytesDone == 0) ASSERT_EQ(job.Step(1000), CopyJob::State::Running) << job.Error();
  folder.Put("Ann/Smith, Jr./(001) DL.avi", std::string(kVideo.size(), 'w'));
  folder.Put("Ann/Smith, Jr./lessons/Two.avi", "just recorded");
  ASSERT_EQ(RunToEnd(job), CopyJob::State::Done) << job.Error();
  const auto after = Contents(folder);
  EXPECT_EQ(after.at("Ann/Smith, Jr./lessons/Two.avi"), "just recorded");
  EXPECT_EQ(after.at("Ann/Smith, Jr./(001) DL.ved"), "1XXXXXXX and more");
  EXPECT_TRUE(after.contains("Ann/Smith, Jr./(001) DL.avi")) << "what changed under the copy is in doubt";
  EXPECT_FALSE(after.contains("Ann/Smith, Jr./lessons/One.avi") || after.contains("Ann/Smith, Jr./elsewhere"));
  EXPECT_TRUE(after.contains("Bob/Smith, Jr./lessons/One.avi") && after.contains("Bob/Smith, Jr./(001) DL.ved"));
  EXPECT_NE(job.Error().find("\"Two.avi\" and 2 more came or changed while \"Smith, Jr.\" was moved"),
            std::string::npos)
      << job.Error();
}

TEST(CopyJob, ACancelTakesBackTheUnitUnderWayAndKeepsThoseThatAreDone) {
  TempFolder folder;
  MakeStudent(folder);
  std::vector<CopyUnit> units = OneVideo(folder);
  units.push_back({{folder.Path("Ann/Smith, Jr./(001) DL.avi"), folder.Path("Bob/Other/b.avi")}});
  CopyJob job(CopyJob::Kind::Copy, units);
  while (job.Progress().unitsDone < 1) ASSERT_EQ(job.Step(1 << 20), CopyJob::State::Running);
  job.Step(1000);
  job.Step(1000);
  ASSERT_GT(job.Progress().bytesDone, static_cast<std::int64_t>(kVideo.size() + 8));
  job.Cancel();
  EXPECT_EQ(job.Step(), CopyJob::State::Cancelled);
  EXPECT_EQ(Digest(folder.Get("Bob/New/(001) DL.avi")), Digest(kVideo));
  EXPECT_FALSE(EntryExists(folder.Path("Bob/Other")));
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path("Bob/New")), {}), 2);
}

TEST(CopyJob, NeverReplacesAndNeverFollowsLinks) {
  TempFolder folder;
  MakeStudent(folder);
  fs::create_directories(folder.Path("Bob/Smith, Jr."));
  folder.Put("Bob/Smith, Jr./keep.txt", "kept");
  const auto before = Contents(folder);
  CopyJob taken(CopyJob::Kind::Move, WholeStudent(folder));
  EXPECT_EQ(RunToEnd(taken), CopyJob::State::Failed);
  EXPECT_TRUE(taken.NameTaken());
  EXPECT_NE(taken.Error().find("Smith, Jr."), std::string::npos);
  CopyJob intoItself(CopyJob::Kind::Copy, {{{folder.Path("Ann"), folder.Path("Ann/Smith, Jr./Ann")}}});
  EXPECT_EQ(RunToEnd(intoItself), CopyJob::State::Failed);
  CopyJob linked(CopyJob::Kind::Copy, {{{folder.Path("Ann/Smith, Jr./elsewhere"), folder.Path("Bob/etc")}}});
  EXPECT_EQ(RunToEnd(linked), CopyJob::State::Failed);
  EXPECT_EQ(Contents(folder), before);
  // A name that another workstation takes at the last moment.
  CopyJob late(CopyJob::Kind::Copy, OneVideo(folder));
  while (late.Progress().bytesDone == 0) late.Step(1000);
  folder.Put("Bob/New/(001) DL.ved", "theirs");
  EXPECT_EQ(RunToEnd(late), CopyJob::State::Failed);
  EXPECT_TRUE(late.NameTaken());
  EXPECT_EQ(folder.Get("Bob/New/(001) DL.ved"), "theirs");
  EXPECT_FALSE(EntryExists(folder.Path("Bob/New/(001) DL.avi")));
}

TEST(CopyJob, AsksForRoomBeforeTheFirstByte) {
  TempFolder folder;
  fs::create_directories(folder.Path("Bob"));
  folder.Put("huge.avi", "");
  std::error_code failed;
  fs::resize_file(folder.Path("huge.avi"), std::uintmax_t{1} << 42, failed);  // a hole: takes no room itself
  if (failed) GTEST_SKIP() << "no file of this size here";
  CopyJob job(CopyJob::Kind::Copy, {{{folder.Path("huge.avi"), folder.Path("Bob/huge.avi")}}});
  EXPECT_EQ(RunToEnd(job), CopyJob::State::Failed);
  EXPECT_NE(job.Error().find("There is not enough room: 4194304 MB are needed"), std::string::npos) << job.Error();
  EXPECT_TRUE(fs::is_empty(folder.Path("Bob")));
}

// Whatever call fails, every byte of the source is somewhere under its own name, and no final name stands
// for a part of something.
TEST(CopyJob, LosesNothingWhicheverCallFails) {
  struct Case {
    const char* name;
    bool student;
    CopyJob::Kind kind;
    bool twoDrives;
  };
  using enum CopyJob::Kind;
  const Case cases[] = {{"copy a video", false, Copy, false},
                        {"move a video", false, Move, false},
                        {"import a video", false, CopyIn, false},
                        {"copy a student", true, Copy, false},
                        {"move a student", true, Move, false},
                        {"move a video to another drive", false, Move, true},
                        {"move a student to another drive", true, Move, true}};
  for (const Case& one : cases) {
    int call = 0;
    for (bool failed = true; failed && call < 200; ++call) {
      SCOPED_TRACE(one.name + std::string(", call ") + std::to_string(call));
      TempFolder folder;
      MakeStudent(folder);
      const auto before = Contents(folder);
      const std::vector<CopyUnit> units = one.student ? WholeStudent(folder) : OneVideo(folder);
      FailingDisk disk(call);
      TwoDrives drives(disk);
      CopyJob job(one.kind, units, one.twoDrives ? static_cast<IDisk&>(drives) : disk);
      RunToEnd(job);
      failed = disk.Failed();
      const auto after = Contents(folder);
      const bool done = job.Status() == CopyJob::State::Done;
      for (const CopyEntry& entry : units[0]) {
        for (const auto& [name, bytes] : before) {
          const std::string path = folder.Path(name);
          if (path != entry.from && !path.starts_with(entry.from + "/")) continue;
          const std::string moved =
              fs::path(entry.to + path.substr(entry.from.size())).lexically_relative(folder.Path()).string();
          const bool old = after.contains(name) && after.at(name) == bytes;
          const bool arrived = after.contains(moved) && after.at(moved) == bytes;
          EXPECT_TRUE(arrived || !after.contains(moved)) << moved;
          EXPECT_TRUE(old || (done && arrived && one.kind == Move)) << name << ": " << job.Error();
          EXPECT_TRUE(arrived || !done) << name;
        }
      }
      if (job.Status() == CopyJob::State::Failed) {
        EXPECT_NE(job.Error(), "");
        EXPECT_EQ(after, before) << job.Error();
      }
    }
    EXPECT_TRUE(call >= 2 && call < 200) << one.name;
  }
}

/// Changes one byte in the middle of the first video that passes by: on its way to the disk, or on its way back.
class LyingDisk final : public TwoDrives {
 public:
  enum class Lies { Writing, Reading };
  explicit LyingDisk(Lies when) : when_(when) {}

  int OpenSource(const std::string& path, bool follow) override {
    const int file = TwoDrives::OpenSource(path, follow);
    if (path.find(".part") != std::string::npos) copy_ = file;
    return file;
  }
  long Write(int file, const void* bytes, std::size_t count) override {
    std::string text(static_cast<const char*>(bytes), count);
    if (when_ == Lies::Writing) Spoil(text.data(), text.size());
    return TwoDrives::Write(file, text.data(), count);
  }
  long Read(int file, void* bytes, std::size_t count) override {
    const long got = TwoDrives::Read(file, bytes, count);
    if (when_ == Lies::Reading && file == copy_) Spoil(static_cast<char*>(bytes), static_cast<std::size_t>(got));
    return got;
  }

 private:
  void Spoil(char* bytes, std::size_t count) {
    if (count >= 1000 && !std::exchange(done_, true)) bytes[count / 2] ^= 1;
  }

  Lies when_;
  int copy_ = -1;
  bool done_ = false;
};

TEST(CopyJob, ACopyThatIsNotLikeItsOriginalGoesAndTheOriginalStays) {
  for (const LyingDisk::Lies when : {LyingDisk::Lies::Writing, LyingDisk::Lies::Reading}) {
    for (const CopyJob::Kind kind : {CopyJob::Kind::Move, CopyJob::Kind::CopyIn}) {
      SCOPED_TRACE(std::to_string(int(when)) + " " + std::to_string(int(kind)));
      TempFolder folder;
      MakeStudent(folder);
      const auto before = Contents(folder);
      LyingDisk disk(when);
      CopyJob lied(kind, WholeStudent(folder), disk);
      EXPECT_EQ(RunToEnd(lied), CopyJob::State::Failed);
      EXPECT_TRUE(lied.Error().starts_with("\"(001) DL.avi\" could not be ")) << lied.Error();
      EXPECT_NE(lied.Error().find("not what was written"), std::string::npos) << lied.Error();
      EXPECT_EQ(Contents(folder), before);
      CopyJob again(kind, WholeStudent(folder), disk);
      EXPECT_EQ(RunToEnd(again), CopyJob::State::Done) << again.Error();
      EXPECT_EQ(again.Progress().bytesDone, again.Progress().bytesTotal);
      EXPECT_EQ(Digest(folder.Get("Bob/Smith, Jr./(001) DL.avi")), Digest(kVideo));
    }
  }
}

TEST(CopyJob, WhatAFileSystemSharesIsNotReadAgain) {
  class SharingDisk final : public TwoDrives {
   public:
    int Clone(int from, int to) override {
      while (Transfer(from, to, 1 << 20) > 0) {
      }
      return 0;
    }
    long Read(int, void*, std::size_t) override {
      ADD_FAILURE() << "read";
      return -1;
    }
  };
  TempFolder folder;
  MakeStudent(folder);
  SharingDisk disk;
  CopyJob job(CopyJob::Kind::Move, OneVideo(folder), disk);
  EXPECT_EQ(RunToEnd(job), CopyJob::State::Done) << job.Error();
  EXPECT_EQ(job.Progress().bytesDone, job.Progress().bytesTotal);
  EXPECT_EQ(Digest(folder.Get("Bob/New/(001) DL.avi")), Digest(kVideo));
  EXPECT_FALSE(EntryExists(folder.Path("Ann/Smith, Jr./(001) DL.avi")));
}

TEST(RenameEntry, TakesAFreeNameOnly) {
  TempFolder folder;
  folder.Put("a.avi", "a");
  folder.Put("b.avi", "b");
  EXPECT_NE(RenameEntry(folder.Path("a.avi"), folder.Path("b.avi")).Why(), "");
  EXPECT_EQ(folder.Get("b.avi"), "b");
  EXPECT_TRUE(RenameEntry(folder.Path("a.avi"), folder.Path("A.avi")));
  EXPECT_EQ(folder.Get("A.avi"), "a");
  EXPECT_FALSE(RenameEntry(folder.Path("gone.avi"), folder.Path("c.avi")));
  // Two links to one file are two names, whatever their case.
  fs::create_hard_link(folder.Path("b.avi"), folder.Path("c.avi"));
  EXPECT_FALSE(RenameEntry(folder.Path("b.avi"), folder.Path("c.avi")));
  EXPECT_TRUE(EntryExists(folder.Path("b.avi")));
}

TEST(RemoveTree, RemovesLinksAndNotWhatTheyPointAt) {
  TempFolder folder;
  fs::create_directories(folder.Path("out"));
  folder.Put("out/keep.avi", "kept");
  fs::create_directories(folder.Path("Ann/lessons"));
  folder.Put("Ann/lessons/.hidden", "");
  fs::create_directory_symlink(folder.Path("out"), folder.Path("Ann/link"));
  EXPECT_TRUE(RemoveTree(folder.Path("Ann")));
  EXPECT_FALSE(EntryExists(folder.Path("Ann")));
  EXPECT_EQ(folder.Get("out/keep.avi"), "kept");
  EXPECT_TRUE(RemoveTree(folder.Path("Ann")));  // gone already
}

}  // namespace
}  // namespace kinalyx::test
