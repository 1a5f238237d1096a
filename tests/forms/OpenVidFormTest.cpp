#include "library/forms/OpenVidForm.h"

#include <QLabel>
#include <QPushButton>
#include <QtTest/QTest>

#include "../library/TempLibrary.h"
#include "FakeOpener.h"
#include "FormsSupport.h"
#include "library/forms/PreviewPlayer.h"
#include "platform/widgets/NameList.h"
#include "support/TestVideos.h"

namespace kinalyx {
namespace {

/// Both arrangements of the open form behave alike.
template <typename Form>
class OpenFormTest : public ::testing::Test, protected test::UsesApplication {
 protected:
  OpenFormTest() {
    const std::string video = test::MakeTestVideo(test::MjpegVideo(8));
    for (const char* name :
         {"Demo/Tom/swing.avi", "Demo/Tom/putting face on.avi", "Demo/Tom/Putting Down the Line.AVI"})
      std::filesystem::copy_file(video, library.File(name), std::filesystem::copy_options::overwrite_existing);
    library.File("Demo/Tom/swing.ved", "1XXXXNXX");
    remembered = {"Demo", "Tom", library.Path("Demo/Tom")};
    form = std::make_unique<Form>(services, library.settings, remembered, opener);
    form->resize(form->sizeHint());
    form->show();
    form->Open();
  }

  QPushButton* Button(int index) {
    return form->template findChild<QPushButton*>(QString("CmdOpenVideo%1").arg(index));
  }
  NameList* VideoList() { return form->template findChild<NameList*>("VideoList"); }

  test::TempLibrary library;
  PlayScheduler scheduler{library.host};
  PlayerServices services{library.host, scheduler};
  LastStudentInfo remembered;
  test::FakeOpener opener;
  std::unique_ptr<Form> form;
};

using Forms = ::testing::Types<OpenVidForm, OpenVidCForm>;
TYPED_TEST_SUITE(OpenFormTest, Forms);

TYPED_TEST(OpenFormTest, OpensUndoesAndIsDone) {
  EXPECT_EQ(this->form->Browser().Student(), "Tom");
  EXPECT_FALSE(this->Button(2)->isEnabled());
  this->VideoList()->setCurrentRow(2);
  EXPECT_EQ(this->form->template findChild<QLabel*>("VidInfoPanel1")->property("look"), "mark");
  EXPECT_NE(this->form->template findChild<PreviewPlayer*>()->Control().Info(), nullptr);

  this->Button(0)->click();
  QTest::keyClick(this->VideoList(), Qt::Key_Return);
  EXPECT_EQ(this->opener.opened, std::vector<std::string>(2, this->library.Path("Demo/Tom/swing.avi")));
  this->Button(2)->click();
  this->Button(2)->click();
  EXPECT_EQ(this->opener.undone, 2);
  EXPECT_FALSE(this->Button(2)->isEnabled());
  this->form->NoteOpened(1);  // dropped on a window
  this->form->template findChild<QPushButton*>("OpenFromDiskBtn")->click();
  for (int each = 0; each < 4; ++each) this->Button(2)->click();
  EXPECT_EQ(this->opener.undone, 5);
  QTest::keyClick(this->VideoList(), Qt::Key_Escape);
  EXPECT_EQ(this->opener.done, 1);
  this->form->Leave();
  EXPECT_EQ(this->form->template findChild<PreviewPlayer*>()->Control().Info(), nullptr);
}

TYPED_TEST(OpenFormTest, LoadsTheFilesOfAShortGameFamily) {
  this->library.settings.ShortGame = 1;
  this->form->SettingsChanged();
  EXPECT_EQ(this->Button(2)->text(), "Load Student Files");
  this->VideoList()->setCurrentRow(2);
  EXPECT_FALSE(this->Button(2)->isEnabled()) << "belongs to none";
  this->VideoList()->setCurrentRow(1);
  this->Button(2)->click();
  EXPECT_EQ(this->opener.family, (std::vector<std::string>{this->library.Path("Demo/Tom/putting face on.avi"),
                                                           this->library.Path("Demo/Tom/Putting Down the Line.AVI")}));
}

}  // namespace
}  // namespace kinalyx
