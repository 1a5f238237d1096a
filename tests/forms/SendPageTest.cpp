#include "distribution/send/forms/SendPage.h"

#include <QBoxLayout>
#include <filesystem>

#include "../library/TempLibrary.h"
#include "FormDriver.h"
#include "FormsSupport.h"
#include "library/Profile.h"

namespace kinalyx::test {
namespace {

/// The page over a library with two students, one of whom has an address and a lesson.
class SendPageTest : public ::testing::Test, UsesApplication, protected FormDriver {
 protected:
  SendPageTest() {
    library.File("Demo/Żak, Anna/(001) DTL driver.avi", "a video");
    library.File("Demo/Żak, Anna/(002) FO iron.avi", "another one");
    library.File("Demo/Żak, Anna/lessons/Grip.avi", "a lesson");
    library.File("Demo/Żak, Anna/profile.prf", "[Profile]\r\nName=Żak, Anna\r\nE-Mail Address=anna@example.org\r\n");
    library.Folder("Demo/Tom");
    page =
        std::make_unique<SendPage>(library.host, library.settings, remembered, files, nullptr, send, GlanceStore(""));
    QObject::connect(page.get(), &SendPage::SendWanted, page.get(),
                     [this](const SendWish& wish) { wishes.push_back(wish); });
    QObject::connect(page.get(), &SendPage::FilesChanged, page.get(), [this] { ++changes; });
    page->resize(1100, 700);
    page->show();
    page->Open();
  }
  QWidget& Form() override { return *page; }
  void ChooseStudent(const QString& student) {
    Choose("SendInstructorList", "Demo");
    Choose("SendStudentList", student);
  }
  QString Address(int box) { return Find<QLineEdit>(("txtSendTo" + std::to_string(box)).c_str())->text(); }
  void AddAll(const char* list, const char* button) {
    List(list)->selectAll();
    Press(button);
  }

