#include "video/forms/VideoView.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <QImage>
#include <QTest>
#include <string>
#include <vector>

#include "FormsSupport.h"
#include "support/TestHost.h"
#include "support/TestVideos.h"

namespace kinalyx::test {
namespace {

class RecordingInput final : public IMouseAndKeyBoardEvents {
 public:
  void MouseDown(int Button, int Shift, float X, float Y, int ID) override { Note("down", Button, Shift, X, Y, ID); }
  void MouseMove(int Button, int Shift, float X, float Y, int ID) override { Note("move", Button, Shift, X, Y, ID); }
  void MouseUp(int Button, int Shift, float X, float Y, int ID) override { Note("up", Button, Shift, X, Y, ID); }
  void Click(int ID) override { calls.push_back("click " + std::to_string(ID)); }
  void DblClick(int ID) override { calls.push_back("double click " + std::to_string(ID)); }
  void KeyDown(int, int, int) override {}
  void KeyPress(int, int) override {}
  void KeyUp(int, int, int) override {}
  std::vector<std::string> calls;

 private:
  void Note(const std::string& what, int button, int shift, float x, float y, int id) {
    calls.push_back(fmt::format("{} {} {} at {},{} of {}", what, button, shift, x, y, id));
  }
};

class VideoViewTest : public testing::Test, UsesApplication {
 protected:
  TestHost host;
  PlayScheduler scheduler{host};
  PlayerServices services{host, scheduler};
  VideoView view{services};

  void SetUp() override {
    view.resize(200, 150);
    view.show();
    view.Control().setID(3);
  }
};

TEST_F(VideoViewTest, PassesTheMouseOn) {
  RecordingInput input;
  view.Control().SetMouseKeyboardInterface(&input);
  QTest::mouseClick(&view, Qt::LeftButton, Qt::NoModifier, {20, 30});
  QTest::mouseClick(&view, Qt::RightButton, Qt::ShiftModifier | Qt::AltModifier, {21, 31});
  QTest::mouseClick(&view, Qt::MiddleButton, Qt::ControlModifier, {22, 32});
  EXPECT_EQ(input.calls, (std::vector<std::string>{"down 1 0 at 20,30 of 3", "up 1 0 at 20,30 of 3", "click 3",
                                                   "down 2 5 at 21,31 of 3", "up 2 5 at 21,31 of 3",
                                                   "down 4 2 at 22,32 of 3", "up 4 2 at 22,32 of 3"}));
  input.calls.clear();
  QTest::mouseDClick(&view, Qt::LeftButton, Qt::NoModifier, {9, 9});
  EXPECT_NE(std::find(input.calls.begin(), input.calls.end(), "double click 3"), input.calls.end());
}

TEST_F(VideoViewTest, ShowsThePictureOrTheColourOfItsState) {
  const auto shown = [&](int x, int y) { return QColor(view.grab().toImage().pixel(x, y)); };
  AVIControl& control = view.Control();
  EXPECT_FALSE(control.Load(TestPath("nowhere.avi"), false, false));
  EXPECT_EQ(shown(50, 50), QColor(255, 255, 0));
  ASSERT_TRUE(control.Load(MakeTestVideo(MjpegVideo(12)), false, false));
  control.DrawFrame(7);
  const auto number = [&] {
    const QImage image = view.grab().toImage().convertToFormat(QImage::Format_RGB32);
    return ReadNumber({image.constBits(), image.width(), image.height(), static_cast<int>(image.bytesPerLine()), 32});
  };
  EXPECT_EQ(number(), 7);
  view.resize(320, 100);
  EXPECT_EQ(control.ControlWidthPixels(), 320);
  EXPECT_EQ(control.ControlHeightPixels(), 100);
  EXPECT_EQ(number(), 7);
  control.Resize(240, 180);  // told before the window system is
  view.resize(240, 180);
  EXPECT_EQ(number(), 7);
  control.Unload();
  EXPECT_EQ(shown(50, 50), QColor(0, 0, 0));
}

}  // namespace
}  // namespace kinalyx::test
