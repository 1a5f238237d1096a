#include "platform/host/QtHost.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <gmock/gmock.h>

#include <algorithm>
#include <future>

#include "platform/files/Folders.h"
#include "platform/files/Log.h"
#include "platform/host/DriveWatch.h"
#include "platform/host/FileKinds.h"
#include "support/TempFolder.h"

namespace kinalyx::test {
namespace {

class QtHostTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    static int argc = 1;
    static char name[] = "test";
    static char* argv[] = {name, nullptr};
    application = std::make_unique<QApplication>(argc, argv);
  }
  static void TearDownTestSuite() { application.reset(); }

  static inline std::unique_ptr<QApplication> application;
  test::TempFolder folder;
  Log log{folder.Path("kinalyx.log")};
  std::unique_ptr<IHost> host = MakeQtHost(log);

  /// Lets events run until `done`, or for far longer than any of these tests needs.
  template <typename Done>
  bool Until(Done done) {
    const auto end = host->timeGetTime() + 20000;
    while (!done() && host->timeGetTime() < end) host->DoEvents();
    return done();
  }
};

TEST_F(QtHostTest, WhatIsNotedAndQtsWarningsGoToTheLog) {
  host->Note(MessageKind::Critical, "something is wrong");
  qWarning("no such widget");
  qDebug("nothing of interest");
  ASSERT_TRUE(log.Flush(20000));
  const std::string text = folder.Get("kinalyx.log");
  EXPECT_THAT(text, testing::HasSubstr("error program: something is wrong\n"));
  EXPECT_THAT(text, testing::HasSubstr("warning qt: no such widget\n"));
  EXPECT_THAT(text, testing::Not(testing::HasSubstr("interest")));
}

TEST_F(QtHostTest, TimersRunOnceAgainOrNotAtAll) {
  int once = 0, often = 0, stopped = 0, late = 0;
  host->StartTimer(0, false, [&] { ++once; });
  const auto never = host->StartTimer(0, true, [&] { ++stopped; });
  host->StopTimer(never);
  host->StopTimer(never);
  host->StopTimer(12345);
  IHost::TimerId self = 0;
  self = host->StartTimer(1, true, [&] {
    if (++often < 3) return;
    host->StopTimer(self);
    host->StartTimer(0, false, [&] { ++late; });
  });
  ASSERT_TRUE(Until([&] { return late == 1; }));
  EXPECT_EQ(once, 1);
  EXPECT_EQ(often, 3);
  EXPECT_EQ(stopped, 0);

  int scoped = 0;
  {
    HostTimer timer(*host, 0, true, [&] { ++scoped; });
    HostTimer moved = std::move(timer);
    EXPECT_FALSE(timer.Running());
    ASSERT_TRUE(Until([&] { return scoped > 0; }));
  }
  const int seen = scoped;
  bool done = false;
  host->StartTimer(5, false, [&] { done = true; });
  ASSERT_TRUE(Until([&] { return done; }));
  EXPECT_EQ(scoped, seen);
}

TEST_F(QtHostTest, MessagesWaitWhileTimersGoOn) {
  int boxes = 0, beats = 0;
  QString text;
  const HostTimer beat(*host, 1, true, [&] {
    ++beats;
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box && beats > 3) {
      text = box->text();
      box->button(QMessageBox::Ok)->click();
    }
  });
  // Its action is inside the message until that is answered: it must not open another one meanwhile.
  IHost::TimerId asking = 0;
  asking = host->StartTimer(1, true, [&] {
    ++boxes;
    host->Message(MessageKind::Warning, "", "Tom <b>Sample</b> & son");
    host->StopTimer(asking);
  });
  ASSERT_TRUE(Until([&] { return !text.isEmpty() && !QApplication::activeModalWidget(); }));
  EXPECT_EQ(boxes, 1);
  EXPECT_EQ(text, "Tom <b>Sample</b> & son");
}

