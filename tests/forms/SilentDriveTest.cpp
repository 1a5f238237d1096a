#include <QComboBox>
#include <QtTest/QTest>

#include "FakeOpener.h"
#include "ProfilesStage.h"
#include "library/forms/ImportExportPage.h"
#include "library/forms/OpenVidForm.h"

namespace kinalyx {
namespace {

using SilentDriveTest = test::ProfilesStage;

TEST_F(SilentDriveTest, ThePageSaysSoAndFillsByItselfWhenTheDriveIsBack) {
  ChooseStudent("Sample, Erica");
  Choose("VideoList", "(002) FO iron");
  LeavePage();
  library.host.drivesHang = true;
  Return();
  EXPECT_EQ(Rows("InstructorList"), QStringList({"General Folder"}));
  EXPECT_TRUE(List("StudentList")->Hint().contains("is not answering")) << List("StudentList")->Hint().toStdString();
  EXPECT_EQ(Preview().Info(), nullptr);
  LeavePage();
  Return();
  library.host.Advance(3000);
  EXPECT_EQ(library.host.waits.size(), 1u);

  library.host.DrivesAnswer();
  library.host.Advance(3000);
  EXPECT_EQ(page->Browser().Video(), "(001) DTL driver");
  EXPECT_EQ(Text("ProInfoLbl0"), "Sample, Erica");
  EXPECT_NE(Preview().Info(), nullptr);
  EXPECT_TRUE(library.host.messages.empty());
}

TEST_F(SilentDriveTest, AVideoBehindASilentDriveIsNoBadVideo) {
  ChooseStudent("Sample, Erica");
  library.host.drivesHang = true;
  Choose("VideoList", "(002) FO iron");
  library.host.Advance(100);
  EXPECT_TRUE(library.host.questions.empty());
  EXPECT_EQ(Find<QWidget>("StatsLine")->accessibleName(), "The drive with this video is not answering.");

  Press("SPBtn6");
  EXPECT_TRUE(Text("SPDisplay").contains("is not answering. Nothing was changed.")) << Text("SPDisplay").toStdString();
  EXPECT_EQ(library.host.waits.size(), 1u);
  QTest::keyClick(page.get(), Qt::Key_F5);
  EXPECT_EQ(library.host.waits.size(), 2u) << "who asks for it may wait once more";

  library.host.DrivesAnswer();
  library.host.Advance(3000);
  Choose("VideoList", "(001) DTL driver");
  EXPECT_NE(Preview().Info(), nullptr);
}

TEST_F(SilentDriveTest, TheOpenFormOpensNothingAndTellsWhy) {
  test::FakeOpener opener;
  OpenVidForm form(services, library.settings, remembered, opener);
  remembered = {"Demo", "Sample, Erica", ""};
  form.Open();
  ASSERT_TRUE(form.Browser().HasVideo());
  library.host.drivesHang = true;
  form.CmdOpenVideo_Click(0);
  EXPECT_TRUE(opener.opened.empty());
  ASSERT_EQ(library.host.messages.size(), 1u);
  EXPECT_TRUE(library.host.messages[0].ends_with("is not answering. The video was not opened."));
  library.host.DrivesAnswer();
  form.CmdOpenVideo_Click(0);
  EXPECT_EQ(opener.opened.size(), 1u);
}

TEST_F(SilentDriveTest, AnExportDriveThatHangsLeavesTheLibraryAlone) {
  const test::TempFolder disk;
  std::filesystem::create_directories(disk.Path("Ann/Joe"));
  library.settings.Exporter = disk.Path();
  remembered = {"Demo", "Sample, Erica", ""};
  ImportExportPage exchange(library.host, library.settings, *operations, remembered);
  exchange.Open();
  const auto rows = [&](const char* name) { return exchange.findChild<NameList*>(name)->count(); };
  EXPECT_EQ(rows("List7"), 2);

  library.host.drivesHang = true;
  exchange.findChild<QComboBox*>("Drive1")->activated(0);
  EXPECT_EQ(rows("List7"), 1);
  EXPECT_TRUE(exchange.findChild<NameList*>("List8")->Hint().contains(QString::fromStdString(disk.Path())));
  EXPECT_EQ(exchange.findChild<QLabel*>("Label6")->text(), "0% Free   The drive is not answering.");
  library.host.drivesHang = false;
  exchange.Open();
  EXPECT_EQ(rows("List4"), 3) << "the library itself answers";
  EXPECT_EQ(library.host.waits.size(), 1u);

  library.host.DrivesAnswer();
  library.host.Advance(3000);
  EXPECT_EQ(rows("List7"), 2);
  EXPECT_TRUE(exchange.findChild<QLabel*>("Label6")->text().endsWith(" % Free"));
}

}  // namespace
}  // namespace kinalyx
