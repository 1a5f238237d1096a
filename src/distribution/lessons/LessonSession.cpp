#include "distribution/lessons/LessonSession.h"

#include <fmt/chrono.h>
#include <fmt/format.h>

#include <ctime>
#include <utility>

#include "capture/templates/CaptureTemplates.h"
#include "core/Settings.h"
#include "core/Vocabulary.h"
#include "distribution/lessons/LessonSaver.h"
#include "platform/files/Tr.h"
#include "platform/graph/ImpactDetector.h"
#include "platform/graph/ScreenWords.h"
#include "platform/files/Folders.h"
#include "platform/files/IniFile.h"
#include "platform/host/DriveWatch.h"

namespace kinalyx {
namespace {

constexpr int kTenMinutes = 1000;
constexpr int kLevelMs = 60;
constexpr int kBarelyBegun = 957;  // on the clock: a lesson of three seconds is dropped without a question
constexpr std::int64_t kLeastRoom = 100'000'000;

// Labels of the templates.
constexpr std::string_view kScreen = "VideoSource";
constexpr std::string_view kVoice = "AudioSource";
constexpr std::string_view kMeter = "Audio Trigger";
constexpr std::string_view kFile = "File writer";

// Where the kind of file is remembered.
constexpr std::string_view kSection = "Lessons";
constexpr std::string_view kKindKey = "Format";

std::string Today() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return fmt::format("{:%Y-%m-%d}", local);
}

}  // namespace

LessonSession::LessonSession(Parts parts, std::string folder)
    : parts_(parts), files_(std::move(folder)), countdown_(parts.host) {
  const auto kind = ReadProfileValue(kSection, kKindKey, JoinPath(parts_.settings.DataPath, "config10.ini"));
  if (kind == "MP4") kind_ = LessonKind::Mp4;
}

LessonSession::~LessonSession() { Leave(); }

// ---------------------------------------------------------------- coming and going

void LessonSession::Toggle() {
  if (phase_ == LessonPhase::Away) return Open();
  if (phase_ == LessonPhase::Saving) return Say(Tr("The lesson is still being saved."));
  if (phase_ != LessonPhase::Ready) return PressCancel();
  GoAway();
}

void LessonSession::Open() {
  TakeSelected();
  time_ = "10:00";
  if (parts_.screens.HowToSee() == IScreens::Way::None) {
    parts_.host.Message(MessageKind::Information, "", parts_.screens.WhyNone());
    return;
  }
  Enter(LessonPhase::Ready);
  Listen();
}

/// Who is selected in the library, and before anybody was, whose video is being studied.
void LessonSession::TakeSelected() {
  instructor_ = parts_.remembered[0];
  student_ = parts_.remembered[1];
  if (!student_.empty()) return;
  const std::string folder = FolderOf(parts_.view.CurrentVideo());
  const LibraryTree tree(parts_.settings);
  if (folder == tree.StudentFolder(LastName(FolderOf(folder)), LastName(folder))) {
    instructor_ = LastName(FolderOf(folder));
    student_ = LastName(folder);
  }
}

/// The microphone is heard before a lesson, so that one that is not plugged in is noticed in time.
void LessonSession::Listen() {
  graph_->GraphClear();
  if (!Microphone().empty() && graph_->GraphXmlLoad(MVSetupGraph)) {
    (void)graph_->GraphSetDevice(kMeter, Microphone());
    (void)graph_->GraphRun();
  }
  UpdateAudioLevelTimer_ = HostTimer(parts_.host, kLevelMs, true, [this] { Look(); });
}

void LessonSession::GoAway() {
  UpdateAudioLevelTimer_.Stop();
  countdown_.Stop();
  parts_.screens.Close();
  if (graph_) graph_->GraphClear();
  files_.Release();
  lesson_ = {};
  Enter(LessonPhase::Away);
}

void LessonSession::Leave() {
  if (phase_ == LessonPhase::Away) return;
  if (graph_ && IsUnderWay(phase_)) (void)graph_->GraphStop();
  phase_ = LessonPhase::Away;
  UpdateAudioLevelTimer_.Stop();
  countdown_.Stop();
  parts_.screens.Close();
  if (graph_) graph_->GraphClear();
  files_.Release();
  lesson_ = {};
}

