#include "library/forms/ImportExportPage.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "../library/LibraryFakes.h"
#include "../library/TempLibrary.h"
#include "FormDriver.h"
#include "FormsSupport.h"

namespace kinalyx {
namespace {

class ImportExportPageTest : public ::testing::Test, protected test::UsesApplication, protected test::FormDriver {
 protected:
  ImportExportPageTest() {
    library.File("Ann/Joe/one.avi", "1");
    library.File("Ann/Joe/one.ved", "d1");
    library.File("Ann/Joe/two.avi", "2");
    library.File("Ann/Kim/three.avi", "3");
    library.File("Bob/Sue/four.avi", "4");
    remembered = {"Ann", "Joe", library.Path("Ann/Joe")};
    page = std::make_unique<ImportExportPage>(library.host, library.settings, operations, remembered);
    page->resize(892, 700);
    page->show();
  }

  void UseDisk() {
    library.settings.Exporter = disk.Path();
    page->Open();
  }
  void Work() {
    for (int turn = 0; operations.Busy() && turn < 10000; ++turn) library.host.Advance(1);
    ASSERT_FALSE(operations.Busy());
  }

  test::TempLibrary library;
  test::TempFolder disk;
  LastStudentInfo remembered;
  test::FakeAnalysis analysis;
  LibraryOperations operations{library.host, library.settings, analysis, {JobRunner::On::HostTimer}};
  std::unique_ptr<ImportExportPage> page;

 private:
  QWidget& Form() override { return *page; }
};

TEST_F(ImportExportPageTest, CountsWhatIsChosenAndOpensWhereTheUserWas) {
  UseDisk();
  EXPECT_EQ(Rows("List4"), QStringList({"General Folder", "Ann", "Bob"}));
  EXPECT_EQ(Rows("List5"), QStringList({"Joe", "Kim"}));
  EXPECT_EQ(Rows("List6"), QStringList({"one", "two"}));
  EXPECT_EQ(Text("IECount0"), "0 Videos Selected");
  List("List6")->item(1)->setSelected(true);
  EXPECT_EQ(Text("IECount0"), "1 Video Selected");
  Press("IESelectAll0");
  EXPECT_EQ(Text("IECount0"), "2 Videos Selected");
  Choose("List5", "Kim");
  EXPECT_EQ(Text("IECount0"), "0 Videos Selected");
  Press("IEWhole0");
  EXPECT_EQ(Text("IECount0"), "3 Videos Selected");
  Choose("List4", "General Folder");
  EXPECT_EQ(Text("IECount0"), "0 Videos Selected");
  EXPECT_TRUE(Text("Label6").endsWith(" % Free"));
  EXPECT_EQ(remembered[1], "Joe");  // this page remembers nothing for others
}

TEST_F(ImportExportPageTest, WhatIsDroppedComesToWhoIsChosen) {
  disk.Put("Żółw.mp4", "5");
  UseDisk();
  QMimeData files;
  files.setUrls({QUrl::fromLocalFile(disk.Path("Żółw.mp4").c_str())});
  QDragEnterEvent over({50, 50}, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(page.get(), &over);
  EXPECT_EQ(Text("IEDisplay"), "Drop to copy the videos to Joe.");
  QDropEvent drop({50, 50}, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(page.get(), &drop);
  Work();
  EXPECT_EQ(test::TempLibrary::Read(library.Path("Ann/Joe/Żółw.mp4")), "5");
}

TEST_F(ImportExportPageTest, AWholeDatabaseGoesOutAndComesBack) {
  UseDisk();
  Press("IEWhole0");
  library.host.answers = {true};
  Press("IECmd0");
  Work();
  EXPECT_EQ(Text("IEDisplay"), "3 File(s) exported successfully!");
  Choose("List7", "Ann");
  Choose("List8", "Kim");
  EXPECT_EQ(Rows("List9"), QStringList("three"));

  std::filesystem::remove_all(library.Path("Ann"));
  page->Open();
  Choose("List7", "Ann");
  Press("IEWhole1");
  EXPECT_EQ(Text("IECount1"), "3 Videos Selected");
  Press("IECmd1");
  Work();
  EXPECT_EQ(Text("IEDisplay"), "3 File(s) Imported successfully!");
  EXPECT_EQ(Rows("List4"), QStringList({"General Folder", "Ann", "Bob"}));
  EXPECT_EQ(test::TempLibrary::Read(library.Path("Ann/Joe/one.ved")), "d1");
}

TEST_F(ImportExportPageTest, APlainFolderComesToTheChosenStudentAndIsShownThere) {
  disk.Put("a.avi", "a");
  disk.Put("two.avi", "another two");
  disk.Put("clip.MP4", "m");
  disk.Put("clip.mov", "m");
  disk.Put("letter.doc", "m");
  UseDisk();
  Press("IESelectAll1");
  Press("IECmd1");
  Work();
  EXPECT_EQ(Text("IEDisplay"), "4 File(s) Imported successfully!");
  EXPECT_EQ(Rows("List6"), QStringList({"a", "clip \u00B7 MOV", "clip \u00B7 MP4", "one", "two", "twod"}));
  EXPECT_EQ(Text("IECount0"), "4 Videos Selected");
  EXPECT_TRUE(List("List6")->item(5)->isSelected());
  EXPECT_EQ(test::TempLibrary::Read(library.Path("Ann/Joe/twod.avi")), "another two");
}

TEST_F(ImportExportPageTest, TellsOfADriveThatIsMissingOrIsTheLibraryItself) {
  library.settings.Exporter = disk.Path("gone");
  page->Open();
  EXPECT_TRUE(Text("Label6").startsWith("0% Free"));
  EXPECT_EQ(Text("IEDisplay"), "Disk Full or Not Available");
  Press("IESelectAll0");
  library.host.answers = {true};
  Press("IECmd0");
  EXPECT_NE(library.host.messages.back().find("cannot be reached"), std::string::npos);

  library.host.folders = {library.Root()};
  Press("Drive1Browse");
  EXPECT_EQ(library.settings.Exporter, library.Root());
  EXPECT_EQ(Text("IEDisplay"), "") << "this one is there";
  library.host.answers = {true};
  Press("IECmd0");
  EXPECT_NE(library.host.messages.back().find("belongs to this library"), std::string::npos);
  EXPECT_EQ(Text("IECount0"), "2 Videos Selected");  // still chosen
}

}  // namespace
}  // namespace kinalyx
