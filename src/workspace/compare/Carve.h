#pragma once

#include <optional>

#include "platform/host/Host.h"
#include "platform/paint/PixelOps.h"
#include "platform/paint/Surface.h"
#include "workspace/compare/ICompareEvents.h"
#include "workspace/stage/Stage.h"

namespace kinalyx {

/// What carving asks of the window that shows it. Pixels of the stage, y downward.
class ICarveView {
 public:
  virtual ~ICarveView() = default;
  /// Shows or hides the carve's panel with `CScroll`.
  virtual void ShowCarve(bool shown) = 0;
  /// `CarvePic`, the canvas on which an area is marked: lies over the video of a slot while `shown`.
  virtual void ShowCarvePic(int slot, bool shown) = 0;
  /// The area being marked, in pixels of that video's picture; an empty one hides the mark.
  virtual void ShowMark(int left, int top, int width, int height) = 0;
  /// `picRot`, the floating piece: its picture and its corner on the stage; an empty surface hides it.
  virtual void ShowPiece(const Surface& piece, POINTAPI corner) = 0;
};

/// Transparency carve: cuts a part out of one video and floats it over the others, where it goes on
/// showing what its video shows.
class Carve {
 public:
  /// Ends of `CScroll`, percent.
  static constexpr int kSmallest = 20;
  static constexpr int kLargest = 400;

  Carve(IHost& host, Stage& stage, ICarveView& view, ICompareEvents& events);

  /// Begins with the current video, or ends. An empty window is refused.
  void ToggleCarve();
  bool Shown() const { return slot_ != 0; }
  bool CanShow() const;
  /// The piece floats; otherwise an area is waited for.
  bool Floating() const { return area_.has_value(); }

  /// Marks another area; the piece goes until it is marked. A video behind a maximized one comes back for it.
  void MarkAnew();
  /// The mouse is wanted for something else: without a piece the carve ends.
  void StopMarking();
  // The left button on `CarvePic`, in pixels of the video's picture.
  void BeginMark(POINTAPI point);
  void MoveMark(POINTAPI point);
  void EndMark(POINTAPI point);
  // The left button on `picRot`, in pixels of the stage: the piece follows it.
  void GrabPiece(POINTAPI point);
  void DragPiece(POINTAPI point);
  void ReleasePiece();
  /// Moves the piece by pixels of the stage.
  void Nudge(int dx, int dy);
  /// Size of the piece, percent of its area.
  void ScalePiece(int percent);
  int CScroll() const { return percent_; }

  /// Copies the area of the current frame to the piece, at its scale, and shows it.
  void CmdDisCarve();
  const Surface& Piece() const { return piece_; }
  /// Where it floats on the stage, in pixels of surfaces.
  POINTAPI PieceCorner() const { return corner_; }

  // --- from the players and the stage
  void Signal(int slot);
  /// Pictures have another size, or another place.
  void PicturesChanged();
  void VideoClosing(int slot);
  /// The layout may have changed. An area is marked on a video in sight; a piece goes on without it.
  void LayoutChanged();
  /// A video was moved without a word from its player.
  void MPManualSignal() { CmdDisCarve(); }

 private:
  /// A part of the video's picture, in widths and heights of it: it stays on its subject at every zoom.
  struct Part {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
  };

  void End();
  void BeginMarking();
  void Mark(POINTAPI to);
  void UpdatePiece();
  /// The window over which a new piece comes up.
  int OtherSlot() const;

  IHost& host_;
  Stage& stage_;
  ICarveView& view_;
  ICompareEvents& events_;
  int slot_ = 0;
  std::optional<Part> area_;
  std::optional<POINTAPI> markFrom_;
  std::optional<POINTAPI> grab_;  ///< from the piece's corner to the mouse that holds it
  POINTAPI corner_;
  int percent_ = 100;
  Surface cut_;
  Surface piece_;
  ScaleScratch scratch_;
  HostTimer CarveTimer_;
};

}  // namespace kinalyx