  DriveWatch::Send send = [](const DriveWatch::Work& work) {
    work();
    struct Done final : IErrand {
      bool Over(int) override { return true; }
    };
    return std::make_shared<Done>();
  };
  TempLibrary library;
  LastStudentInfo remembered;
  FilesToSend files;
  std::vector<SendWish> wishes;
  int changes = 0;
  std::unique_ptr<SendPage> page;
};

TEST_F(SendPageTest, AWideDiscPanelLeavesTheListsTheirShare) {
  page->resize(864, 700);
  QCoreApplication::processEvents();
  const int alone = List("SendVideoList")->width();
  auto* disc = new QWidget;
  (new QLabel(disc))->setFixedSize(480, 400);
  auto* row = new QHBoxLayout(disc);
  row->addWidget(disc->findChild<QLabel*>());
  page->SetDiscPanel(disc);
  QCoreApplication::processEvents();
  page->resize(865, 700);
  QCoreApplication::processEvents();
  EXPECT_NEAR(List("SendVideoList")->width(), alone, 1);
  const int high = List("LessonList")->height();
  Press("SSCommand42");
  QCoreApplication::processEvents();
  EXPECT_LT(List("LessonList")->height(), high);
  Press("SSCommand40");
  QCoreApplication::processEvents();
  EXPECT_GE(List("LessonList")->height(), high);
}

TEST_F(SendPageTest, EachWayHasItsWords) {
  EXPECT_EQ(Text("SendWayTitle"), "Send Email with Lessons and Videos");
  EXPECT_EQ(Find<QAbstractButton>("cmdSendtoWeb")->text(), "Send Email(s)");
  EXPECT_TRUE(Find<QAbstractButton>("SSCommand42")->isHidden()) << "nobody burns discs here";
  Press("SSCommand41");
  EXPECT_EQ(Text("SendWayTitle"), "Create a new Video Web Page");
  EXPECT_EQ(Find<QAbstractButton>("cmdSendtoWeb")->text(), "Send to Web");
  EXPECT_FALSE(Find<QAbstractButton>("SSCommand40")->isChecked());

  auto* disc = new QWidget;
  page->SetDiscPanel(disc);
  EXPECT_EQ(Text("SendWayTitle"), "Create a new Video Web Page") << "a panel that comes changes nothing";
  Press("SSCommand42");
  EXPECT_EQ(Text("SendWayTitle"), "Burn Lessons and Videos to CD");
  EXPECT_TRUE(disc->isVisible());
  EXPECT_FALSE(Find<QLineEdit>("txtSendTo0")->isVisible());
  Press("SSCommand40");
  EXPECT_TRUE(Find<QLineEdit>("txtSendTo0")->isVisible());
}

TEST_F(SendPageTest, SaysWhatIsMissingInItsOrder) {
  library.settings.PrimaryName = {"Golfer", "golfer", "golfers"};
  const auto refusal = [&] {
    library.host.messages.clear();
    Press("cmdSendtoWeb");
    return library.host.messages.empty() ? std::string("none") : library.host.messages.back();
  };
  EXPECT_EQ(refusal(), "You must add a video before continuing.");
  files.Add(library.Path("Demo/Żak, Anna/(001) DTL driver.avi"), false);
  EXPECT_EQ(refusal(), "You must add a email address before continuing.");
  Type("txtSendTo2", "mum(at)example.org");
  EXPECT_EQ(refusal(), "\"mum(at)example.org\" is not an email address.");
  Type("txtSendTo2", " mum@example.org ");
  EXPECT_EQ(refusal(), "You must select a golfer before continuing.");
  EXPECT_TRUE(wishes.empty());

  ChooseStudent("Żak, Anna");
  EXPECT_EQ(Address(2), "") << "another's addresses have gone";
  Press("SSCommand41");
  Type("txtSendTo1", "mum@example.org");
  EXPECT_EQ(refusal(), "none");
  ASSERT_EQ(wishes.size(), 1U);
  EXPECT_EQ(wishes[0].mode, SendMode::Web);
  EXPECT_EQ(wishes[0].student, "Żak, Anna");
  EXPECT_EQ(wishes[0].addresses, (std::vector<std::string>{"anna@example.org", "mum@example.org"}));
}

TEST_F(SendPageTest, AWayReadsTheAddressAndKeepsWhatWasTyped) {
  ChooseStudent("Żak, Anna");
  EXPECT_EQ(Address(0), "anna@example.org");
  Type("txtSendTo0", "new@example.org");
  Press("SSCommand41");
  EXPECT_EQ(Address(0), "new@example.org");
  Type("txtSendTo0", "");
  Press("SSCommand40");
  EXPECT_EQ(Address(0), "anna@example.org");
  ChooseStudent("Tom");
  EXPECT_EQ(Address(0), "");
  EXPECT_EQ(Find<QLineEdit>("txtSendTo0")->placeholderText(), "The profile of this student has no address");
}

TEST_F(SendPageTest, KeepsItsStudentUntilAnotherIsChosenElsewhere) {
  ChooseStudent("Żak, Anna");
  Type("txtSendTo1", "mum@example.org");
  page->hide();
  page->show();
  page->Open();
  EXPECT_EQ(List("SendStudentList")->currentItem()->text(), "Żak, Anna");
  EXPECT_EQ(Address(0), "anna@example.org");
  EXPECT_EQ(Address(1), "mum@example.org");
  library.File("Demo/Żak, Anna/profile.prf", "[Profile]\r\nE-Mail Address=zak@example.org\r\n");
  page->Open();
  EXPECT_EQ(Address(0), "zak@example.org") << "the profile was changed meanwhile";
  remembered = {"Demo", "Tom", ""};
  page->Open();
  EXPECT_EQ(List("SendStudentList")->currentItem()->text(), "Tom");
  EXPECT_EQ(Address(0), "");
}

TEST_F(SendPageTest, VideosAndLessonsComeIntoOneListAndLeaveIt) {
  ChooseStudent("Żak, Anna");
  EXPECT_EQ(Rows("SendLessonList"), QStringList{"Grip"});
  EXPECT_FALSE(Find<QAbstractButton>("cmdAddtoBurn0")->isEnabled());
  AddAll("SendVideoList", "cmdAddtoBurn0");
  EXPECT_EQ(Text("SendDisplay"), "2 of 2 files added to the Files to Send list.");
  AddAll("SendLessonList", "cmdAddtoBurn1");
  EXPECT_EQ(Text("SendDisplay"), "Lesson successfully added to the Files to Send list.");
  AddAll("SendLessonList", "cmdAddtoBurn1");
  EXPECT_EQ(Text("SendDisplay"), "This lesson is already in the Files to Send list.");
  EXPECT_EQ(Rows("LessonList"), (QStringList{"(001) DTL driver.avi", "(002) FO iron.avi", "(Lesson)-Grip.avi"}));
  EXPECT_EQ(changes, 2);

  List("LessonList")->clearSelection();
  List("LessonList")->setCurrentRow(0, QItemSelectionModel::ClearAndSelect);
  Press("cmdAddtoBurn2");
  EXPECT_EQ(Text("SendDisplay"), "File successfully removed from Files to Send list.");
  EXPECT_EQ(files.Files().size(), 2U);
  EXPECT_EQ(changes, 3);
  // Another student's page goes on with the same list.
  ChooseStudent("Tom");
  EXPECT_EQ(Rows("LessonList").size(), 2);
  EXPECT_TRUE(Rows("SendLessonList").isEmpty());
}

}  // namespace
}  // namespace kinalyx::test
