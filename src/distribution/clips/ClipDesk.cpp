#include "distribution/clips/ClipDesk.h"

#include <fmt/format.h>

#include <algorithm>
#include <filesystem>
#include <utility>

#include "core/Heading.h"
#include "library/LibraryTree.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/host/DriveWatch.h"
#include "workspace/AnalysisWorkspace.h"

namespace kinalyx {
namespace {

namespace fs = std::filesystem;

constexpr const char* kLessons = "Lessons";
constexpr int kLoopRate = 15;  // pictures in a second

std::string Seconds(AnalysisWorkspace& analysis, int slot, int position) {
  return fmt::format("{:.2f} s", analysis.Transport().SecondsAt(slot, position));
}

std::string FileNameOf(const std::string& path) { return fs::path(path).filename().string(); }

/// A student's folder for what is taken home; one that is there in other letters is it.
std::string LessonsIn(const std::string& student) {
  std::error_code ignored;
  for (const auto& entry : fs::directory_iterator(student, ignored))
    if (entry.is_directory(ignored) && SameName(entry.path().filename().string(), kLessons))
      return entry.path().string();
  return JoinPath(student, kLessons);
}

bool LiesIn(const std::string& path, const std::string& folder) {
  return !folder.empty() && path.size() > folder.size() && path.starts_with(folder) &&
         (folder.ends_with('/') || path[folder.size()] == '/');
}

}  // namespace

/// Passes on what becomes of one job.
class ClipDesk::Told final : public IJobEvents {
 public:
  explicit Told(ClipDesk& desk) : desk_(desk) {}
  void Progress(const JobProgress& progress) override {
    desk_.events_.ClipProgress(desk_.current_, progress.part, static_cast<int>(desk_.waiting_.size()));
  }
  void Over(IJob* job) override { desk_.Over(static_cast<const ClipJob*>(job)); }

