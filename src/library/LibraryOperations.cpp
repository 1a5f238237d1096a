#include "library/LibraryOperations.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#include "library/FolderContents.h"
#include "library/LibraryActions.h"
#include "library/LibraryBrowser.h"
#include "library/LibraryReading.h"
#include "library/RunOperation.h"
#include "library/StudentJobs.h"
#include "library/VideoNames.h"
#include "platform/files/Folders.h"
#include "platform/files/IniFile.h"
#include "platform/files/PartFiles.h"
#include "platform/files/Tr.h"

namespace kinalyx {

namespace {

using Change = LibraryOperations::Change;

std::string VerbOf(Change change) {
  switch (change) {
    case Change::Rename: return Tr("rename");
    case Change::Move: return Tr("move");
    case Change::Delete: return Tr("delete");
  }
  return {};
}

/// Levels from the folder of an instructor to the lessons of a student; a limit, for links may lead back.
constexpr int kLevels = 3;

/// The paths of the videos in a folder and in those below it: lessons are videos too.
std::vector<std::string> AllVideosBelow(const std::string& folder, int levels = kLevels) {
  std::vector<std::string> paths;
  for (const std::string& file : ListVideos(folder)) paths.push_back(JoinPath(folder, file));
  if (levels == 1) return paths;
  for (const std::string& name : ListFolders(folder)) {
    const std::vector<std::string> below = AllVideosBelow(JoinPath(folder, name), levels - 1);
    paths.insert(paths.end(), below.begin(), below.end());
  }
  return paths;
}

/// Passes on what an operation tells, but not its end where another one goes on in its place.
class OrGoesOn final : public IOperationEvents {
 public:
  explicit OrGoesOn(LibraryOperations::Events events) : events_(std::move(events)) {}
  void GoOn() { goesOn_ = true; }

  void ShowStatus(const std::string& words) override { events_->ShowStatus(words); }
  void ShowProgress(const JobProgress& progress) override { events_->ShowProgress(progress); }
  void WorkOver() override { events_->WorkOver(); }
  void Ended(const OperationResult& result) override {
    if (!goesOn_) events_->Ended(result);
  }

