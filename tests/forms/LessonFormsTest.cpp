#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "distribution/lessons/forms/LessonDesk.h"
#include "distribution/lessons/LessonFakes.h"
#include "distribution/lessons/forms/StudentChoice.h"
#include "library/TempLibrary.h"

namespace kinalyx::test {
namespace {

class LessonForms : public testing::Test, public ILessonStage {
 protected:
  LessonForms() {
    library.settings.LoadCaptureSettings();
    fields.EnsureFile();
    fields.SetupFields();
    library.Folder("Anna/Zofia");
    library.Folder("Ben/Ιωάννης");
    library.Folder("Ben/田中");
    stage.resize(900, 600);
    stage.show();
    desk.emplace(LessonDesk::Parts{.host = library.host,
                                   .settings = library.settings,
                                   .fields = fields,
                                   .setup = setup,
                                   .screens = screens,
                                   .remembered = remembered,
                                   .events = *this,
                                   .makeGraph =
                                       [this](IGraphEvents&) {
                                         auto made = std::make_unique<LessonGraph>();
                                         graph = made.get();
                                         return made;
                                       }},
                 &stage);
  }

  void LessonChanged() override { ++changes; }
  std::string CurrentVideo() const override { return {}; }
  void TakeCard(FloatCard&) override {}
  void PlayLesson(const std::string& path) override { played = path; }

  template <typename Widget>
  Widget& Part(const char* name) {
    auto* found = stage.findChild<Widget*>(name);
    if (!found) throw std::runtime_error(name);
    return *found;
  }
  void Press(const char* name) { Part<QPushButton>(name).click(); }

