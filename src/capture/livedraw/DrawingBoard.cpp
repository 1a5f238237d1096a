#include "capture/livedraw/DrawingBoard.h"

#include <algorithm>
#include <utility>

#include "core/Twips.h"

namespace kinalyx {

DrawingBoard::DrawingBoard(Settings& settings, IDrawingBoardEvents& events)
    : settings_(settings), events_(events), tools_(engine_, settings, *this) {}

void DrawingBoard::SetPicture(bool there) {
  if (std::exchange(picture_, there) == there) return;
  if (!there) {
    tools_.PutToolDown();
    tools_.Hand().LetGo();
  }
  events_.BoardChanged();
}

/// Fitted from where they were drawn, as long as that is known, so that roundings do not add up.
void DrawingBoard::Follow(const DrawingView& view) {
  if (view.width <= 0 || view.height <= 0 || view == view_) return;
  ShapeList& list = List();
  if (const auto drawn = tools_.AsDrawn(kWindow)) {
    std::vector<Shape> fitted = drawn->In(view);
    list.Shapes = std::move(fitted);
    list.NumShapes = static_cast<std::int16_t>(list.Shapes.size());
  } else if (view_.width > 0) {
    if (view.mirrored != view_.mirrored) FlipShapes(list, view_.width);
    StretchShapes(list, view_.width, view_.height, view.width, view.height);
  }
  const bool first = std::exchange(view_, view).width <= 0;
  list.CanvasWidth = view.width * kTwipsPerPixel;
  list.CanvasHeight = view.height * kTwipsPerPixel;
  first ? tools_.ForgetPast(kWindow, view) : tools_.ViewChanged(kWindow, view);
  events_.BoardRepaint();
}

void DrawingBoard::Replace(const DrawnShapes& drawings, bool grid) {
  tools_.PutToolDown();
  ShapeList& list = List();
  list = {};
  list.GridOn = grid;
  list.Shapes = view_.width > 0 ? drawings.In(view_) : drawings.shapes;
  list.NumShapes = static_cast<std::int16_t>(list.Shapes.size());
  for (Shape& shape : list.Shapes) shape.Id = engine_.NewId();
  if (view_.width <= 0) view_ = drawings.view;
  list.CanvasWidth = view_.width * kTwipsPerPixel;
  list.CanvasHeight = view_.height * kTwipsPerPixel;
  tools_.ForgetPast(kWindow, view_);
  events_.BoardRepaint();
}

void DrawingBoard::Paint(Surface& surface, bool words) {
  Canvas canvas(surface);
  canvas.SetPen({.width = kUsualWidth});
  // Whether there are figures is a setting of all windows; that this one has no words for a while is none.
  const auto figures = std::exchange(settings_.ShapeLabels, words ? settings_.ShapeLabels : 0);
  tools_.PreDrawFrame(canvas, kWindow);
  settings_.ShapeLabels = figures;
}

int DrawingBoard::Width() const {
  const Shape* taken = tools_.Drawing() ? nullptr : tools_.Hand().Taken();
  if (taken && !IsText(*taken)) return taken->Width > 0 ? taken->Width : kUsualWidth;
  return width_;
}

void DrawingBoard::ChooseWidth(int pixels) {
  if (tools_.Drawing()) width_ = pixels;
  tools_.ChooseWidth(pixels);
  events_.BoardChanged();
}

void DrawingBoard::DisplayData(const std::string& text) {
  // Told with every painting: the same again asks for none.
  if (measure_ == text) return;
  measure_ = text;
  events_.BoardChanged();
}

void DrawingBoard::ShowToolCaption(const std::string& caption) {
  caption_ = caption;
  // A tool that was taken up begins with the width of this board, not with that of the settings.
  if (!caption.empty() && tools_.Drawing()) tools_.ChooseWidth(width_);
  events_.BoardChanged();
}

void DrawingBoard::ShowVectorColor(Colour colour) {
  if (colour == 0) engine_.CadColor = kNoColour;
  colour_ = engine_.CadColor;
  events_.BoardChanged();
}

void DrawingBoard::HideVectorColor() {
  colour_.reset();
  events_.BoardChanged();
}

void DrawingBoard::SetColorButton(int index) {
  button_ = index;
  events_.BoardChanged();
}

void DrawingBoard::ShapeTaken() {
  const Shape* taken = tools_.Hand().Taken();
  if (!tools_.Drawing()) {
    const auto found = taken ? std::ranges::find(kColorChoices, taken->Colour) : kColorChoices.end();
    button_ = found == kColorChoices.end() ? -1 : static_cast<int>(found - kColorChoices.begin());
  }
  events_.BoardRepaint();
  events_.BoardChanged();
}

}  // namespace kinalyx