bool LessonSession::MayDrop(const std::string& question) const {
  const bool barely = phase_ == LessonPhase::Preparing || (IsUnderWay(phase_) && left_ >= kBarelyBegun);
  return barely || parts_.host.Question("", question);
}

void LessonSession::PressCancel() {
  if (phase_ == LessonPhase::Ready) return GoAway();
  if (phase_ == LessonPhase::Away) return;
  if (phase_ == LessonPhase::Saving) return parts_.jobs.Cancel();
  const LessonPhase asked = phase_;
  if (!MayDrop(Tr("Do you want to throw this lesson away?"))) return;
  // Where it has ended while the question stood, the form for its name is there already, and can be cancelled.
  if (phase_ != asked) return;
  Say(Tr("Recording cancelled..."));
  if (IsUnderWay(phase_)) (void)graph_->GraphStop();
  Drop();
  GoAway();
}

void LessonSession::Drop() {
  const Outcome gone = ThrowAway(lesson_);
  if (!gone) parts_.host.Message(MessageKind::Warning, "", gone.Why());
}

// ---------------------------------------------------------------- choices

void LessonSession::ChooseStudent(const std::string& instructor, const std::string& student) {
  instructor_ = instructor;
  student_ = student;
  parts_.view.LessonChanged();
}

std::string LessonSession::Microphone() const { return silent_ ? std::string() : parts_.setup.Microphone(); }

void LessonSession::ChooseMicrophone(const std::string& name) {
  if (IsUnderWay(phase_)) return;
  silent_ = name.empty();
  if (!silent_) parts_.setup.ChooseMicrophone(name);
  if (phase_ == LessonPhase::Ready) Listen();
  parts_.view.LessonChanged();
}

void LessonSession::ChooseKind(LessonKind kind) {
  if (IsUnderWay(phase_)) return;
  kind_ = kind;
  parts_.settings.WriteConfigKey(std::string(kSection), std::string(kKindKey), kind == LessonKind::Mp4 ? "MP4" : "AVI");
  parts_.view.LessonChanged();
}

// ---------------------------------------------------------------- from start to stop

void LessonSession::PressRecord() {
  switch (phase_) {
    case LessonPhase::Ready: return Go();
    case LessonPhase::Preparing:
    case LessonPhase::Recording:
    case LessonPhase::Paused: return Stop({});
    case LessonPhase::Finished: return parts_.view.ShowSaveForm();
    case LessonPhase::Away:
    case LessonPhase::Saving: return;
  }
}

void LessonSession::Go() {
  if (student_.empty()) {
    const Vocabulary vocabulary(parts_.settings);
    parts_.host.Message(MessageKind::Information, "",
                        Tr("You must select a {} before beginning to Record", vocabulary.noun()));
    return;
  }
  const std::int64_t room = FreeBytes(files_.Folder());
  if (room >= 0 && room < kLeastRoom) return Fail(Tr("There is too little room on the disk for a lesson."));
  Enter(LessonPhase::Preparing);
  if (parts_.screens.HowToSee() == IScreens::Way::Asked)
    Say(Tr("Your desktop asks which screen may be recorded. Choose it there, and the lesson begins."));
  parts_.screens.Open(parts_.view.Screen(), *this);
}

void LessonSession::ScreenReady(const std::string& device) {
  if (phase_ == LessonPhase::Preparing) Begin(device);
}

void LessonSession::ScreenRefused(const std::string& why) {
  if (phase_ == LessonPhase::Preparing) Fail(why);
}

void LessonSession::Begin(const std::string& screen) {
  const auto path = files_.Begin(instructor_, student_);
  if (!path) return Fail(path.Why());
  lesson_ = {};
  lesson_.path = *path;
  lesson_.facts = {kind_, 0, !Microphone().empty()};
  lesson_.instructor = instructor_;
  lesson_.student = student_;
  if (const Outcome begun = LoadGraph(screen); !begun) return Fail(begun.Why());
  Say(Microphone().empty() ? Tr("Preparing to Record.... without a voice") : StatusOf(LessonPhase::Preparing));
}

