#include "capture/import/ImportSession.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/host/DriveWatch.h"

namespace kinalyx {
namespace {

using State = ImportRow::State;

constexpr int kTickMs = 1000;
/// Looks at the folder for which a new file must not have changed before its countdown begins, and the seconds of
/// that. A camera that is pulled out or a share that stalls stands still for a moment too, so both are waited for.
constexpr int kStillTicks = 2;
constexpr int kCountdown = 5;

constexpr const char* kAutoOff = TrLater("Click to Start Auto Import");
constexpr const char* kAutoOn = TrLater("Automatic Import Active.... Waiting for new videos....");
constexpr const char* kNoCameraFolder = TrLater(
    "Before importing video from your camera, you must set up the camera video location in Program Setup. Click OK to "
    "go to Program Setup.");
constexpr const char* kNoAutoFolder = TrLater(
    "Before using the Auto Import feature, you must set up the Import Folder location in Program Setup. Click OK to go "
    "to Program Setup.");
constexpr const char* kUnreadable = TrLater(
    "There is a problem finding data on this original video. If this is a Windows 10 pc, try running the 'tweaker' "
    "software in Program Setup\\Capture. Err 2238");
constexpr const char* kNotSaved = TrLater("There was a problem saving this video.");
constexpr const char* kBadTrim =
    TrLater("Your TRIM Start and End times are not correct. Please check your Start and End times and try again.");
constexpr const char* kNoName = TrLater("You must name the video before saving!");

std::string NameAlone(const std::string& path) {
  const std::string name = LastName(path);
  return name.substr(0, name.rfind('.'));
}

}  // namespace

/// Hands the news of a job on.
class ImportSession::JobEvents final : public IJobEvents {
 public:
  explicit JobEvents(ImportSession& session) : session_(session) {}
  void Progress(const JobProgress& progress) override {
    session_.progress_ = progress;
    session_.Changed();
  }
  void Over(IJob* job) override { session_.EndOfStream(static_cast<ConvertJob*>(job)); }

