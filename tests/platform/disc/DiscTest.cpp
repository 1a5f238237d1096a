#include <csignal>
#include <cstdlib>
#include <filesystem>

#include <libburn/libburn.h>
#include <sys/resource.h>

#include "support/TempFolder.h"
#include "platform/disc/DiscDrives.h"
#include "platform/disc/HeldDrive.h"
#include "platform/disc/ImageSource.h"
#include "platform/files/Folders.h"

namespace kinalyx {
namespace {

namespace fs = std::filesystem;
using test::BytesOf;
using test::TempFolder;

/// Bytes that no two files share.
std::string Bytes(std::size_t count, unsigned seed) {
  std::string bytes(count, '\0');
  for (char& byte : bytes) {
    seed = seed * 1664525u + 1013904223u;
    byte = static_cast<char>(seed >> 24);
  }
  return bytes;
}

/// What takes an image apart again: a program that has nothing to do with this one.
bool HasXorriso() { return std::system("xorriso -version >/dev/null 2>&1") == 0; }

void Extract(const std::string& image, const std::string& folder, const char* tree) {
  const std::string command = std::string("xorriso -read_fs ") + tree + " -osirrox on -indev '" + image +
                              "' -extract / '" + folder + "' >/dev/null 2>&1";
  ASSERT_EQ(std::system(command.c_str()), 0);
}

class Disc : public ::testing::Test {
 protected:
  /// A folder as a disc holds it.
  DiscTree Tree() {
    fs::create_directories(source.Path("Videos"));
    DiscTree tree{.Label = "KINALYX", .Folders = {"Lessons", "Videos"}, .Files = {}};
    const auto add = [&](const std::string& name, const std::string& bytes) {
      tree.Files.push_back({source.Put(name, bytes), name});
    };
    add("index.html", "<!DOCTYPE html>");
    add("Videos/Swing 2026.avi", Bytes(3'000'001, 1));
    add("Videos/Łódź żółw.avi", Bytes(70'000, 2));
    add("Videos/Ελληνικά.mp4", Bytes(2048, 3));
    add("Videos/スイング (2).avi", Bytes(1, 4));
    add("Videos/empty.ved", "");
    add("Videos/" + std::string(86, 'n') + ".mp4.study", "{}");
    fs::permissions(source.Put("KinalyxViewer", "#!"), fs::perms::owner_all);
    tree.Files.push_back({source.Path("KinalyxViewer"), "KinalyxViewer"});
    return tree;
  }
  std::unique_ptr<IBurnRun> Burn(const DiscTree& tree, bool check = true) {
    return DriveAt(AddressOfImage(target.Path("disc.iso")))->Burn(tree, {.Speed = 0, .Erase = false, .Check = check});
  }
  static void Finish(IBurnRun& run) {
    while (run.Step()) {
    }
  }

  TempFolder source;
  TempFolder target;
};

TEST_F(Disc, HoldsEveryFileByteForByteUnderBothKindsOfNames) {
  const DiscTree tree = Tree();
  ASSERT_TRUE(DriveAt(AddressOfImage(target.Path("disc.iso")))->TestUnitReady()->Ready());
  const auto run = Burn(tree);
  std::vector<DriveState> states;
  while (run->Step())
    if (states.empty() || states.back() != run->State()) states.push_back(run->State());
  ASSERT_TRUE(run->How()) << run->How().Why();
  EXPECT_TRUE(run->Written());
  EXPECT_EQ(states.back(), DriveState::Checking);
  EXPECT_EQ(run->BytesDone(), run->BytesTotal());
  EXPECT_EQ(fs::file_size(target.Path("disc.iso")), static_cast<std::uintmax_t>(run->BytesTotal()));
  EXPECT_EQ(target.FileCount(), 1u);
  if (!HasXorriso()) GTEST_SKIP() << "xorriso is not installed";
  // Rock Ridge for Linux, Joliet for Windows.
  for (const char* names : {"norock", "any"}) {
    const std::string out = target.Path(names);
    Extract(target.Path("disc.iso"), out, names);
    for (const DiscEntry& file : tree.Files) EXPECT_EQ(BytesOf(out + "/" + file.To), BytesOf(file.From)) << file.To;
    EXPECT_TRUE(fs::is_directory(out + "/Lessons"));
  }
  EXPECT_NE(fs::status(target.Path("any/KinalyxViewer")).permissions() & fs::perms::owner_exec, fs::perms::none);
}

TEST_F(Disc, ThatIsCancelledLeavesNothingAndTheOldImage) {
  DiscTree tree = Tree();
  tree.Files.push_back({source.Put("large", std::string(40'000'000, 'x')), "large"});
  target.Put("disc.iso", "old");
  const auto run = Burn(tree);
  while (run->BytesDone() == 0 && run->Step()) {
  }
  run->Cancel();
  Finish(*run);
  EXPECT_EQ(run->How().Kind(), Fault::Cancelled);
  EXPECT_FALSE(run->Written());
  EXPECT_EQ(target.Get("disc.iso"), "old");
  EXPECT_EQ(target.FileCount(), 1u);
}

TEST_F(Disc, ThatIsDroppedInTheMiddleLeavesNothing) {
  DiscTree tree = Tree();
  tree.Files.push_back({source.Put("large", std::string(40'000'000, 'x')), "large"});
  auto run = Burn(tree);
  while (run->BytesDone() == 0 && run->Step()) {
  }
  run.reset();
  EXPECT_EQ(target.FileCount(), 0u);
}

TEST_F(Disc, WhoseFileIsNotThereFailsByItsName) {
  DiscTree tree = Tree();
  tree.Files.push_back({source.Path("gone.avi"), "Videos/gone.avi"});
  const auto run = Burn(tree);
  Finish(*run);
  EXPECT_EQ(run->How().Kind(), Fault::NotFound);
  EXPECT_NE(run->How().Why().find("gone.avi"), std::string::npos);
  EXPECT_EQ(target.FileCount(), 0u);
}

TEST_F(Disc, WhoseFileShrinksMeanwhileIsNotTakenForWhole) {
  // Larger than what is read ahead, so that there is still something to be read when it shrinks.
  const std::string path = source.Put("large", std::string(40'000'000, 'x'));
  DiscComplaint();
  auto image = ImageSource::Make({.Label = "K", .Folders = {}, .Files = {{path, "large"}}});
  ASSERT_TRUE(image) << image.Why();
  fs::resize_file(path, 100);
  burn::burn_source* bytes = (*image)->Get();
  std::vector<unsigned char> sector(2048);
  while (bytes->read(bytes, sector.data(), static_cast<int>(sector.size())) > 0) {
  }
  EXPECT_TRUE((*image)->Fetched() < (*image)->Bytes() || !DiscComplaint().empty());
}

TEST_F(Disc, ThatIsFullFailsAndSaysSo) {
  DiscTree tree = Tree();
  tree.Files.push_back({source.Put("large", std::string(40'000'000, 'x')), "large"});
  // A disk that takes no more: the system refuses what is longer.
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  const rlimit small{10'000'000, before.rlim_max};
  setrlimit(RLIMIT_FSIZE, &small);
  const auto run = Burn(tree);
  Finish(*run);
  setrlimit(RLIMIT_FSIZE, &before);
  EXPECT_FALSE(run->How());
  EXPECT_NE(run->How().Kind(), Fault::Cancelled);
  EXPECT_FALSE(run->Written());
  EXPECT_EQ(target.FileCount(), 0u);
}

TEST_F(Disc, WithoutAnyFileStillHasItsFolders) {
  const auto run = Burn({.Label = "EMPTY", .Folders = {"Lessons", "Videos"}, .Files = {}});
  Finish(*run);
  ASSERT_TRUE(run->How()) << run->How().Why();
  if (!HasXorriso()) GTEST_SKIP();
  Extract(target.Path("disc.iso"), target.Path("out"), "any");
  EXPECT_TRUE(fs::is_directory(target.Path("out/Lessons")));
  EXPECT_TRUE(fs::is_directory(target.Path("out/Videos")));
}

TEST(DiscDrives, AreListedWithoutBeingTouched) {
  TempFolder system;
  const auto drive = [&](const std::string& name, const std::string& type, const std::string& vendor,
                         const std::string& model) {
    const std::string device = system.Path("class/block/" + name + "/device");
    fs::create_directories(device);
    std::ofstream(device + "/type") << type << "\n";
    std::ofstream(device + "/vendor") << vendor << "\n";
    std::ofstream(device + "/model") << model << "\n";
  };
  drive("sr0", "5", "PIONEER ", "BD-RW   BDR-209M");
  drive("sr1", "5", "", "");
  drive("sda", "0", "ATA", "A disk");
  drive("sr2", "0", "ODD", "No disc");
  const auto drives = DiscDrives(system.Path(), "/nowhere");
  ASSERT_EQ(drives.size(), 2u);
  EXPECT_EQ(drives[0].Address, "/nowhere/sr0");
  EXPECT_EQ(drives[0].Name, "PIONEER BD-RW   BDR-209M (sr0)");
  EXPECT_EQ(drives[1].Name, "Disc drive (sr1)");
  EXPECT_TRUE(DiscDrives(system.Path("none")).empty());

  const auto gone = DriveAt(drives[0].Address)->TestUnitReady();
  EXPECT_EQ(gone.Kind(), Fault::NotFound);
  EXPECT_FALSE(DriveAt(drives[0].Address)->Eject());
  EXPECT_FALSE(DriveAt(AddressOfImage("/nowhere/disc.iso"))->TestUnitReady());
}

}  // namespace
}  // namespace kinalyx