TEST_F(QtHostTest, QuestionsAreAnsweredWithYesOrElseNo) {
  const auto answer = [&](QMessageBox::StandardButton button) {
    const HostTimer click(*host, 1, true, [&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (!box) return;
      if (button == QMessageBox::NoButton) {
        box->close();
      } else {
        box->button(button)->click();
      }
    });
    return host->Question("Delete", "Really?");
  };
  EXPECT_TRUE(answer(QMessageBox::Yes));
  EXPECT_FALSE(answer(QMessageBox::No));
  EXPECT_FALSE(answer(QMessageBox::NoButton)) << "closing the box is no";
}

TEST_F(QtHostTest, ANewFileHasItsEndingBeforeAnythingIsReplaced) {
  const std::string filter = "Text (*.txt)|*.txt|Pages (*.html; *.htm)|*.html; *.htm";
  EXPECT_EQ(WithEnding("/a/Lesson 25.11", filter, 1), "/a/Lesson 25.11.html");
  EXPECT_EQ(WithEnding("/a/Lesson.HTM", filter), "/a/Lesson.HTM");
  EXPECT_EQ(WithEnding("/a.txt/Lesson", "All Files|*"), "/a.txt/Lesson");

  folder.Put("notes.txt", "kept");
  std::vector<std::string> asked;
  std::vector<QString> typed{"notes", "notes", "other 1.2"};
  const HostTimer user(*host, 10, true, [&] {
    QWidget* shown = QApplication::activeModalWidget();
    if (auto* box = qobject_cast<QMessageBox*>(shown)) {
      asked.push_back(box->text().toStdString());
      return box->button(QMessageBox::No)->click();
    }
    auto* dialog = qobject_cast<QFileDialog*>(shown);
    if (!dialog || typed.empty()) return;
    dialog->findChild<QLineEdit*>()->setText(typed.front());
    typed.erase(typed.begin());
    QMetaObject::invokeMethod(dialog, "accept");
  });
  EXPECT_EQ(host->PickNewFile({"Save", folder.Path("first"), filter}), folder.Path("other 1.2.txt"));
  EXPECT_EQ(asked, std::vector<std::string>(2, "\"notes.txt\" is there already. Do you want to replace it?"));
}

TEST_F(QtHostTest, ProgramsAreStartedWithTheirArguments) {
  TempFolder folder;
  const std::string mark = folder.Path("made by the child");
  EXPECT_TRUE(host->StartDetached("/bin/sh", {"-c", "echo done > \"$0\"", mark}));
  EXPECT_TRUE(Until([&] { return FileExists(mark); }));
  EXPECT_FALSE(host->StartDetached(folder.Path("no such program"), {}));
}

TEST_F(QtHostTest, TellsOfTheMachine) {
  const SystemInfo info = host->System();
  EXPECT_GT(info.screenWidth, 0);
  EXPECT_GT(info.screenHeight, 0);
  EXPECT_GE(info.bitsPerPixel, 16);
  EXPECT_GT(info.ramKilobytes, 100000);
}

TEST_F(QtHostTest, ADriveThatHangsLeavesTheWindowAliveAndIsHeardWhenItComesBack) {
  std::promise<void> gate;
  const std::shared_future<void> drive = gate.get_future().share();
  int turns = 0;
  HostTimer user(*host, 1, true, [&] {
    const auto boxes = QApplication::topLevelWidgets();
    const auto box = std::ranges::find(boxes, "WaitBox", &QWidget::objectName);
    if (box == boxes.end() || !(*box)->isVisible() || ++turns < 3) return;
    EXPECT_TRUE((*box)->isModal());
    (*box)->findChild<QPushButton*>()->click();
  });
  const auto hanging = host->Drives().Ask("/net/library", [drive] {
    drive.wait();
    return 7;
  });
  EXPECT_EQ(hanging, std::nullopt);
  EXPECT_GE(turns, 3) << "the window went on while the drive was waited for";
  EXPECT_TRUE(host->Drives().Silent("/net/library"));

  gate.set_value();
  EXPECT_TRUE(Until([&] { return !host->Drives().Silent("/net/library"); }));
  EXPECT_EQ(host->Drives().Ask("/net/library", [drive] { return 7; }), 7);
}

}  // namespace
}  // namespace kinalyx::test