 private:
  ImportSession& session_;
};

ImportSession::ImportSession(const Parts& parts)
    : parts_(parts), autoStatus_(Tr(kAutoOff)), jobs_(parts.host, parts.on) {}

ImportSession::~ImportSession() = default;

std::string ImportSession::TimeText(double ms) {
  const auto hundredths = static_cast<long long>(std::floor(std::max(0.0, ms) / 10 + 1e-6));
  return fmt::format("{}:{:02}.{:02}", hundredths / 6000, hundredths / 100 % 60, hundredths % 100);
}

std::string ImportSession::Folder() const {
  switch (kind_) {
    case ImportKind::Camera: return parts_.settings.ImportFolder;
    case ImportKind::Automatic: return parts_.settings.AutoImportFolder;
    case ImportKind::Manual: break;
  }
  return {};
}

// ---------------------------------------------------------------- the list

void ImportSession::ChooseKind(ImportKind kind) {
  if (kind_ != kind) {
    EndWatch();
    queue_.clear();
    list_.Clear();
    status_.clear();
    Select({});
  }
  kind_ = kind;
  Refresh();
}

void ImportSession::Refresh() {
  TakeFolder(autoActive_, false);
  Changed();
}

void ImportSession::LookAgain() {
  if (kind_ != ImportKind::Camera) return;
  TakeFolder(false, true);
  Changed();
}

/// @param atOnce  nobody has asked for it just now: a drive that does not answer is not waited for
void ImportSession::TakeFolder(bool writers, bool atOnce) {
  const std::string folder = Folder();
  folderGone_ = false;
  if (kind_ == ImportKind::Manual) return;
  if (folder.empty()) {
    list_.TakeFolder({});
    return;
  }
  const auto read = [folder, writers]() -> std::optional<std::vector<ImportFile>> {
    if (!dirExists(folder)) return std::nullopt;
    return FilesToImport(folder, writers);
  };
  DriveWatch& drives = parts_.host.Drives();
  const auto answer = atOnce ? drives.AskAtOnce(folder, read) : drives.Ask(folder, read);
  folderGone_ = !answer || !*answer;
  if (folderGone_) return;
  list_.TakeFolder(**answer);
  if (!list_.Find(selected_)) Select({});
}

void ImportSession::Select(const std::string& path) {
  selected_ = list_.Find(path) ? path : std::string();
  ClearTrim();
}

void ImportSession::Browse() {
  const FileDialog dialog{Tr(kBrowseTitle), selected_.empty() ? std::string() : FolderOf(selected_), Tr(kBrowseFilter)};
  const auto paths = parts_.host.PickFiles(dialog);
  if (!paths.empty() && !AddFiles(paths))
    parts_.host.Message(MessageKind::Information, "", Tr("None of these files is a video that can be imported."));
}

bool ImportSession::AddFiles(const std::vector<std::string>& paths) {
  if (paths.empty()) return false;
  const auto read = [paths] {
    std::vector<ImportFile> files;
    for (const std::string& path : paths) {
      if (dirExists(path)) {
        const auto inside = FilesToImport(path, false);
        files.insert(files.end(), inside.begin(), inside.end());
      } else if (const auto stamp = StampOf(path); stamp && IsImportable(LastName(path))) {
        files.push_back({path, *stamp, false});
      }
    }
    return files;
  };
  const auto files = parts_.host.Drives().Ask(FolderOf(paths.front()), read);
  if (!files || files->empty()) return false;
  list_.Add(*files);
  Select(files->front().path);
  return true;
}

void ImportSession::RemoveFromList(const std::string& path) {
  if (kind_ != ImportKind::Manual) return;
  std::erase_if(queue_, [&](const Part& part) { return part.path == path; });
  list_.Remove(path);
  if (!list_.Find(selected_)) Select({});
  Changed();
}

// ---------------------------------------------------------------- the trim

void ImportSession::SetStartPoint(double ms) {
  if (selected_.empty()) return;
  trimStart_ = ms;
  SetStatus(Tr("Trim Excess from the END of the video or choose to Save New Video."));
}

void ImportSession::SetEndPoint(double ms) {
  if (selected_.empty()) return;
  trimEnd_ = ms;
  SetStatus(Tr("Choose to Save New Video."));
}

void ImportSession::ClearTrim() {
  trimStart_.reset();
  trimEnd_.reset();
  Changed();
}

bool ImportSession::TrimIsGood() const { return !trimEnd_ || *trimEnd_ > trimStart_.value_or(0); }

// ---------------------------------------------------------------- conversion

bool ImportSession::HasFolder() {
  if (kind_ == ImportKind::Manual || !Folder().empty()) return true;
  parts_.host.Message(MessageKind::Information, "",
                      kind_ == ImportKind::Camera ? Tr(kNoCameraFolder) : Tr(kNoAutoFolder));
  parts_.events.GoToCaptureSetup();
  return false;
}

/// Works out the next name, and asks the user for one where none is made.
bool ImportSession::NextName() {
  parts_.naming.GetVideoName();
  if (!parts_.naming.CapturedVideoPath().empty()) return true;
  parts_.host.Message(MessageKind::Information, "", Tr(kNoName));
  parts_.naming.ChangeName();
  return false;
}

bool ImportSession::CanSave(const std::string& path) const {
  const ImportRow* row = list_.Find(path);
  return row && row->state != State::Converting && row->state != State::Queued;
}

bool ImportSession::Save(const std::vector<std::string>& paths) {
  if (!HasFolder()) return false;
  std::vector<std::string> wanted;
  std::ranges::copy_if(paths, std::back_inserter(wanted), [this](const std::string& path) { return CanSave(path); });
  if (wanted.empty()) return false;
  if (std::ranges::find(wanted, selected_) != wanted.end() && !TrimIsGood()) {
    parts_.host.Message(MessageKind::Warning, "", Tr(kBadTrim));
    return false;
  }
  if (!Busy() && !NextName()) return false;
  for (const std::string& path : wanted) {
    Mark(path, State::Queued);
    const bool trimmed = path == selected_;
    queue_.push_back({path, trimmed ? trimStart_.value_or(0) : 0, trimmed ? trimEnd_.value_or(0) : 0});
  }
  return Busy() || ConvertNext();
}

bool ImportSession::ConvertNext() {
  while (!queue_.empty()) {
    const Part part = queue_.front();
    queue_.pop_front();
    if (!list_.Find(part.path)) continue;
    if (ConvertFile(part)) return true;
    Mark(part.path, State::Waiting);
    Unqueue();
    return false;
  }
  return false;
}

bool ImportSession::ConvertFile(const Part& part) {
  if (!NextName()) return false;
  const std::string& path = part.path;
  const Settings& settings = parts_.settings;
  ImportOrder order;
  order.source = path;
  order.destination = parts_.naming.CapturedVideoPath();
  order.startMs = part.startMs;
  order.endMs = part.endMs;
  order.keepSize = settings.KeepPictureSize != 0;
  order.edge = settings.ImportEdge != 0;
  order.reverseFields = kind_ == ImportKind::Automatic ? settings.AutoReverseFields : settings.HDReverseFields;
  order.moveSource = kind_ != ImportKind::Manual;
  converting_ = path;
  progress_ = {};
  progress_.current = LastName(path);
  Mark(path, State::Converting);
  SetStatus(Tr("Currently Importing {} to filename {}", LastName(path), NameAlone(order.destination)));
  return jobs_.Start(std::make_unique<ConvertJob>(std::move(order)), std::make_unique<JobEvents>(*this));
}

/// The job is over; null for one that was left to itself.
void ImportSession::EndOfStream(const ConvertJob* job) {
  const std::string path = std::exchange(converting_, {});
  std::string trouble;
  switch (job ? job->Status() : ConvertJob::State::Cancelled) {
    case ConvertJob::State::Saved: TellSaved(*job); break;
    case ConvertJob::State::Cancelled:
      Mark(path, State::Stopped, job ? "" : Tr("The drive does not answer."));
      SetStatus(Tr("Last Video WAS NOT SAVED"));
      break;
    case ConvertJob::State::Unreadable:
    case ConvertJob::State::Running:
    case ConvertJob::State::NotSaved:
      Mark(path, State::Failed, job->Error());
      SetStatus(Tr("Last Video WAS NOT SAVED"));
      parts_.host.Note(MessageKind::Warning, fmt::format("import: {}", job->Error()));
      trouble = job->Status() == ConvertJob::State::Unreadable ? Tr(kUnreadable) : Tr(kNotSaved);
      if (trouble == Tr(kNotSaved) && !job->Error().empty()) trouble += "\n\n" + AsSentence(job->Error());
      break;
  }
  // Those behind it do not wait until the message has been read.
  ConvertNext();
  Changed();
  if (!trouble.empty()) Trouble(trouble);
}

void ImportSession::TellSaved(const ConvertJob& job) {
  const std::string& path = job.Order().source;
  const std::string& video = job.Order().destination;
  if (path == selected_) ClearTrim();
  Mark(path, State::Saved, NameAlone(video));
  if (!job.Remark().empty()) parts_.host.Note(MessageKind::Warning, fmt::format("import: {}", job.Remark()));
  const bool wantsMove = job.Order().moveSource;
  if (!wantsMove) SetStatus(Tr("Last Video Saved Successfully"));
  else if (!job.MovedTo().empty()) SetStatus(Tr("File Conversion, Save and Move Complete"));
  else SetStatus(Tr("Last Video Saved Successfully. The original is still in its folder: {}", job.Remark()));
  if (kind_ != ImportKind::Manual) TakeFolder(autoActive_, true);
  // Who hears of it may use a name up that was typed for this video alone.
  parts_.events.VideoImported(video);
  parts_.naming.GetVideoName();
  if (autoActive_) {
    const std::size_t left = list_.Count(State::Waiting) + list_.Count(State::Arriving);
    SetAutoStatus(left == 1 ? Tr("1 video left to import") : Tr("{} videos left to import", left));
  }
}

/// One message at a time: the list tells of the others.
void ImportSession::Trouble(const std::string& text) {
  if (telling_) return;
  telling_ = true;
  parts_.host.Message(MessageKind::Warning, "", text);
  telling_ = false;
}

void ImportSession::CancelConversion() {
  Unqueue();
  jobs_.Cancel();
  Changed();
}

void ImportSession::Unqueue() {
  for (const Part& part : std::exchange(queue_, {})) Mark(part.path, State::Waiting);
}

// ---------------------------------------------------------------- the watch

void ImportSession::ToggleAuto() {
  if (autoActive_) {
    EndWatch();
    return;
  }
  if (!HasFolder() || !NextName()) return;
  autoActive_ = true;
  counting_.clear();
  autoTimer_ = HostTimer(parts_.host, kTickMs, true, [this] { AutoTimer(); });
  AutoTimer();
}

void ImportSession::EndWatch() {
  if (!autoActive_) return;
  autoTimer_.Stop();
  autoActive_ = false;
  counting_.clear();
  SetAutoStatus(Tr(kAutoOff));
  Changed();
}

void ImportSession::AutoTimer() {
  TakeFolder(true, true);
  if (!Busy()) CountDown();
  Changed();
}

/// What arrived first and is whole is taken after a moment in which the user can still stop it.
void ImportSession::CountDown() {
  const auto ready = std::ranges::find_if(
      list_.Rows(), [](const ImportRow& row) { return row.state == State::Waiting && row.stillTicks >= kStillTicks; });
  if (folderGone_ || ready == list_.Rows().end()) {
    counting_.clear();
    SetAutoStatus(folderGone_ ? Tr("The Import Folder cannot be reached.... Waiting for it....") : Tr(kAutoOn));
    return;
  }
  const std::string path = ready->file.path;
  if (path != std::exchange(counting_, path)) secondsLeft_ = kCountdown;
  else --secondsLeft_;
  parts_.naming.GetVideoName();
  const std::string& video = parts_.naming.CapturedVideoPath();
  if (video.empty()) {
    EndWatch();
    Trouble(Tr(kNoName));
    parts_.naming.ChangeName();
    return;
  }
  if (secondsLeft_ > 0) {
    SetAutoStatus(Tr("Importing {} to filename {} in {} seconds.", LastName(path), NameAlone(video), secondsLeft_));
    return;
  }
  counting_.clear();
  if (ConvertFile({path})) SetAutoStatus(Tr("Importing {} to filename {}", LastName(path), NameAlone(video)));
}

// ---------------------------------------------------------------- small things

void ImportSession::Mark(const std::string& path, ImportRow::State state, const std::string& remark) {
  ImportRow* row = list_.Find(path);
  if (!row) return;
  row->state = state;
  row->remark = remark;
}

void ImportSession::SetStatus(std::string status) {
  status_ = std::move(status);
  Changed();
}

void ImportSession::SetAutoStatus(std::string status) { autoStatus_ = std::move(status); }

}  // namespace kinalyx
