#pragma once

#include <string>
#include <vector>

#include "drawing/FilmDrawings.h"
#include "workspace/stage/Layout.h"

namespace kinalyx {

class AnalysisWorkspace;

/// One video of a scene: where it stands, what is drawn on it, how its window shows it.
struct SceneVideo {
  int Slot = 0;  ///< from which it was taken
  std::string Path;
  std::string Name;
  std::string Notes;
  TwipRect Cell;  ///< in which it is placed
  TwipRect Seen;  ///< the part of the scene that it fills
  VideoPlacement Placement;
  bool Mirrored = false;
  bool SplitFields = false;
  bool ReverseFields = false;
  FilmDrawings Drawings;
  int Position = 0;      ///< that the player shows
  bool Locked = false;   ///< it keeps its distance from the lead, position by position; else it goes by the clock
  double Pace = 1;       ///< milliseconds of the movement in one of the file, of videos that a lock holds by the time
  double TimerRate = 0;  ///< positions in a second of the timer; 0: by the file's own times
  double TimerZero = 0;  ///< seconds

  /// The frame of a position, counted from 0.
  int FrameOf(int position) const { return SplitFields ? position / 2 : position; }
};

/// What stands on the stage, as values: a clip of it can be made while the user goes on. Bars, panels and empty windows
/// are left out.
struct ClipScene {
  enum class Look {
    Windows,  ///< side by side, or one alone
    Mix,      ///< the second laid over the first
    Strip,    ///< one beneath its film strip
  };

  std::vector<SceneVideo> Videos;
  std::size_t Lead = 0;  ///< whose time the clip follows
  Look Shows = Look::Windows;
  int Width = 0;  ///< twips
  int Height = 0;
  int PixelsHigh = 0;  ///< as it is seen on the screen
  int Mix = 128;       ///< 0 the first alone to 255 the second alone

  /// The film strip over the lead.
  struct Strip {
    TwipRect Place;
    double Left = 0;  ///< the part of the video's picture that it shows, in shares of the whole
    double Top = 0;
    double Width = 0;
    double Height = 0;
    int Pictures = 0;
    int Skip = 1;  ///< positions from one of the first ones to the next
  } Film;

  const SceneVideo& LeadVideo() const { return Videos[Lead]; }
  double Proportion() const { return Height > 0 ? static_cast<double>(Width) / Height : 1; }
};

/// Takes what the layout shows, or the current window's video alone. Without a video there are none in it.
ClipScene TakeScene(AnalysisWorkspace& analysis, bool allWindows);
/// One video as it is, whole, at its own size.
ClipScene TakePicture(AnalysisWorkspace& analysis, int slot);
/// The same scene for an upright picture: windows side by side come to stand over each other.
ClipScene Stacked(ClipScene scene);

}  // namespace kinalyx