  TempLibrary library;
  ProfileFields fields{library.Data("fields.ini")};
  FakeDevices devices;
  CaptureSetup setup{library.settings, devices};
  FakeScreens screens;
  LastStudentInfo remembered{"Anna", "Zofia", {}};
  QWidget stage;
  LessonGraph* graph = nullptr;
  std::optional<LessonDesk> desk;
  std::string played;
  int changes = 0;
};

TEST_F(LessonForms, ThePanelIsSmallUnderWayAndTakesNoKeys) {
  desk->Session().Toggle();
  auto& panel = Part<QFrame>("LessonPanel");
  EXPECT_TRUE(panel.isVisible());
  EXPECT_EQ(Part<QLabel>("RecordStatus").text(), "Ready to Record Lesson");
  EXPECT_EQ(Part<QLabel>("RecordStudent").text(), "Zofia");
  EXPECT_EQ(Part<QPushButton>("RecordBtn0").text(), "Start Recording");
  EXPECT_EQ(Part<QComboBox>("RecordMicrophone").currentText(), "None is connected: no voice");
  for (const auto* button : panel.findChildren<QPushButton*>()) EXPECT_EQ(button->focusPolicy(), Qt::NoFocus);
  const int before = panel.height();

  Press("RecordBtn0");
  graph->writer.tally.pictures = 30;
  library.host.Advance(3100);
  EXPECT_EQ(Part<QLabel>("LessonPanelTitle").text(), "Recording Sound and Video");
  EXPECT_EQ(Part<QLabel>("RecordMinuteLbl").text(), "9:57");
  EXPECT_LT(panel.height(), before / 2);
  EXPECT_FALSE(Part<QComboBox>("RecordKind").isVisible());
  const QRect place = Part<QPushButton>("RecordBtn1").geometry();
  Press("RecordBtn1");
  EXPECT_EQ(Part<QPushButton>("RecordBtn1").text(), "Go On");
  EXPECT_EQ(Part<QPushButton>("RecordBtn1").geometry(), place) << "under the mouse";
  Press("RecordBtn0");

  auto* form = stage.findChild<QDialog*>("SaveLessonForm");
  ASSERT_TRUE(form && form->isVisible());
  auto* name = form->findChild<QLineEdit*>("Text1");
  EXPECT_TRUE(name->text().startsWith("Lesson 20"));
  name->setText("Swing/1");
  form->findChild<QPushButton*>("SSCommand1")->click();
  EXPECT_EQ(form->findChild<QLabel*>("MsgLbl")->text(), "Invalid Character in name. Please try again.");
  name->setText("Łuk");
  form->findChild<QPushButton*>("SSCommand1")->click();
  for (int i = 0; i < 200 && desk->Session().Shown(); ++i) {
    QTest::qWait(10);
    library.host.Advance(50);
  }
  EXPECT_TRUE(form->findChild<QWidget*>("MsgPnl")->isVisible());
  EXPECT_FALSE(panel.isVisible());
  form->findChild<QPushButton*>("LessonPlayBtn")->click();
  EXPECT_EQ(played, library.Path("Anna/Zofia/Lessons/Łuk.avi"));
  EXPECT_GT(changes, 3);
}

TEST_F(LessonForms, AStudentIsFoundWhoeverTeachesHimAndGetsAnAddress) {
  RecorderSelectForm form(library.host, library.settings, fields, {"Anna", "Zofia"}, &stage);
  EXPECT_EQ(form.windowTitle(), "Select Student to Record");
  form.show();
  EXPECT_EQ(form.Pick().student, "Zofia");
  EXPECT_EQ(form.findChild<QLabel*>("EmailLbl")->text(), "No Email address on file.");
  form.findChild<QLineEdit*>("FindStudent")->setText("田");
  EXPECT_EQ(form.Pick().instructor, "Ben");
  EXPECT_EQ(form.Pick().student, "田中");
  EXPECT_TRUE(form.findChild<QPushButton*>("RecorderSelectFormSelect")->isEnabled());
  QTimer::singleShot(0, [] {
    QWidget* asked = QApplication::activeModalWidget();
    asked->findChild<QLineEdit*>("EmailAddress")->setText("tanaka@example.org");
    asked->findChild<QPushButton*>("EmailAddressOK")->click();
  });
  form.findChild<QPushButton*>("AddEmailBtn")->click();
  EXPECT_EQ(form.findChild<QLabel*>("EmailLbl")->text(), "tanaka@example.org");
  EXPECT_EQ(GetEmailAddress(library.Path("Ben/田中")), "tanaka@example.org");
}

TEST_F(LessonForms, WhatAnEarlierRunHasLeftIsOffered) {
  RecordedLesson lesson;
  lesson.path = library.Data("lesson 1.mkv");
  WriteLesson(lesson.path, 45);
  lesson.written = StampOf(lesson.path)->written / 1'000'000'000;
  lesson.facts.seconds = 3;
  lesson.instructor = "Ben";
  lesson.student = "Ιωάννης";
  RecordedLesson second = lesson;
  second.path = library.Data("lesson 2.mkv");
  std::filesystem::copy_file(lesson.path, second.path);
  second.written = StampOf(second.path)->written / 1'000'000'000;
  desk->Offer({lesson, second, lesson});
  EXPECT_TRUE(
      Part<QLabel>("UnfinishedLessonWords").text().startsWith("A lesson was broken off: Ιωάννης, 0:03 minutes"));
  library.host.answers = {true, true};
  Press("UnfinishedLessonAway");
  EXPECT_FALSE(std::filesystem::exists(lesson.path));
  EXPECT_TRUE(Part<QWidget>("UnfinishedLesson").isVisible()) << "there is one more";
  Press("UnfinishedLessonSave");
  EXPECT_FALSE(Part<QWidget>("UnfinishedLesson").isVisible());
  EXPECT_EQ(desk->Session().Phase(), LessonPhase::Finished);
  EXPECT_EQ(desk->Session().Student(), "Ιωάννης");
  Press("RecordBtn2");
  EXPECT_FALSE(stage.findChild<QDialog*>("SaveLessonForm")->isVisible()) << "nothing is left to be named";
  Press("UnfinishedLessonSave");
  EXPECT_EQ(desk->Session().Phase(), LessonPhase::Away) << "it is gone";
  EXPECT_FALSE(Part<QWidget>("UnfinishedLesson").isVisible());
}

}  // namespace
}  // namespace kinalyx::test
