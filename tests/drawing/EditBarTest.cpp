#include "drawing/EditBar.h"

#include <map>

#include "DrawingSupport.h"

namespace kinalyx::test {
namespace {

struct Strip final : IEditBarView {
  std::map<int, bool> enabled;
  bool multi = false;
  bool guide = false;
  void ShowEditBar(bool) override {}
  void PlaceEditBar(int) override {}
  void SetMultiButton(bool enable, bool) override { multi = enable; }
  void EnableHandle(EditHandle handle, bool enable) override { enabled[handle] = enable; }
  void ShowRotationGuide(bool show) override { guide = show; }
  int HandleWidth(EditHandle) override { return 600; }
  int HandleHeight(EditHandle) override { return 600; }
};

struct EditDesk : Desk {
  Strip strip;
  EditBar bar{tools, workspace, strip};

  void Drag(EditHandle handle, std::initializer_list<POINTAPI> way) {
    const POINTAPI first = *way.begin();
    bar.GrabHandle(handle, static_cast<float>(first.x), static_cast<float>(first.y));
    for (const POINTAPI& point : way) bar.DragHandle(static_cast<float>(point.x), static_cast<float>(point.y));
    bar.ReleaseHandle();
  }
};

TEST(EditBar, DragsMoveScaleAndRotate) {
  EditDesk desk;
  desk.Draw(kLine, {{100, 100}, {200, 100}});
  desk.bar.ToggleEditBar();
  // Ten steps of seven twips are less than a pixel each and five pixels together.
  desk.Drag(kMoveHandle,
            {{0, 0}, {7, 0}, {14, 0}, {21, 0}, {28, 0}, {35, 0}, {42, 0}, {49, 0}, {56, 0}, {63, 0}, {70, 0}});
  EXPECT_EQ(desk.Points(0)[0], (POINTAPI{105, 100}));
  desk.Drag(kScaleHandle, {{300, 500}, {300, 300}, {300, 100}});
  EXPECT_EQ(desk.Points(0), (std::vector<POINTAPI>{{55, 100}, {255, 100}})) << "400 twips up are twice as large";
  EXPECT_EQ(desk.List().Shapes[0].SavedPts.size(), 1u) << "the end of the drag lets the saved points go";
  desk.bar.GrabHandle(kRotateHandle, 600, 300);
  EXPECT_TRUE(desk.strip.guide);
  desk.bar.DragHandle(300, 600);
  desk.bar.ReleaseHandle();
  EXPECT_FALSE(desk.strip.guide);
  EXPECT_EQ(desk.Points(0)[0], (POINTAPI{155, 0}));
  for (const POINTAPI& before : {POINTAPI{55, 100}, {105, 100}, {100, 100}}) {
    desk.tools.Undo(1);
    EXPECT_EQ(desk.Points(0)[0], before) << "each drag is one step back";
  }
}

TEST(EditBar, InMultiModeAllShapesGoTogether) {
  EditDesk desk;
  desk.Draw(kLine, {{100, 100}, {200, 100}});
  desk.Draw(kFlag, {{251, 200}});
  EXPECT_EQ(desk.engine.MultiGetMid(desk.List()), (POINTAPI{200, 150}));
  desk.bar.ToggleEditBar();
  desk.bar.EditAll(true);
  desk.Drag(kMoveHandle, {{0, 0}, {150, -150}});
  EXPECT_EQ(desk.Points(0)[0], (POINTAPI{110, 90}));
  EXPECT_EQ(desk.Points(1)[0], (POINTAPI{261, 190}));
  desk.Drag(kRotateHandle, {{600, 300}, {300, 600}});
  EXPECT_EQ(desk.Points(0)[0], (POINTAPI{260, 40}));
  EXPECT_EQ(desk.List().Shapes[1].Kind, kFreehand) << "a plus sign that was turned is six points";
  desk.bar.SetEditBar();
  EXPECT_FALSE(desk.bar.MultiEdit());

  // A macro that was laid over the window is placed as a whole.
  desk.bar.EditWhole();
  EXPECT_TRUE(desk.bar.MultiEdit());
  EXPECT_FALSE(desk.strip.enabled[kNextHandle] || desk.strip.enabled[kRotateHandle]);
  desk.bar.UseHandle(kEndHandle);
  EXPECT_TRUE(desk.strip.enabled[kNextHandle]);
}

}  // namespace
}  // namespace kinalyx::test
