#include "platform/files/PartFiles.h"

#include "support/TempFolder.h"
#include "support/TestDisks.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;

std::string PartIn(const TempFolder& folder, const char* name) { return PartNameBeside(folder.Path(name)); }

void Write(const std::string& path) { std::ofstream(path) << "half a vid"; }

TEST(DeadParts, GoWhenNobodyHasTouchedThemForLong) {
  const TempFolder folder;
  const std::string video = PartIn(folder, "Swing, day 1.avi");
  const std::string student = PartIn(folder, "Joe Doe");
  Write(video);
  fs::create_directories(student + "/lessons");
  Write(student + "/lessons/First.avi");

  RemoveDeadParts(folder.Path());  // written just now: somebody is still at it
  EXPECT_TRUE(fs::exists(video) && fs::exists(student + "/lessons/First.avi"));
  ImpatientDisk impatient;
  RemoveDeadParts(folder.Path(), impatient);
  EXPECT_TRUE(fs::is_empty(folder.Path()));
}

TEST(DeadParts, NothingElseIsTakenForOne) {
  const TempFolder folder;
  const char* const names[] = {"Swing.avi",
                               ".Swing.avi.part",
                               ".Swing.avi.0123.part",
                               ".0123456789abcdef.part",
                               "Swing.avi.0123456789abcdef.part",
                               ".Swing.avi.0123456789ABCDEF.part",
                               ".Swing.avi.0123456789abcdef.part.renamed",
                               ".Swing.ved.new"};
  for (const char* name : names) folder.Put(name, "mine");
  // What lies below belongs to another folder's turn.
  fs::create_directories(folder.Path("lessons"));
  Write(PartNameBeside(folder.Path("lessons/First.avi")));
  ImpatientDisk impatient;
  RemoveDeadParts(folder.Path(), impatient);
  for (const char* name : names) EXPECT_EQ(folder.Get(name), "mine") << name;
  EXPECT_FALSE(fs::is_empty(folder.Path("lessons")));
  RemoveDeadParts(folder.Path("gone"), impatient);
}

}  // namespace
}  // namespace kinalyx::test