Outcome LessonSession::LoadGraph(const std::string& screen) {
  graph_->GraphClear();
  if (const Outcome loaded = graph_->GraphXmlLoad(kind_ == LessonKind::Mp4 ? MVScreenRecorderMp4 : MVScreenRecorder);
      !loaded)
    return loaded;
  if (const Outcome bound = graph_->GraphSetDevice(kScreen, screen); !bound) return bound;
  if (const std::string microphone = Microphone(); !microphone.empty()) {
    for (const std::string_view label : {kVoice, kMeter})
      if (const Outcome bound = graph_->GraphSetDevice(label, microphone); !bound) return bound;
  }
  if (const Outcome sink = graph_->GraphSetFileSink(kFile, lesson_.path); !sink) return sink;
  return graph_->GraphRun();
}

/// Back to where it can be tried again.
void LessonSession::Fail(const std::string& why) {
  parts_.screens.Close();
  if (IsUnderWay(phase_)) (void)graph_->GraphStop();
  Drop();
  lesson_ = {};
  files_.Release();
  Enter(LessonPhase::Ready);
  Listen();
  Say(why);
}

/// The level, and whether the first picture has come.
void LessonSession::Look() {
  if (auto* meter = graph_->GraphFilterByLabel<IAudioTriggerFilter>(kMeter)) {
    const double level = meter->Level();
    parts_.view.ShowLevel(level > 0 ? ImpactDetector::AmplitudeOf(level) : 0);
  }
  if (phase_ != LessonPhase::Preparing) return;
  auto* writer = graph_->GraphFilterByLabel<IWriterFilter>(kFile);
  if (!writer || writer->Tally().pictures == 0) return;
  Enter(LessonPhase::Recording);
  if (!lesson_.facts.voice) Say(Tr("Recording.... without a voice"));
  StartClock(kTenMinutes);
}

void LessonSession::StartClock(int minutesSeconds) {
  left_ = minutesSeconds;
  countdown_.Start(
      left_,
      [this](const std::string& text) {
        left_ = CountdownNext(left_);
        time_ = text;
        parts_.view.LessonChanged();
      },
      [this] { PressRecord(); });
}

void LessonSession::PressPause() {
  auto* writer = graph_->GraphFilterByLabel<IWriterFilter>(kFile);
  if (!writer || (phase_ != LessonPhase::Recording && phase_ != LessonPhase::Paused)) return;
  const bool pause = phase_ == LessonPhase::Recording;
  writer->Pause(pause);
  if (pause) countdown_.Stop();
  else StartClock(left_);
  Enter(pause ? LessonPhase::Paused : LessonPhase::Recording);
}

/// @param fault  what has ended it before its time; empty for nothing
void LessonSession::Stop(const std::string& fault) {
  countdown_.Stop();
  if (lesson_.path.empty()) return Fail(Tr("Recording cancelled..."));  // the desktop has not answered yet
  Say(Tr("Recording Complete...."));
  auto* writer = graph_->GraphFilterByLabel<IWriterFilter>(kFile);
  const Outcome closed = graph_->GraphStop();
  const RecordingTally tally = writer ? writer->Tally() : RecordingTally{};
  graph_->GraphClear();
  parts_.screens.Close();
  UpdateAudioLevelTimer_.Stop();
  parts_.view.ShowLevel(0);
  if (!closed) {
    files_.LeaveToDisk();
    GoAway();
    return parts_.host.Message(MessageKind::Warning, "", closed.Why());
  }
  if (tally.pictures == 0)
    return Fail(!fault.empty() ? fault : !tally.fault.empty() ? tally.fault : Tr("Recording cancelled..."));
  lesson_.facts.seconds = static_cast<double>(tally.pictures) / LessonFile::kRate;
  Enter(LessonPhase::Finished);
  const std::string& why = !fault.empty() ? fault : tally.fault;
  if (!why.empty()) Say(Tr("{} What was recorded is kept. Click Save Video to continue..", why));
  parts_.view.ShowSaveForm();
}

void LessonSession::SourceFailed(const std::string& label, const std::string& why) {
  if (!IsUnderWay(phase_)) {
    if (phase_ == LessonPhase::Ready && label == kMeter) Say(why);
    return;
  }
  // The meter beside is no reason to stop; the voice itself is.
  if (label == kMeter) return;
  const std::string words = label == kScreen ? SaidOfScreen(why) : why;
  if (phase_ != LessonPhase::Preparing) return Stop(words);
  Fail(label == kScreen ? words : Tr("{} Choose another microphone, or record without.", words));
}

