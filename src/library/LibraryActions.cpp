#include "library/LibraryActions.h"

#include <fmt/format.h>

#include "core/Settings.h"
#include "core/Vocabulary.h"
#include "library/LibraryTree.h"
#include "platform/files/Tr.h"

namespace kinalyx {

namespace {

std::string TipForOne(LibraryAction action, const Settings& settings) {
  const std::string noun = Vocabulary(settings).noun();
  switch (action) {
    case LibraryAction::AddStudent: return Tr("Add new {} to the library.", noun);
    case LibraryAction::RenameStudent: return Tr("Rename the current {}.", noun);
    case LibraryAction::MoveStudent: return Tr("Move the current {} to another database or instructor.", noun);
    case LibraryAction::DeleteStudent: return Tr("Delete the current {} database, profile, and all videos.", noun);
    case LibraryAction::SendToAnalysis: return Tr("Send current video to the analysis section.");
    case LibraryAction::Trim: return Tr("Trim excess frames from front and back of the current video.");
    case LibraryAction::RenameVideo: return Tr("Rename the current video.");
    case LibraryAction::MoveVideo: return Tr("Move the current video to a different instructor or database.");
    case LibraryAction::CopyVideo: return Tr("Copy the current video to a removeable disk.");
    case LibraryAction::DeleteVideo: return Tr("Delete the current video.");
    case LibraryAction::Profile: return Tr("Show complete profile and notes.");
    case LibraryAction::Statistics: return Tr("Show video statistics.");
    case LibraryAction::QuickLaunch: return Tr("Copy the current video to the Quick Launch folder.");
  }
  return {};
}

}  // namespace

std::string LibraryActionTip(LibraryAction action, const Settings& settings, int videos) {
  if (videos < 2) return TipForOne(action, settings);
  switch (action) {
    case LibraryAction::SendToAnalysis: return Tr("Send the {} selected videos to the analysis section.", videos);
    case LibraryAction::MoveVideo:
      return Tr("Move the {} selected videos to a different instructor or database.", videos);
    case LibraryAction::CopyVideo: return Tr("Copy the {} selected videos to a removeable disk.", videos);
    case LibraryAction::DeleteVideo: return Tr("Delete the {} selected videos.", videos);
    default: return TipForOne(action, settings);
  }
}

bool TakesSeveralVideos(LibraryAction action) {
  return action == LibraryAction::SendToAnalysis || action == LibraryAction::MoveVideo ||
         action == LibraryAction::CopyVideo || action == LibraryAction::DeleteVideo;
}

std::string QuickLaunchCaption(std::string_view instructor) {
  return instructor == kQuickLaunch ? Tr("Quick Launch -") : Tr("Quick Launch +");
}

std::string StatisticsCaption(bool shown) { return shown ? Tr("Stats Off") : Tr("Show Stats"); }

LibraryTexts LibraryTextsFor(const Settings& settings) {
  const std::string noun = Vocabulary(settings).noun();
  return {
      .addHelp = Tr("First select an Instructor or Database from the list below. Then, fill out the New {} information "
                    "and choose \"Save\".",
                    noun),
      .moveStudent = Tr("Select the Database from the list on the left that you want to move the selected {} to and "
                        "click the \"Move\" button.",
                        noun),
      .deleteWarning =
          Tr("Warning!!! This will remove the {}, the {} profile, and all of the {} videos from your system.", noun,
             noun, noun),
      .deleteFinish = Tr("Click the Delete {} button to finish.", noun),
      .trim = Tr("Trim by selecting new start and end points, then click the 'Save' button to edit the video."),
  };
}

}  // namespace kinalyx
