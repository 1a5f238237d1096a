#pragma once

#include <string>
#include <vector>

#include "drawing/DrawingTools.h"
#include "drawing/ShapeHistory.h"
#include "drawing/ShapeStore.h"
#include "platform/paint/Surface.h"

namespace kinalyx {

/// What a board tells; from within the calls that cause it.
class IDrawingBoardEvents {
 public:
  virtual ~IDrawingBoardEvents() = default;
  /// What is drawn has another look.
  virtual void BoardRepaint() = 0;
  /// Caption, colour, what is taken: what stands beside the picture.
  virtual void BoardChanged() = 0;
  /// The finished drawings are other ones; also when an undo has made them so.
  virtual void DrawingsDone() = 0;
  virtual void ShowPointer(HandPointer pointer) = 0;
  virtual void ShowShapeMenu(POINTAPI at) = 0;
  virtual void AskText(POINTAPI at, const std::string& text) = 0;
};

/// The drawings upon one picture, with the drawing tools of the analysis section: the one window of a workspace that
/// plays nothing. Lines are three pixels of the screen wide until another width is chosen.
class DrawingBoard final : private IDrawingWorkspace {
 public:
  static constexpr int kUsualWidth = 3;
  static constexpr Colour kNoColour = 0xFF0000;  ///< of a drawing that has none of its own: blue
  static constexpr int kWindow = 1;

  DrawingBoard(Settings& settings, IDrawingBoardEvents& events);

  DrawingTools& Tools() { return tools_; }
  const DrawingTools& Tools() const { return tools_; }
  ShapeHand& Hand() { return tools_.Hand(); }
  ShapeList& List() { return tools_.List(kWindow); }
  const ShapeList& List() const { return tools_.List(kWindow); }

  /// The line or arrow in hand is held level or upright.
  bool StraightMode() const { return engine_.StraightMode; }

  /// Without a picture no tool can be taken up.
  void SetPicture(bool there);
  bool HasPicture() const { return picture_; }
  /// The picture as it is shown has another size, or is mirrored: the drawings follow.
  void Follow(const DrawingView& view);
  const DrawingView& View() const { return view_; }
  /// Replaces all, as from a file; nothing of before can be undone.
  void Replace(const DrawnShapes& drawings, bool grid);

  /// Paints everything over a picture of the size of the view.
  /// @param words  with the figures beside the drawings, where the settings want them
  void Paint(Surface& surface, bool words);

  // --- what stands beside the picture
  /// Of the tool in hand, or what is measured; empty for nothing.
  const std::string& Caption() const { return measure_.empty() ? caption_ : measure_; }
  std::optional<Colour> CaptionColour() const { return colour_; }
  /// One of twelve, -1 none.
  int ColourButton() const { return button_; }
  /// Pixels, of what is taken or of the lines to come.
  int Width() const;
  void ChooseWidth(int pixels);

 private:
  // --- IDrawingWorkspace
  int ActiveWindow() override { return kWindow; }
  void SetActiveWindow(int) override {}
  bool HasVideo(int window) override { return window == kWindow && picture_; }
  int PictureWidth(int) override { return view_.width; }
  int PictureHeight(int) override { return view_.height; }
  bool IsPlaying(int) override { return false; }
  void StopClick(int) override {}
  void ReleaseLoopButton() override {}
  void Refresh(int) override { events_.BoardRepaint(); }
  // A path is traced upon one picture.
  bool OnLastFrame(int) override { return false; }
  void AdvanceFrame(int) override {}
  void RetreatFrame(int) override {}
  void DisplayData(const std::string& text) override;
  void ShowToolCaption(const std::string& caption) override;
  void ShowVectorColor(Colour colour) override;
  void HideVectorColor() override;
  void SetColorButton(int index) override;
  void ShowDrawError(const std::string& text) override { DisplayData(text); }
  void ShapeTaken() override;
  void ShowPointer(int, HandPointer pointer) override { events_.ShowPointer(pointer); }
  void ShowShapeMenu(int, POINTAPI at) override { events_.ShowShapeMenu(at); }
  void AskText(int, POINTAPI at, const std::string& text) override { events_.AskText(at, text); }
  void DrawingsChanged(int) override { events_.DrawingsDone(); }

  Settings& settings_;
  IDrawingBoardEvents& events_;
  ShapeEngine engine_;
  DrawingTools tools_;
  DrawingView view_;
  bool picture_ = false;
  std::string caption_;
  std::string measure_;
  std::optional<Colour> colour_;
  int button_ = -1;
  int width_ = kUsualWidth;
};

}  // namespace kinalyx
