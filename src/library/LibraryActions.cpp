#include "library/LibraryActions.h"

#include <fmt/format.h>

#include "core/Settings.h"
#include "library/LibraryTree.h"

namespace kinalyx {

namespace {

std::string TipForOne(LibraryAction action, const Settings& settings) {
  const std::string& noun = settings.PrimaryName[1];
  switch (action) {
    case LibraryAction::AddStudent: return "Add new " + noun + " to the library.";
    case LibraryAction::RenameStudent: return "Rename the current " + noun + ".";
    case LibraryAction::MoveStudent: return "Move the current " + noun + " to another database or instructor.";
    case LibraryAction::DeleteStudent: return "Delete the current " + noun + " database, profile, and all videos.";
    case LibraryAction::SendToAnalysis: return "Send current video to the analysis section.";
    case LibraryAction::Trim: return "Trim excess frames from front and back of the current video.";
    case LibraryAction::RenameVideo: return "Rename the current video.";
    case LibraryAction::MoveVideo: return "Move the current video to a different instructor or database.";
    case LibraryAction::CopyVideo: return "Copy the current video to a removeable disk.";
    case LibraryAction::DeleteVideo: return "Delete the current video.";
    case LibraryAction::Profile: return "Show complete profile and notes.";
    case LibraryAction::Statistics: return "Show video statistics.";
    case LibraryAction::QuickLaunch: return "Copy the current video to the Quick Launch folder.";
  }
  return {};
}

}  // namespace

std::string LibraryActionTip(LibraryAction action, const Settings& settings, int videos) {
  std::string tip = TipForOne(action, settings);
  if (videos < 2) return tip;
  const std::string several = fmt::format("the {} selected videos", videos);
  for (const std::string_view one : {"the current video", "current video"})
    if (const auto at = tip.find(one); at != std::string::npos) return tip.replace(at, one.size(), several);
  return tip;
}

bool TakesSeveralVideos(LibraryAction action) {
  return action == LibraryAction::SendToAnalysis || action == LibraryAction::MoveVideo ||
         action == LibraryAction::CopyVideo || action == LibraryAction::DeleteVideo;
}

std::string QuickLaunchCaption(std::string_view instructor) {
  return instructor == kQuickLaunch ? "Quick Launch -" : "Quick Launch +";
}

std::string StatisticsCaption(bool shown) { return shown ? "Stats Off" : "Show Stats"; }

LibraryTexts LibraryTextsFor(const Settings& settings) {
  const std::string& noun = settings.PrimaryName[1];
  return {
      .addHelp = "First select an Instructor or Database from the list below. Then, fill out the New " + noun +
                 " information and choose \"Save\".",
      .moveStudent = "Select the Database from the list on the left that you want to move the selected " + noun +
                     " to and click the \"Move\" button.",
      .deleteWarning = "Warning!!! This will remove the " + noun + ", the " + noun + " profile, and all of the " +
                       noun + " videos from your system.",
      .deleteFinish = "Click the Delete " + noun + " button to finish.",
      .trim = "Trim by selecting new start and end points, then click the 'Save' button to edit the video.",
  };
}

}  // namespace kinalyx
