#pragma once

#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QTest>
#include <filesystem>
#include <memory>
#include <string>
#include <utility>

#include "FormDriver.h"
#include "FormsSupport.h"
#include "support/TestHost.h"
#include "support/TestVideos.h"
#include "workspace/forms/AnalysisForm.h"

namespace kinalyx::test {

/// The page of the analysis section with real players, in a folder of its own; its controls are found by
/// their names.
struct AnalysisFormFixture : testing::Test, UsesApplication, FormDriver, INavigation {
  explicit AnalysisFormFixture(QSize size = {1280, 800})
      : folder(NewFolder()), settings(host, folder + "/data", folder) {
    settings.LoadSettings();
    settings.LibraryPath = folder + "/library";
    Make(size);
  }

  /// Another page, in place of the one before.
  void Make(QSize size) {
    form = std::make_unique<AnalysisForm>(host, settings, players, remembered, *this);
    form->resize(size);
    form->show();
    form->Open();
    QTest::qWait(0);
  }
  /// A video of its own, with no sidecar yet unless it has been made before.
  std::string Video(const std::string& name) {
    const std::string path = folder + "/" + name;
    std::filesystem::copy_file(MakeTestVideo(MjpegVideo(30)), path, std::filesystem::copy_options::overwrite_existing);
    return path;
  }
  /// Opens such a video in the first free window.
  void Send(const std::string& name) {
    ASSERT_NE(Videos().SendToAnalysis(Video(name)), 0);
    EndTurn();
  }
  /// The present turn of the event loop is over: the windows are told what has changed.
  void EndTurn() { Stage().News().Tell(); }

  void Click(const char* name) {
    QTest::mouseClick(Find<QWidget>(name), Qt::LeftButton);
    EndTurn();
  }
  bool Seen(const char* name) { return Find<QWidget>(name)->isVisible(); }
  bool Enabled(const char* name) { return Find<QWidget>(name)->isEnabled(); }
  /// A press and release on the picture of a window.
  void ClickOn(const char* player, QPoint at) {
    QTest::mouseClick(Find<QWidget>(player), Qt::LeftButton, {}, at);
    EndTurn();
  }
  /// Takes up a tool of two points and draws with it on window 1.
  void Draw(const char* tool, QPoint from, QPoint to) {
    Click(tool);
    ClickOn("MP1", from);
    QTest::mouseMove(Find<QWidget>("MP1"), (from + to) / 2);
    ClickOn("MP1", to);
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(Find<QWidget>("Text1"), key, modifiers);
    EndTurn();
  }

  kinalyx::Stage& Stage() { return form->Section().Stage(); }
  kinalyx::Videos& Videos() { return form->Section().Videos(); }
  ShapeList& Shapes(int slot = 1) { return form->Section().Tools().List(slot); }
  POINTAPI PointOf(int shape, int point) {
    return Shapes().Shapes[static_cast<std::size_t>(shape)].Pts[static_cast<std::size_t>(point)];
  }
  QRect OnForm(QWidget* widget) { return QRect(widget->mapTo(form.get(), QPoint()), widget->size()); }

  const std::string folder;
  TestHost host;
  Settings settings;
  PlayScheduler scheduler{host};
  PlayerServices players{host, scheduler};
  LastStudentInfo remembered;
  std::string went;  ///< where the page has led last
  IHandouts handouts;
  std::unique_ptr<AnalysisForm> form;

 private:
  QWidget& Form() override { return *form; }
  void GoToLibrary() override { went = "library"; }
  void GoToCapture() override { went = "capture"; }
  void GoToMainMenu() override { went = "menu"; }
  void GoToHelp() override { went = "help"; }
  void OpenLiveDraw() override { went = "live draw"; }
  void OpenMirror() override { went = "mirror"; }
  void ExitAnalysis() override { went = "exit"; }
  void OfferReopen(const std::string&) override {}
  void QuitProgram() override { went = "quit"; }
  IHandouts& Handouts() override { return handouts; }
  static std::string NewFolder() {
    static int count = 0;
    const std::string path = TestPath("analysisform" + std::to_string(++count));
    std::filesystem::create_directories(path + "/library/Anna/Erica");
    return path;
  }
};

}  // namespace kinalyx::test
