#include "printing/report/MomentPictures.h"

#include <algorithm>
#include <cmath>

#include "library/Study.h"

namespace kinalyx {
namespace {

constexpr int kMostWidth = 1280;  // pixels; more is not seen on a page

}  // namespace

SlotData MomentPictures::DataOf(const std::string& path, const VideoInfo& info) const {
  SlotData data = ReadVideoData(SidecarPath(path), info, settings_.NewColors);
  ReadStudy(StudyPath(path), data);
  return data;
}

bool MomentPictures::Open(AVIControl& player, const std::string& path) {
  player.setExactPictures(true);
  if (!player.Load(path, false, false)) return false;
  data_ = DataOf(path, *player.Info());
  player.setSplitFields(data_.SplitFields);
  player.setReverseFields(data_.ReverseFields);
  const double shape =
      data_.Wide ? 16.0 / 9.0 : static_cast<double>(player.VideoWidth()) / std::max(1, player.VideoHeight());
  const int height = std::min(player.VideoHeight(), static_cast<int>(kMostWidth / shape));
  const int width = std::max(1, static_cast<int>(std::lround(height * shape)));
  StretchShapes(data_.Shapes, data_.PictureWidth, data_.PictureHeight, width, height);
  player.SetFrameInterface(this);
  player.Resize(width, height);
  return true;
}

Surface MomentPictures::Show(AVIControl& player, VideoMoment moment) {
  const int position = std::clamp(moment.Position(player.SplitFields()), 0, std::max(0, player.VideoLength() - 1));
  frame_ = player.SplitFields() ? position / 2 : position;
  player.DrawFrame(position);
  return player.Picture();
}

Surface MomentPictures::PictureAt(const std::string& path, VideoMoment moment) {
  AVIControl player(services_, nullptr);
  return Open(player, path) ? Show(player, moment) : Surface();
}

Surface MomentPictures::PictureAtMark(const std::string& path, const std::string& mark, double part) {
  AVIControl player(services_, nullptr);
  if (!Open(player, path)) return {};
  const auto& marks = data_.Study.Marks;
  const auto found = mark.empty() ? marks.begin() : std::ranges::find(marks, mark, &VideoMark::Name);
  const int position = static_cast<int>(std::lround(part * (player.VideoLength() - 1)));
  return Show(player, found == marks.end() ? VideoMoment::At(position, player.SplitFields()) : found->Moment);
}

void MomentPictures::PreDrawFrame(Canvas& hDC, int) {
  const auto shapes = ShapesOf(data_.Shapes);
  std::vector<Colour> colours;
  std::vector<std::uint8_t> opacities;
  for (const Shape& shape : shapes) {
    colours.push_back(shape.Colour);
    opacities.push_back(static_cast<std::uint8_t>(shape.Time.OpacityOn(frame_)));
  }
  const ShapeLook look{.CadWidth = settings_.CadWidth,
                       .CadOutline = settings_.CadOutline,
                       .Soft = settings_.KeysAndTools == kEditorKeys};
  Pen pen = hDC.CurrentPen();
  pen.width = settings_.CadWidth;
  hDC.SetPen(pen);
  painter_.Paint(hDC, shapes, colours, {}, look, opacities);
}

}  // namespace kinalyx
