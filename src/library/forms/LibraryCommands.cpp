#include "library/forms/LibraryCommands.h"

#include <QPointer>
#include <memory>
#include <utility>

#include "library/LibraryBrowser.h"
#include "library/ListChoices.h"
#include "library/TrimJob.h"
#include "library/VideoNames.h"
#include "library/forms/EditPanel.h"
#include "library/forms/ProgressForm.h"
#include "library/forms/VideosPanel.h"
#include "platform/files/Tr.h"
#include "platform/widgets/Text.h"

namespace kinalyx {

class LibraryCommands::Shown final : public IOperationEvents {
 public:
  explicit Shown(LibraryCommands& commands) : commands_(&commands) {}

  void ShowStatus(const std::string& words) override {
    if (commands_) commands_->page_.Say(Q(words));
  }
  void ShowProgress(const JobProgress&) override {}
  void WorkOver() override {}
  void Ended(const OperationResult& result) override {
    if (commands_) commands_->Show(result);
  }

 private:
  QPointer<LibraryCommands> commands_;
};

LibraryCommands::LibraryCommands(IHost& host, Settings& settings, LibraryOperations& operations,
                                 LibraryBrowser& browser, const ListChoices& choices, VideosPanel& videos,
                                 ILibraryPage& page, QWidget* over)
    : QObject(over),
      host_(host),
      operations_(operations),
      browser_(browser),
      choices_(choices),
      videos_(videos),
      page_(page),
      dialog_(new DialogForm(host, settings, over)),
      progress_(new ProgressForm(host, operations, over)) {
  connect(dialog_, &DialogForm::Wanted, this, &LibraryCommands::Carry);
  connect(dialog_, &QDialog::rejected, this, &LibraryCommands::Cancelled);
  connect(&videos_.Trim(), &EditPanel::SaveWanted, this, &LibraryCommands::SaveTrim);
  connect(&videos_.Trim(), &EditPanel::CancelWanted, this, &LibraryCommands::CloseTrim);
}

void LibraryCommands::Run(LibraryAction action) {
  switch (action) {
    case LibraryAction::RenameStudent: return PrepareStudent(Mode::RenameStudent, Change::Rename);
    case LibraryAction::MoveStudent: return PrepareStudent(Mode::MoveStudent, Change::Move);
    case LibraryAction::DeleteStudent: return PrepareStudent(Mode::DeleteStudent, Change::Delete);
    case LibraryAction::SendToAnalysis: return SendToAnalysis();
    case LibraryAction::Trim: return OpenTrim();
    case LibraryAction::RenameVideo: return PrepareVideo(Mode::RenameVideo);
    case LibraryAction::MoveVideo: return PrepareVideos(Mode::MoveVideo);
    case LibraryAction::CopyVideo: return PrepareVideos(Mode::CopyVideo);
    case LibraryAction::DeleteVideo: return PrepareVideos(Mode::DeleteVideo);
    case LibraryAction::QuickLaunch: return QuickLaunch();
    case LibraryAction::AddStudent:
    case LibraryAction::Profile:
    case LibraryAction::Statistics: return;
  }
}

void LibraryCommands::RenameInstructor() { PrepareInstructor(Mode::RenameInstructor, Change::Rename); }
void LibraryCommands::DeleteInstructor() { PrepareInstructor(Mode::DeleteInstructor, Change::Delete); }

void LibraryCommands::SendToAnalysis() {
  // What is being moved or cut just now must not be opened.
  if (operations_.Busy()) return page_.Say(tr("Please wait until the operation under way has finished."));
  if (videos_.VideoPlay1().Control().IsPlaying()) videos_.VideoPlay1().TogglePlay();
  const auto say = [this](const std::string& words) { page_.Say(Q(words)); };
  const OperationResult sent = operations_.SendToAnalysis(Chosen(), say);
  page_.Say(Q(sent.Status()));
  if (sent.Done() && choices_.GoesAlong()) operations_.GoToAnalysis();
}

std::vector<LibraryVideo> LibraryCommands::Chosen() const {
  std::vector<LibraryVideo> videos;
  for (const int row : videos_.ChosenRows())
    videos.push_back({browser_.Instructor(), browser_.Student(), browser_.VideoPathAt(row)});
  if (videos.empty()) videos.push_back(ChosenVideo(browser_));
  return videos;
}

// ---------------------------------------------------------------- videos from elsewhere

void LibraryCommands::AddVideos() {
  const std::vector<std::string> paths = host_.PickFiles({Tr("Add Videos"), "", VideoFilter()});
  if (!paths.empty()) AddVideos(paths, browser_.Student());
}

void LibraryCommands::AddVideos(const std::vector<std::string>& paths, const std::string& student) {
  // What arrives is chosen, and the one that is being trimmed would be put aside.
  if (videos_.TrimShown()) return page_.Say(tr("Save or cancel the trim first, then add videos."));
  const ImportTarget target{browser_.Instructor(), student};
  DoLong(tr("Add Videos"), [&](Events events) { operations_.AddVideos(paths, target, std::move(events)); });
}

void LibraryCommands::ShowFolder() {
  if (!host_.ShowFolder(browser_.Folder())) page_.Say(tr("The folder is %1").arg(Q(browser_.Folder())));
}

// ---------------------------------------------------------------- preparing

void LibraryCommands::PrepareInstructor(Mode mode, Change change) {
  const std::string refusal = operations_.RefuseUnlessInstructorChangeable(browser_.Instructor(), change);
  if (!refusal.empty()) return page_.Say(Q(refusal));
  dialog_->Open(mode, ChosenVideo(browser_));
}

void LibraryCommands::PrepareStudent(Mode mode, Change change) {
  const std::string refusal =
      operations_.RefuseUnlessStudentChangeable(browser_.Instructor(), browser_.Student(), change);
  if (!refusal.empty()) return page_.Say(Q(refusal));
  const LibraryVideo about = ChosenVideo(browser_);
  const bool goes = mode == Mode::DeleteStudent;
  dialog_->Open(mode, about, 1, goes ? operations_.DeletionText(about, true) : std::string());
}

void LibraryCommands::PrepareVideo(Mode mode) {
  const LibraryVideo video = ChosenVideo(browser_);
  const std::string refusal = operations_.RefuseUnlessVideoChangeable(video);
  if (!refusal.empty()) return page_.Say(Q(refusal));
  videos_.VideoPlay1().Control().StopPlay();
  dialog_->Open(mode, video);
}

/// For what can be done with several at once.
void LibraryCommands::PrepareVideos(Mode mode) {
  prepared_ = Chosen();
  for (const LibraryVideo& video : prepared_) {
    const std::string refusal = operations_.RefuseUnlessVideoChangeable(video);
    if (!refusal.empty()) return page_.Say(Q(refusal));
  }
  videos_.VideoPlay1().Control().StopPlay();
  const bool goes = mode == Mode::DeleteVideo;
  dialog_->Open(mode, prepared_.front(), prepared_.size(),
                goes ? operations_.DeletionText(prepared_.front(), false) : std::string());
}

void LibraryCommands::OpenTrim() {
  const std::string refusal = operations_.RefuseUnlessVideoChangeable(ChosenVideo(browser_));
  if (!refusal.empty()) return page_.Say(Q(refusal));
  if (!videos_.VideoPlay1().Control().Info()) return page_.Say(tr("This video cannot be opened."));
  videos_.VideoPlay1().Control().StopPlay();
  videos_.ShowTrim(true);
}

void LibraryCommands::CloseTrim() {
  if (!videos_.TrimShown()) return;
  videos_.ShowTrim(false);
  videos_.FocusList();
}

void LibraryCommands::SaveTrim() {
  const LibraryVideo video = ChosenVideo(browser_);
  const int first = videos_.Trim().FirstFrame();
  const int last = videos_.Trim().LastFrame();
  const int rate = TrimRate(videos_.VideoPlay1().Control().Info());
  CloseTrim();
  DoLong(tr("Trim Video"), [&](Events events) { operations_.Trim(video, first, last, rate, std::move(events)); });
}

void LibraryCommands::QuickLaunch() {
  const LibraryVideo video = ChosenVideo(browser_);
  // Copying to it touches neither the notes nor the video.
  if (video.instructor != kQuickLaunch)
    return operations_.QuickLaunch(video, BeginLong(tr("Copy video to Quick Launch Folder")));
  DoLong(tr("Removing video from program!"), [&](Events events) { operations_.QuickLaunch(video, std::move(events)); });
}

// ---------------------------------------------------------------- carrying out

void LibraryCommands::Carry() {
  const LibraryVideo about = dialog_->About();
  switch (dialog_->CurrentMode()) {
    case Mode::RenameInstructor:
      return Do([&] { return operations_.RenameInstructor(about.instructor, dialog_->Name()); });
    case Mode::DeleteInstructor: return Do([&] { return operations_.DeleteInstructor(about.instructor); });
    case Mode::RenameStudent:
      return Do([&] { return operations_.RenameStudent(about.instructor, about.student, dialog_->Name()); });
    case Mode::MoveStudent:
      return DoLong(dialog_->windowTitle(), [&](Events events) {
        operations_.MoveStudent(about.instructor, about.student, dialog_->Database(), std::move(events));
      });
    case Mode::DeleteStudent:
      return DoLong(dialog_->windowTitle(), [&](Events events) {
        operations_.DeleteStudent(about.instructor, about.student, std::move(events));
      });
    case Mode::RenameVideo: return Do([&] { return operations_.RenameVideo(about, dialog_->Name()); });
    case Mode::MoveVideo:
      return DoLong(dialog_->windowTitle(), [&](Events events) {
        operations_.MoveVideos(prepared_, dialog_->Database(), dialog_->Student(), std::move(events));
      });
    case Mode::CopyVideo:
      return DoLong(dialog_->windowTitle(),
                    [&](Events events) { operations_.CopyToDisk(prepared_, dialog_->Drive(), std::move(events)); });
    case Mode::DeleteVideo: return Do([&] { return operations_.DeleteVideos(prepared_); });
  }
}

void LibraryCommands::Cancelled() {
  const bool renamesStudent = dialog_->CurrentMode() == Mode::RenameStudent;
  page_.Say(renamesStudent ? Q(operations_.RenameStudentCancelled().Status()) : QString());
}

void LibraryCommands::Do(const std::function<OperationResult()>& operation) {
  if (page_.Release()) Show(operation());
}

LibraryCommands::Events LibraryCommands::BeginLong(const QString& title) {
  return progress_->Begin(title, std::make_shared<Shown>(*this));
}

void LibraryCommands::DoLong(const QString& title, const std::function<void(Events)>& operation) {
  if (!page_.Release()) return;
  operation(BeginLong(title));
  if (operations_.Busy()) dialog_->accept();
}

/// What was refused can be put right in the dialog; what has been done closes it.
void LibraryCommands::Show(const OperationResult& result) {
  if (result.Done()) dialog_->accept();
  page_.ShowResult(result);
  page_.Say(Q(result.Status()));
}

}  // namespace kinalyx