 private:
  ClipDesk& desk_;
};

ClipDesk::ClipDesk(IHost& host, const Settings& settings, IClipEvents& events, JobRunner::On on)
    : host_(host), settings_(settings), events_(events), runner_(host, on) {}

bool ClipDesk::SeveralShown(AnalysisWorkspace& analysis) {
  const Stage& stage = analysis.Stage();
  int shown = 0;
  for (int slot = 1; slot <= kSlots; ++slot) shown += stage.HasVideo(slot) && stage.IsShown(slot) ? 1 : 0;
  return shown > 1 || stage.MultiFrame();
}

std::vector<ClipMoment> ClipDesk::Moments(AnalysisWorkspace& analysis) {
  const Stage& stage = analysis.Stage();
  const int slot = stage.CurrentWindow;
  std::vector<ClipMoment> moments;
  if (!stage.HasVideo(slot)) return moments;
  const AVIControl& player = stage.MP(slot);
  const int last = std::max(0, player.VideoLength() - 1);
  for (const VideoMark& mark : stage.Current().data.Study.Marks) {
    const int position = mark.Moment.Position(player.SplitFields());
    if (position > last) continue;
    const std::string name = mark.Name.empty() ? Tr("Mark") : mark.Name;
    moments.push_back({position, fmt::format("{}, {}", name, Seconds(analysis, slot, position))});
  }
  moments.push_back({player.Position(), Tr("Shown now, {}", Seconds(analysis, slot, player.Position()))});
  const AVIControl::Range range = player.PlayRange();
  if (range.first > 0) moments.push_back({range.first, Tr("Beginning of the range")});
  if (range.last < last) moments.push_back({range.last, Tr("End of the range")});
  std::ranges::stable_sort(moments, {}, &ClipMoment::Position);
  moments.insert(moments.begin(), {0, Tr("Beginning")});
  moments.push_back({last, Tr("End")});
  return moments;
}

ClipWish ClipDesk::Proposal(AnalysisWorkspace& analysis) const {
  ClipWish wish = last_;
  wish.Voice.clear();
  const Stage& stage = analysis.Stage();
  const int slot = stage.CurrentWindow;
  if (!stage.HasVideo(slot)) return wish;
  const AVIControl::Range range = stage.MP(slot).PlayRange();
  wish.First = range.first;
  wish.Last = range.last;
  const std::string& path = stage.At(slot).path;
  wish.Folder = FolderOf(path);
  // Beside a student's videos a clip would be one of them; it belongs to what the student takes home.
  if (LiesIn(path, settings_.LibraryPath) && !SameName(FileNameOf(wish.Folder), kLessons))
    wish.Folder = LessonsIn(wish.Folder);
  const std::string name = NameOfVideo(path);
  wish.Name = name;
  for (int n = 2; EntryExists(JoinPath(wish.Folder, wish.Name + EndingOf(wish.Makes))); ++n)
    wish.Name = fmt::format("{} {}", name, n);
  wish.AllWindows = SeveralShown(analysis);
  return wish;
}

ClosingCard ClipDesk::Card() const {
  ClosingCard card;
  for (const std::string& line : ShownHeading(settings_))
    if (!IsBlank(line)) card.Lines.push_back(line);
  if (settings_.Logo) card.LogoPath = settings_.LogoName;
  return card;
}

std::string ClipDesk::EndingOf(ClipWish::File file) {
  switch (file) {
    case ClipWish::File::Mp4:
    case ClipWish::File::Mp4Old: return ".mp4";
    case ClipWish::File::Gif: return ".gif";
    case ClipWish::File::Row: return ".png";
  }
  return {};
}

ClipOrder ClipDesk::OrderOf(AnalysisWorkspace& analysis, const ClipWish& wish) const {
  ClipOrder order;
  order.Scene = TakeScene(analysis, wish.AllWindows);
  if (wish.Size == ClipSize::Portrait) order.Scene = Stacked(std::move(order.Scene));
  order.Words = wish.Words;
  order.Stretch = {.First = std::min(wish.First, wish.Last),
                   .Last = std::max(wish.First, wish.Last),
                   .Slower = wish.Slower,
                   .PauseMs = wish.PauseSeconds * 1000};
  order.Path = JoinPath(wish.Folder, wish.Name + EndingOf(wish.Makes));
  order.RowPictures = wish.RowPictures;
  POINTAPI size = PixelsOf(order.Scene, wish.Size);
  switch (wish.Makes) {
    case ClipWish::File::Mp4: break;
    case ClipWish::File::Mp4Old: order.Profile = ClipFormat::Profile::Baseline; break;
    case ClipWish::File::Gif:
      order.Makes = ClipOrder::Kind::Gif;
      order.Stretch.MostRate = kLoopRate;
      size = PixelsOfLoop(order.Scene);
      break;
    case ClipWish::File::Row:
      order.Makes = ClipOrder::Kind::Row;
      size = PixelsOfRow(order.Scene, wish.RowPictures);
      break;
  }
  order.Width = size.x;
  order.Height = size.y;
  if (order.Makes == ClipOrder::Kind::Mp4) {
    order.Sound = wish.Sound;
    order.Voice = wish.Voice;
  }
  if (wish.Card) order.Card = Card();
  return order;
}

Outcome ClipDesk::Save(AnalysisWorkspace& analysis, const ClipWish& wish) {
  ClipWish taken = wish;
  taken.Name = std::string(WithoutOuterBlanks(wish.Name));
  if (!IsValidName(taken.Name) || IsBlank(taken.Name))
    return Outcome(Fault::Refused, Tr("Invalid Character in name. Please try again."));
  ClipOrder order = OrderOf(analysis, taken);
  if (order.Scene.Videos.empty()) return Outcome(Fault::Refused, Tr("Open a video first."));
  const auto isItself = [&](const SceneVideo& video) {
    std::error_code ignored;
    return video.Path == order.Path || fs::equivalent(video.Path, order.Path, ignored);
  };
  if (std::ranges::any_of(order.Scene.Videos, isItself))
    return Outcome(Fault::Refused, Tr("The clip would replace its own video. Choose another name."));
  if (!host_.Drives().Answers(FolderOf(taken.Folder)))
    return Outcome(Fault::Unwritable, Tr("The drive does not answer. Choose another folder."));
  const auto same = [&](const ClipOrder& other) { return other.Path == order.Path; };
  if (std::ranges::any_of(waiting_, same) || (Busy() && current_ == order.Path))
    return Outcome(Fault::Refused, Tr("A clip of this name is being written."));
  if (EntryExists(order.Path) &&
      !host_.Question("", Tr("\"{}\" is there already. Do you want to replace it?", FileNameOf(order.Path))))
    return Outcome(Fault::Cancelled, "");
  std::error_code failed;
  fs::create_directories(taken.Folder, failed);
  if (failed) return Outcome(Fault::Unwritable, Tr("The folder cannot be made: {}.", failed.message()));
  last_ = taken;
  last_.Voice.clear();
  waiting_.push_back(std::move(order));
  Next();
  return {};
}

void ClipDesk::Next() {
  if (runner_.Busy() || waiting_.empty()) return;
  ClipOrder order = std::move(waiting_.front());
  waiting_.pop_front();
  current_ = order.Path;
  events_.ClipProgress(current_, 0, static_cast<int>(waiting_.size()));
  runner_.Start(std::make_unique<ClipJob>(std::move(order)), std::make_unique<Told>(*this));
}

void ClipDesk::Over(const ClipJob* job) {
  const std::string path = std::exchange(current_, {});
  if (!job || job->Outcome().Kind() == Fault::Cancelled) {
    events_.ClipCancelled();
  } else if (job->Outcome()) {
    events_.ClipSaved(path);
  } else {
    host_.Note(MessageKind::Warning, fmt::format("A clip was not written: {}", job->Outcome().Why()));
    events_.ClipFailed(Tr("\"{}\" was not saved. {}", FileNameOf(path), job->Outcome().Why()));
  }
  Next();
}

}  // namespace kinalyx
