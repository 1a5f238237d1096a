#include "library/forms/DeviceVideosForm.h"

#include <QPushButton>
#include <QTreeWidget>
#include <QtTest/QTest>

#include "ProfilesStage.h"
#include "support/TempFolder.h"

namespace kinalyx {
namespace {

/// A telephone is plugged in beside the profiles page.
class DeviceVideosFormTest : public test::ProfilesStage {
 protected:
  DeviceVideosFormTest() { std::filesystem::create_directories(phone.Path("DCIM")); }

  /// A video on the telephone, so many seconds after the others, padded to a size of its own.
  void Film(const std::string& name, int when, std::size_t more = 0) {
    const std::string path = phone.Path("DCIM/" + name);
    std::filesystem::copy_file(test::MakeTestVideo(test::MjpegVideo(8)), path);
    std::ofstream(path, std::ios::app) << std::string(more, ' ');
    using namespace std::chrono_literals;
    std::filesystem::last_write_time(path, std::filesystem::file_time_type::clock::now() - 1h + when * 1s);
  }
  void PlugIn() {
    devices = {{phone.Path(), "NOKIA"}};
    library.host.Advance(2000);
  }
  bool BarShown() { return Find<QWidget>("DeviceBar")->isVisible(); }
  QStringList Videos() {
    QStringList rows;
    for (int row = 0; row < VideoRows()->topLevelItemCount(); ++row) {
      const QTreeWidgetItem* item = VideoRows()->topLevelItem(row);
      rows << (item->checkState(0) == Qt::Checked ? "x " : "- ") + item->text(0);
    }
    return rows;
  }
  QTreeWidget* VideoRows() { return Find<QTreeWidget>("DeviceList"); }
  QWidget* Dialog() { return Find<QWidget>("DeviceVideosForm"); }
  QString AddCaption() { return Find<QPushButton>("DeviceAdd")->text(); }

  test::TempFolder phone;
};

TEST_F(DeviceVideosFormTest, NewVideosAreOfferedTickedAndAddedToTheStudent) {
  Film("(001) DTL driver.avi", 0);  // the library has it
  Film("\u0141\u0105ka.avi", 10, 1);
  Film("\u4e16\u754c.avi", 20, 2);
  EXPECT_FALSE(BarShown());
  PlugIn();
  ASSERT_TRUE(BarShown());
  EXPECT_EQ(Text("DeviceWords"), "3 videos on \"NOKIA\", 2 of them new");

  Choose("InstructorList", "Demo");
  List("StudentList")->setCurrentRow(-1);
  page->Browser().SelectStudent("");
  Press("DeviceShow");
  EXPECT_FALSE(Dialog()->isVisible());
  EXPECT_EQ(Text("SPDisplay"), "You must select a student first.");

  ChooseStudent("Tom");
  Press("DeviceShow");
  ASSERT_TRUE(Dialog()->isVisible());
  EXPECT_TRUE(Text("DeviceText").contains("copied to Tom"));
  EXPECT_EQ(Videos(), QStringList({"x \u4e16\u754c", "x \u0141\u0105ka", "- (001) DTL driver"}));
  library.host.Advance(1000);
  for (int row = 0; row < 3; ++row) {
    EXPECT_FALSE(VideoRows()->topLevelItem(row)->text(2).isEmpty()) << row << " has no length";
    EXPECT_FALSE(VideoRows()->topLevelItem(row)->text(3).isEmpty()) << row << " has no size";
  }

  EXPECT_EQ(AddCaption(), "Add 2 Videos");
  Press("DeviceTick");
  EXPECT_FALSE(Find<QPushButton>("DeviceAdd")->isEnabled());
  Press("DeviceTick");
  QTest::keyClick(VideoRows(), Qt::Key_Space);
  EXPECT_EQ(AddCaption(), "Add 1 Video");
  QTest::keyClick(VideoRows(), Qt::Key_Return);
  EXPECT_FALSE(Dialog()->isVisible());
  Work();
  EXPECT_TRUE(Exists("Demo/Tom/\u0141\u0105ka.avi"));
  EXPECT_FALSE(Exists("Demo/Tom/\u4e16\u754c.avi"));
  EXPECT_EQ(Rows("VideoList"), QStringList("\u0141\u0105ka"));
  library.host.Advance(10000);
  EXPECT_FALSE(BarShown()) << "what was left out was left out on purpose";
}

TEST_F(DeviceVideosFormTest, NotNowHoldsUntilItIsPluggedInAnew) {
  Film("a.avi", 0, 1);
  PlugIn();
  Press("DeviceLater");
  library.host.Advance(10000);
  LeavePage();
  Return();
  library.host.Advance(10000);
  EXPECT_FALSE(BarShown());
  devices.clear();
  library.host.Advance(2000);
  PlugIn();
  EXPECT_TRUE(BarShown());
  devices.clear();
  library.host.Advance(2000);
  EXPECT_FALSE(BarShown());
}

TEST_F(DeviceVideosFormTest, OneThatIsPulledOutOrHangsSaysSoAndLeavesNoHalfFile) {
  Film("a.avi", 0, 1);
  Film("b.avi", 1, 2);
  PlugIn();
  ChooseStudent("Tom");
  devicesHang = true;
  Press("DeviceShow");
  library.host.Advance(11000);
  EXPECT_EQ(Text("DeviceNote"), "\"NOKIA\" is not answering.");
  EXPECT_TRUE(Find<QPushButton>("DeviceAdd")->isEnabled());
  devices.clear();
  library.host.Advance(2000);
  EXPECT_EQ(Text("DeviceNote"), "\"NOKIA\" has been unplugged.");
  EXPECT_FALSE(Find<QPushButton>("DeviceAdd")->isEnabled());
  Press("DeviceCancel");
  EXPECT_FALSE(BarShown());

  devicesHang = false;
  PlugIn();
  Press("DeviceShow");
  std::filesystem::remove(phone.Path("DCIM/a.avi"));  // in the moment between
  std::filesystem::remove(phone.Path("DCIM/b.avi"));
  Press("DeviceAdd");
  EXPECT_FALSE(operations->Busy());
  EXPECT_EQ(library.host.messages.size(), 1u);
  EXPECT_TRUE(std::filesystem::is_empty(library.Path("Demo/Tom")) || Exists("Demo/Tom/profile.prf"));
  EXPECT_TRUE(Rows("VideoList").isEmpty());
  Film("c.avi", 3, 3);
  library.host.Advance(20000);
  EXPECT_TRUE(BarShown()) << "what could not be added is offered again";
}

TEST_F(DeviceVideosFormTest, ATelephoneWithThousandsOfVideosIsShownAtOnceAndLookedAtOnlyInSight) {
  for (int n = 0; n < 5000; ++n) phone.Put("DCIM/" + std::to_string(n) + ".mp4", "x");
  PlugIn();
  EXPECT_EQ(Text("DeviceWords"), "5000 videos on \"NOKIA\", all of them new");
  ChooseStudent("Tom");
  Press("DeviceShow");
  library.host.Advance(5000);
  EXPECT_EQ(AddCaption(), "Add 5000 Videos");
  const auto looked = [this](int row) { return VideoRows()->topLevelItem(row)->data(0, Qt::UserRole + 1).toBool(); };
  EXPECT_TRUE(looked(0));
  EXPECT_FALSE(looked(4999));
  QTest::keyClick(VideoRows(), Qt::Key_End);
  library.host.Advance(5000);
  EXPECT_TRUE(looked(4999));
  EXPECT_FALSE(looked(2500));
}

}  // namespace
}  // namespace kinalyx