void LessonSession::SinkFailed(const std::string&, const std::string& why) {
  if (IsUnderWay(phase_)) Stop(why);
}

// ---------------------------------------------------------------- keeping

std::string LessonSession::Folder() const {
  return LessonsFolder(LibraryTree(parts_.settings).StudentFolder(instructor_, student_));
}

std::string LessonSession::ProposedName() const { return ProposeLessonName(Folder(), Kind(), Today()); }

void LessonSession::TakeUp(const RecordedLesson& lesson) {
  if (phase_ != LessonPhase::Away && phase_ != LessonPhase::Ready) return;
  if (const Outcome ours = files_.TakeUp(lesson); !ours)
    return parts_.host.Message(MessageKind::Information, "", ours.Why());
  UpdateAudioLevelTimer_.Stop();
  if (graph_) graph_->GraphClear();
  lesson_ = lesson;
  TakeSelected();
  if (!lesson.student.empty()) {
    instructor_ = lesson.instructor;
    student_ = lesson.student;
  }
  Enter(LessonPhase::Finished);
  parts_.view.ShowSaveForm();
}

void LessonSession::DropLeft(const RecordedLesson& lesson) {
  if (phase_ != LessonPhase::Away) return;
  Outcome gone = files_.TakeUp(lesson);
  if (gone) gone = ThrowAway(lesson);
  files_.Release();
  if (!gone) parts_.host.Message(MessageKind::Information, "", gone.Why());
}

/// What becomes of a save.
class LessonSession::SaveEvents final : public IJobEvents {
 public:
  explicit SaveEvents(LessonSession& session) : session_(session) {}
  void Progress(const JobProgress& progress) override {
    session_.savedPart_ = progress.part;
    session_.parts_.view.LessonChanged();
  }
  void Over(IJob* job) override {
    const auto* saver = dynamic_cast<LessonSaver*>(job);
    session_.Saved(saver ? saver->How() : Outcome::Failed(Tr("The disk does not answer.")), saver ? saver->Path() : "");
  }

 private:
  LessonSession& session_;
};

std::string LessonSession::Save(std::string_view typed) {
  if (phase_ != LessonPhase::Finished) return Tr("There is no lesson to be saved.");
  const std::string_view name = WithoutOuterBlanks(typed);
  if (student_.empty()) return Tr("Choose whose lesson it is.");
  const std::string root = LibraryTree(parts_.settings).Root();
  if (!parts_.host.Drives().Answers(root)) return Tr("The drive of the library does not answer.");
  if (!dirExists(LibraryTree(parts_.settings).StudentFolder(instructor_, student_)))
    return Tr("The folder of {} is not there any more. Choose whose lesson it is.", student_);
  if (std::string fault = LessonNameFault(Folder(), Kind(), name); !fault.empty()) return fault;
  savedPart_ = 0;
  Enter(LessonPhase::Saving);
  parts_.jobs.Start(std::make_unique<LessonSaver>(
                        lesson_.path, JoinPath(Folder(), fmt::format("{}{}", name, EndingOf(lesson_.facts.kind)))),
                    std::make_unique<SaveEvents>(*this));
  return {};
}

/// It is kept, or all is as it was and another name or another place can be tried.
void LessonSession::Saved(const Outcome& how, const std::string& path) {
  if (phase_ != LessonPhase::Saving) return;
  if (!how) {
    Enter(LessonPhase::Finished);
    Say(how.Kind() == Fault::Cancelled ? Tr("Saving cancelled. Click Save Video to continue..")
                                       : Tr("The lesson WAS NOT SAVED. {}", how.Why()));
    return;
  }
  Drop();
  Say(Tr("Video Saved."));
  parts_.view.LessonSaved(path);
  GoAway();
}

void LessonSession::Enter(LessonPhase phase) {
  phase_ = phase;
  Say(StatusOf(phase));
}

void LessonSession::Say(std::string status) {
  status_ = std::move(status);
  parts_.view.LessonChanged();
}

}  // namespace kinalyx
