#pragma once

#include <memory>
#include <string>

#include "capture/CaptureSetup.h"
#include "distribution/lessons/ILessonView.h"
#include "distribution/lessons/LessonFiles.h"
#include "distribution/lessons/LessonPhase.h"
#include "library/JobRunner.h"
#include "library/LibraryTree.h"
#include "platform/graph/IGraph.h"
#include "platform/graph/IScreens.h"
#include "platform/host/Host.h"
#include "workspace/transport/Countdown.h"

namespace kinalyx {

/// The way from "Record Lesson" to a file in the student's folder: the microphone is heard, the screen and the voice
/// are recorded for ten minutes at most, the lesson gets its name. Nothing here waits for a device, a desktop or a
/// disk.
class LessonSession : private IGraphEvents, private IScreenEvents {
 public:
  struct Parts {
    IHost& host;
    Settings& settings;
    CaptureSetup& setup;  ///< knows the microphones
    IScreens& screens;
    LastStudentInfo& remembered;
    ILessonView& view;
    JobRunner& jobs;
  };
  /// All parts outlive this.
  /// @param folder  of the working files
  LessonSession(Parts parts, std::string folder);
  ~LessonSession() override;
  /// The graph that records, made with the session as its events. Before anything else.
  void SetGraph(std::unique_ptr<IGraph> graph) { graph_ = std::move(graph); }
  IGraphEvents& GraphEvents() { return *this; }

  // --- its buttons

  /// "Record Lesson": comes, or goes. What has not been kept is asked about.
  void Toggle();
  /// The main button: starts, stops, or asks for the name again.
  void PressRecord();
  void PressPause();
  /// Drops what was recorded, after a question. A save that is under way is given up, and can be tried again.
  void PressCancel();
  /// Keeps the lesson under this name. Refused, with the words for it, while it has another fault than its disk.
  std::string Save(std::string_view name);
  /// Takes up a lesson that an earlier run has left, or says why not.
  void TakeUp(const RecordedLesson& lesson);
  /// Removes one, or says why not.
  void DropLeft(const RecordedLesson& lesson);
  /// The section goes: what was recorded stays and is offered at the next start.
  void Leave();

  // --- its choices

  void ChooseStudent(const std::string& instructor, const std::string& student);
  /// Empty: none, the lesson is silent.
  void ChooseMicrophone(const std::string& name);
  void ChooseKind(LessonKind kind);

  // --- what is shown

  LessonPhase Phase() const { return phase_; }
  bool Shown() const { return phase_ != LessonPhase::Away; }
  const std::string& Status() const { return status_; }
  /// "10:00" and down.
  const std::string& TimeLeft() const { return time_; }
  const std::string& Instructor() const { return instructor_; }
  /// Empty when nobody is chosen.
  const std::string& Student() const { return student_; }
  /// Empty for none.
  std::string Microphone() const;
  const std::vector<Device>& Microphones() const { return parts_.setup.Microphones(); }
  LessonKind Kind() const { return phase_ >= LessonPhase::Finished ? lesson_.facts.kind : kind_; }
  /// Of the lesson that has been recorded, in seconds.
  double Length() const { return lesson_.facts.seconds; }
  double SavedPart() const { return savedPart_; }
  /// The folder into which it goes.
  std::string Folder() const;
  std::string ProposedName() const;

 private:
  class SaveEvents;

  void Open();
  void TakeSelected();
  void Go();
  void GoAway();
  void Listen();
  void Begin(const std::string& screen);
  Outcome LoadGraph(const std::string& screen);
  void Fail(const std::string& why);
  void StartClock(int minutesSeconds);
  void Stop(const std::string& fault);
  void Drop();
  void Look();
  void Saved(const Outcome& how, const std::string& path);
  void Enter(LessonPhase phase);
  void Say(std::string status);
  bool MayDrop(const std::string& question) const;

  void PictureCame(const std::string&) override {}
  void SourceFailed(const std::string& label, const std::string& why) override;
  void SinkFailed(const std::string& label, const std::string& why) override;
  void EndOfStream() override {}
  void ScreenReady(const std::string& device) override;
  void ScreenRefused(const std::string& why) override;

  Parts parts_;
  LessonFiles files_;
  std::unique_ptr<IGraph> graph_;
  Countdown countdown_;
  LessonPhase phase_ = LessonPhase::Away;
  std::string status_;
  std::string time_;
  int left_ = 0;  ///< of the time, as minutes and seconds in one number
  std::string instructor_;
  std::string student_;
  LessonKind kind_ = LessonKind::Avi;
  bool silent_ = false;  ///< no microphone is wanted
  RecordedLesson lesson_;
  double savedPart_ = 0;
  HostTimer UpdateAudioLevelTimer_;
};

}  // namespace kinalyx