 private:
  LibraryOperations::Events events_;
  bool goesOn_ = false;
};

}  // namespace

LibraryVideo ChosenVideo(const LibraryBrowser& browser) {
  return {browser.Instructor(), browser.Student(), browser.VideoPath()};
}

std::vector<LibraryVideo> VideosOf(const LibraryTree& tree, const std::string& instructor) {
  std::vector<LibraryVideo> videos;
  // Quick Launch keeps its videos in its own folder, all others with their students.
  std::vector<std::string> students = tree.Students(instructor);
  students.insert(students.begin(), std::string());
  for (const std::string& student : students) {
    const std::string folder = tree.StudentFolder(instructor, student);
    const std::vector<std::string> files = tree.VideoFiles(instructor, student);
    for (const std::string& file : files) videos.push_back({instructor, student, JoinPath(folder, file)});
    if (files.empty() && !student.empty()) videos.push_back({instructor, student, {}, folder});
  }
  return videos;
}

std::vector<std::string> MoveTargets(const LibraryTree& tree, const LibraryVideo& about) {
  std::vector<std::string> databases = tree.Instructors();
  // A student cannot move to the present instructor, and Quick Launch keeps no students.
  std::erase_if(databases, [&](const std::string& name) {
    return name == kGeneralFolder || name == kQuickLaunch || (about.path.empty() && name == about.instructor);
  });
  return databases;
}

void ShowResult(const OperationResult& result, LibraryBrowser& browser) {
  if (!result.refill) return;
  const std::string folder = browser.Folder();
  const std::string video = browser.Video();
  const int row = browser.VideoIndex();
  browser.Refresh();
  // A choice that is unchanged is not made again: that would go back to the first video.
  if (!result.instructor.empty() && result.instructor != browser.Instructor())
    browser.SelectInstructor(result.instructor);
  if (!result.student.empty() && result.student != browser.Student()) browser.SelectStudent(result.student);
  if (!result.video.empty()) browser.SelectVideo(result.video);
  // Where a video has gone, the next one takes its place.
  if (result.video.empty() && !video.empty() && browser.Folder() == folder && browser.Video() != video)
    browser.ChooseVideo(std::min(row, static_cast<int>(browser.VideoList().size()) - 1));
}

LibraryOperations::LibraryOperations(IHost& host, const Settings& settings, IAnalysisLink& analysis)
    : LibraryOperations(host, settings, analysis, Environment{}) {}

LibraryOperations::LibraryOperations(IHost& host, const Settings& settings, IAnalysisLink& analysis,
                                     Environment environment)
    : host_(host),
      settings_(settings),
      words_(settings),
      tree_(settings),
      analysis_(analysis),
      disk_(*environment.disk),
      trash_(environment.trash),
      runner_(host, environment.jobs) {}

// ---------------------------------------------------------------- guards

bool LibraryOperations::IsOpen(const std::string& videoPath) const { return analysis_.IsOpenInAnalysis(videoPath); }

ITrash* LibraryOperations::TrashOf(const std::string& path) const {
  return trash_ && trash_->Has(path) ? trash_ : nullptr;
}

bool LibraryOperations::GoesForGood(const std::string& what) {
  return host_.Question(Tr("Delete"), Tr("{} cannot be moved to the trash. Do you want to delete it for good?", what));
}

std::string LibraryOperations::DeletionText(const LibraryVideo& about, bool wholeStudent) {
  const std::string path = wholeStudent ? tree_.StudentFolder(about.instructor, about.student) : about.path;
  const auto text = host_.Drives().Ask(tree_.Root(), [path, wholeStudent, trash = trash_] {
    const std::string fate = TrashText(trash && trash->Has(path));
    return wholeStudent ? ContentsText(ContentsOf(path)) + " " + fate : fate;
  });
  return text.value_or("");
}

std::string LibraryOperations::BusyText() const {
  return Busy() ? Tr("Another operation is still at work. Please wait until it has finished.") : "";
}

/// A library in a network folder that has gone would look like one without students.
std::string LibraryOperations::Unreachable() const {
  const std::string& root = tree_.Root();
  switch (PlaceOfLibrary(host_.Drives(), settings_)) {
    case LibraryPlace::Ready:
    case LibraryPlace::ToBegin: return {};
    case LibraryPlace::Silent: return Tr("{} Nothing was changed.", SilentLibraryText(root));
    case LibraryPlace::Removed:
    case LibraryPlace::Gone: break;
  }
  return Tr("The video library at {} cannot be reached. Nothing was changed.", root);
}

bool LibraryOperations::BeginLibrary() {
  const std::string& root = tree_.Root();
  const LibraryPlace place = PlaceOfLibrary(host_.Drives(), settings_);
  if (place != LibraryPlace::ToBegin && place != LibraryPlace::Removed) return true;
  if (place == LibraryPlace::Removed &&
      !host_.Question(
          Tr("Video Library"),
          Tr("The video library at {} is not there any more. Do you want to begin a new one in its place?", root)))
    return false;
  // No folder above it is made: that would be the one of the settings.
  std::error_code failed;
  std::filesystem::create_directory(root, failed);
  return true;
}

std::string LibraryOperations::Obstacle() const {
  const std::string busy = BusyText();
  return busy.empty() ? Unreachable() : busy;
}

std::string LibraryOperations::OpenVideoIn(const std::string& folder, const std::string& change) const {
  const auto videos = host_.Drives().Ask(tree_.Root(), [folder] { return AllVideosBelow(folder); });
  if (!videos) return Tr("{} Nothing was changed.", SilentLibraryText(tree_.Root()));
  if (std::ranges::none_of(*videos, [this](const std::string& path) { return IsOpen(path); })) return {};
  return Tr("A video from this database is open in the Analysis section. You must close the video before you can {}.",
            change);
}

OperationResult LibraryOperations::Refuse(const std::string& text) {
  host_.Message(MessageKind::Warning, "", text);
  return Report(text);
}

std::string LibraryOperations::Shown(const std::string& refusal) {
  return refusal.empty() ? refusal : Refuse(refusal).Status();
}

OperationResult LibraryOperations::RefuseGone(const std::string& text) {
  OperationResult result =
      Refuse(Tr("{}. It is not there any more: somebody else has renamed, moved or deleted it.", text));
  result.refill = true;
  return result;
}

std::string LibraryOperations::RefuseUnlessStudentChangeable(const std::string& instructor, const std::string& student,
                                                             Change change) {
  if (student.empty() || instructor.empty() || instructor == kGeneralFolder) return words_.MustSelect();
  std::string refusal = Obstacle();
  if (refusal.empty())
    refusal = OpenVideoIn(tree_.StudentFolder(instructor, student), Tr("{} this {}", VerbOf(change), words_.noun()));
  return Shown(refusal);
}

std::string LibraryOperations::RefuseUnlessVideoChangeable(const LibraryVideo& video) {
  if (video.path.empty()) return Tr("You must select a video first.");
  std::string refusal = Obstacle();
  if (refusal.empty() && IsOpen(video.path))
    refusal = Tr("This video is open in the Analysis section. You must close the video before you can continue.");
  return Shown(refusal);
}

std::string LibraryOperations::RefuseUnlessInstructorChangeable(const std::string& instructor, Change change) {
  if (instructor.empty() || instructor == kGeneralFolder) return Tr("You must select an Instructor or Database first.");
  if (instructor == kQuickLaunch)
    return Tr("The folder {} belongs to the program. You cannot {} it.", ShownInstructor(instructor), VerbOf(change));
  const std::string folder = tree_.InstructorFolder(instructor);
  std::string refusal = Obstacle();
  if (refusal.empty()) refusal = OpenVideoIn(folder, Tr("{} this database", VerbOf(change)));
  if (refusal.empty() && change == Change::Delete && !ListFolders(folder).empty()) refusal = StillFullText(instructor);
  return Shown(refusal);
}

// ---------------------------------------------------------------- instructors and students

OperationResult LibraryOperations::AddInstructor(std::string_view typed) {
  const std::string_view name = WithoutOuterBlanks(typed);
  if (!Busy() && IsValidName(name) && !BeginLibrary()) return Report({});
  if (const std::string refusal = Obstacle(); !refusal.empty()) return Refuse(refusal);
  const auto added = kinalyx::AddInstructor(tree_.Root(), name);
  if (!added) return Refuse(added.Why());
  return {*added, true, std::string(name)};
}

std::string LibraryOperations::StillFullText(const std::string& instructor) const {
  const std::string folder = tree_.InstructorFolder(instructor);
  // Other programs leave things that no list of ours shows.
  if (ListFolders(folder).empty() && ListVideos(folder).empty())
    return Tr("There are other files in the folder {}. Move or delete them first.", folder);
  return Tr("{} still has {} or videos. Move or delete them first.", instructor, words_.nouns());
}

OperationResult LibraryOperations::RenameInstructor(const std::string& instructor, std::string_view typed) {
  const std::string_view name = WithoutOuterBlanks(typed);
  if (const std::string refusal = RefuseUnlessInstructorChangeable(instructor, Change::Rename); !refusal.empty())
    return Report(refusal);
  if (!IsValidName(name)) return Refuse(Tr("Invalid character in Name"));
  if (IsBlank(name)) return Refuse(Tr("You must type a name!"));
  if (name == instructor) return Report(Tr("Rename cancelled."));
  const std::string from = tree_.InstructorFolder(instructor);
  const std::string to = tree_.InstructorFolder(name);
  const std::string taken = Tr("There is already an Instructor or Database with this name.");
  // These two stand for something else in the list.
  if (SameName(name, kGeneralFolder) || SameName(name, kQuickLaunch)) return Refuse(taken);
  if (HasFolderNamed(tree_.Root(), name, instructor)) return Refuse(taken);
  if (const Outcome renamed = RenameEntry(from, to, disk_); !renamed) {
    const std::string text = Tr("{} could not be renamed", instructor);
    if (EntryExists(to)) return Refuse(taken);
    return EntryExists(from) ? Refuse(text + ": " + renamed.Why()) : RefuseGone(text);
  }
  analysis_.PathChanged(from, to);
  return {Tr("{} successfully renamed.", instructor), true, std::string(name)};
}

OperationResult LibraryOperations::DeleteInstructor(const std::string& instructor) {
  if (const std::string refusal = RefuseUnlessInstructorChangeable(instructor, Change::Delete); !refusal.empty())
    return Report(refusal);
  const std::string folder = tree_.InstructorFolder(instructor);
  RemoveDeadParts(folder, disk_);
  if (disk_.RemoveFolder(folder) < 0) {
    const int reason = errno;
    if (reason == ENOTEMPTY || reason == EEXIST) return Refuse(StillFullText(instructor));
    const std::string text = Tr("{} could not be removed", instructor);
    return reason == ENOENT ? RefuseGone(text) : Refuse(text + ": " + std::generic_category().message(reason));
  }
  return {Tr("{} successfully removed from the system.", instructor), true};
}

OperationResult LibraryOperations::AddStudent(const std::string& instructor, const FieldTexts& captions,
                                              const FieldTexts& values) {
  // "General Folder" is the library itself: a student made there would appear as an instructor.
  if (instructor.empty() || instructor == kGeneralFolder) return Refuse(LibraryTextsFor(settings_).addHelp);
  if (const std::string refusal = Obstacle(); !refusal.empty()) return Refuse(refusal);
  FieldTexts named = values;
  named[kNameField] = WithoutOuterBlanks(values[kNameField]);
  const auto added = kinalyx::AddStudent(tree_.InstructorFolder(instructor), captions, named, words_.noun());
  if (!added) return Refuse(added.Why());
  return {*added, true, instructor, named[kNameField]};
}

OperationResult LibraryOperations::RenameStudentCancelled() const {
  return Report(Tr("{} rename cancelled.", words_.Noun()));
}

OperationResult LibraryOperations::RenameStudent(const std::string& instructor, const std::string& student,
                                                 std::string_view typed) {
  const std::string_view name = WithoutOuterBlanks(typed);
  if (const std::string refusal = RefuseUnlessStudentChangeable(instructor, student, Change::Rename); !refusal.empty())
    return Report(refusal);
  if (!IsValidName(name)) return Refuse(Tr("Invalid character in {} Name.", words_.Noun()));
  if (IsBlank(name)) return Refuse(Tr("You must type a name!"));
  if (name == student) return RenameStudentCancelled();
  const std::string from = tree_.StudentFolder(instructor, student);
  const std::string to = tree_.StudentFolder(instructor, name);
  const std::string taken = Tr("The name you have chosen already exists in the database.");
  if (HasFolderNamed(tree_.InstructorFolder(instructor), name, student)) return Refuse(taken);
  if (const Outcome renamed = RenameEntry(from, to, disk_); !renamed) {
    // Another workstation may have taken the name just now.
    if (EntryExists(to)) return Refuse(taken);
    const std::string text = Tr("The {} could not be renamed", words_.noun());
    return EntryExists(from) ? Refuse(text + ": " + renamed.Why()) : RefuseGone(text);
  }
  analysis_.PathChanged(from, to);
  OperationResult result{Tr("{} successfully renamed.", words_.Noun()), true, instructor, std::string(name)};
  // A student without a profile gains a whole one at the next look.
  const std::string profile = ProfilePath(to);
  if (FileExists(profile) && !WritePrivateProfileString("Profile", "Name", name, profile)) {
    host_.Message(MessageKind::Warning, "", Tr("An error has occurred while editing the profile"));
    result.words = Tr("An error has occurred while editing the profile");
  }
  return result;
}

void LibraryOperations::MoveStudent(const std::string& instructor, const std::string& student,
                                    const std::string& targetInstructor, Events events) {
  if (const std::string refusal = RefuseUnlessStudentChangeable(instructor, student, Change::Move); !refusal.empty())
    return events->Ended(Report(refusal));
  if (targetInstructor.empty() || targetInstructor == kGeneralFolder)
    return events->Ended(Report(LibraryTextsFor(settings_).moveStudent));
  const std::string taken =
      Tr("The Database that you have chosen already contains a {} with the same name.", words_.noun());
  const std::string target = tree_.InstructorFolder(targetInstructor);
  // A database that another workstation has just renamed would come back.
  if (!dirExists(target))
    return events->Ended(Refuse(Tr("The folder {} cannot be found. The {} was not moved.", target, words_.noun())));
  const std::string from = tree_.StudentFolder(instructor, student);
  const std::string to = tree_.StudentFolder(targetInstructor, student);
  if (EntryExists(to) || HasFolderNamed(target, student)) return events->Ended(Refuse(taken));
  auto job = std::make_unique<StudentMoveJob>(from, to, disk_);
  Run<StudentMoveJob>(
      std::move(job),
      [=, this](StudentMoveJob& move) -> OperationResult {
        const CopyJob& copy = move.Copy();
        if (copy.Status() == CopyJob::State::Cancelled) return Report(Tr(kOperationCancelled));
        if (copy.NameTaken()) return Refuse(taken);
        if (copy.Status() != CopyJob::State::Done)
          return EntryExists(from) ? Refuse(copy.Error()) : RefuseGone(Tr("The {} was not moved", words_.noun()));
        analysis_.PathChanged(from, to);
        if (!copy.Error().empty()) host_.Message(MessageKind::Warning, "", copy.Error());
        return {Tr("{} Successfully Moved to {} .", words_.Noun(), targetInstructor), true, targetInstructor, student};
      },
      std::move(events));
}

void LibraryOperations::DeleteStudent(const std::string& instructor, const std::string& student, Events events) {
  if (const std::string refusal = RefuseUnlessStudentChangeable(instructor, student, Change::Delete); !refusal.empty())
    return events->Ended(Report(refusal));
  const std::string folder = tree_.StudentFolder(instructor, student);
  ITrash* const trash = TrashOf(folder);
  if (!trash) return RemoveStudent(instructor, folder, std::move(events));
  const auto answered = std::make_shared<OrGoesOn>(events);
  Run<StudentTrashJob>(
      std::make_unique<StudentTrashJob>(folder, *trash),
      [=, this](const StudentTrashJob& removal) -> OperationResult {
        if (removal.Taken()) return {Tr("{} Successfully removed from the system.", words_.Noun()), true, instructor};
        if (!EntryExists(folder)) return RefuseGone(Tr("The {} was not removed", words_.noun()));
        if (!GoesForGood(Tr("The {} {}", words_.noun(), student))) return Report(Tr(kOperationCancelled));
        answered->GoOn();
        RemoveStudent(instructor, folder, events);
        return {};
      },
      answered);
}

void LibraryOperations::RemoveStudent(const std::string& instructor, const std::string& folder, Events events) {
  auto job = std::make_unique<StudentRemovalJob>(folder, disk_);
  Run<StudentRemovalJob>(
      std::move(job),
      [this, instructor](StudentRemovalJob& removal) -> OperationResult {
        if (removal.Removed()) return {Tr("{} Successfully removed from the system.", words_.Noun()), true, instructor};
        if (removal.Error().empty()) return Report(Tr(kOperationCancelled));
        OperationResult result = Refuse(Tr("The {} could not be removed: {}", words_.noun(), removal.Error()));
        result.refill = true;
        return result;
      },
      std::move(events));
}

}  // namespace kinalyx
