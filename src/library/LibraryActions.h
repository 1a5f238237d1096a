#pragma once

#include <string>
#include <string_view>

namespace kinalyx {

class Settings;

/// The buttons `SPBtn` of the library page, by their index.
enum class LibraryAction {
  AddStudent = 0,
  RenameStudent = 1,
  MoveStudent = 2,
  DeleteStudent = 3,
  SendToAnalysis = 4,
  Trim = 5,
  RenameVideo = 6,
  MoveVideo = 7,
  CopyVideo = 8,
  DeleteVideo = 9,
  Profile = 10,
  Statistics = 11,
  QuickLaunch = 12,
};
inline constexpr int kLibraryActions = 13;

/// What the status line shows while the mouse is over a button; with `videos` that are selected instead of one.
std::string LibraryActionTip(LibraryAction action, const Settings& settings, int videos = 1);
/// Actions that can be carried out on several videos at once.
bool TakesSeveralVideos(LibraryAction action);

/// "Quick Launch -" while the Quick Launch folder is shown, else "Quick Launch +".
std::string QuickLaunchCaption(std::string_view instructor);
/// "Show Stats" and "Stats Off".
std::string StatisticsCaption(bool shown);

/// The texts of the panels in which an operation is prepared, with the user's word in its place.
struct LibraryTexts {
  std::string addHelp;      ///< `ProAddPnl`
  std::string moveStudent;  ///< the lists from which the target of a move is chosen
  std::string deleteWarning;
  std::string deleteFinish;
  std::string trim;  ///< `EditPanel`
};
LibraryTexts LibraryTextsFor(const Settings& settings);

}  // namespace kinalyx
