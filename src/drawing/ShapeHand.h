#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "drawing/IDrawingWorkspace.h"
#include "drawing/Shape.h"
#include "drawing/ShapeOutline.h"

namespace kinalyx {

class DrawingTools;

/// What shows that a drawing is taken; it lies over the picture and is no part of it. Pixels of the picture.
struct TakenMarks {
  std::vector<Polyline> lines;  ///< the halo runs along them
  int width = 0;                ///< of the drawing's line
  std::vector<POINTAPI> handles;

  friend bool operator==(const TakenMarks&, const TakenMarks&) = default;
};

/// The hand that holds no tool: a press on a drawing takes it, a drag moves it, or the one point of it that was
/// pressed; what is taken gets another colour or width, is copied or removed. One drawing is taken at a time. Each
/// drag and each command is one step for undo.
class ShapeHand {
 public:
  ShapeHand(DrawingTools& tools, IDrawingWorkspace& workspace) : tools_(tools), workspace_(workspace) {}

  // --- mouse, in pixels of the window's picture
  /// Takes what lies under the mouse, and lets go of what was taken when nothing does. The right button asks for the
  /// menu besides. True when there was something.
  bool Press(int button, POINTAPI at, int window);
  /// `even`: the point that is moved keeps its line at an eighth of a turn, its box as wide as high.
  /// True while something is held.
  bool Move(POINTAPI at, bool even, int window);
  bool Release();
  /// The second press of a double click: letters are written anew.
  void PressTwice(POINTAPI at, int window);

  // --- what is taken
  /// Null for none; good until the list changes.
  const Shape* Taken() const;
  /// Something is taken, and the picture that its window shows has something of it.
  bool TakenIsSeen() const;
  /// The window of what is taken.
  int Window() const { return window_; }
  void Take(int window, std::size_t index);
  void LetGo();
  /// Nothing when nothing is taken in this window, or what is taken is not seen on its picture.
  std::optional<TakenMarks> MarksIn(int window) const;
  /// What a press here would take hold of.
  HandPointer PointerAt(POINTAPI at, int window) const;

  // --- what is done to it; nothing without it
  void SetColour(Colour colour);
  /// Of its line in pixels; letters become so much larger or smaller as a line does beside the usual one.
  void SetWidth(int pixels);
  void SetText(const std::string& text);
  void Nudge(int dx, int dy);
  /// A copy beside it, which is taken then.
  void Duplicate();
  /// Puts it over the others.
  void BringToFront();
  void Remove();

 private:
  struct Grip {
    std::optional<std::size_t> handle;  ///< the point that is moved; nothing: the whole
    POINTAPI from;                      ///< where the mouse was last
    bool moving = false;                ///< it has gone further than a hand trembles
  };

  std::optional<std::size_t> Index() const;
  Shape* Mutable();
  std::optional<std::size_t> HandleAt(POINTAPI at, int window) const;
  double Reach(const Shape& shape) const;
  std::optional<std::size_t> ShapeUnder(POINTAPI at, int window) const;
  void Begin() const;
  void Changed();

  DrawingTools& tools_;
  IDrawingWorkspace& workspace_;
  int window_ = 0;
  std::uint32_t id_ = 0;  ///< of the shape; 0 none
  std::optional<Grip> grip_;
};

}  // namespace kinalyx
