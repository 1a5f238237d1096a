#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>

#include "capture/BeepCapture.h"
#include "capture/CaptureSetup.h"
#include "capture/ICaptureViews.h"
#include "capture/Monitoring.h"
#include "capture/RecordingSaver.h"
#include "capture/UnfinishedRecordings.h"
#include "capture/VideoNaming.h"
#include "capture/WorkingFiles.h"
#include "library/JobRunner.h"
#include "platform/graph/IGraph.h"
#include "platform/host/Host.h"

namespace kinalyx {

/// Where a session is, which is what the caption of `Capturebtn` says.
enum class CapturePhase { LivePreview, Writing, Reviewing };

/// "Start Capture", "Stop Capture", "Back to Live Video".
std::string CaptionOf(CapturePhase phase);

/// The way from the live picture over a recording to a video in the student's folder: start, stop, look, cut, keep.
/// One graph at a time, built anew for each live view. Nothing here waits for a camera or a disk. Hands-free, the live
/// view waits for triggers instead, see Monitoring, or a timer starts and stops, see BeepCapture.
class CaptureSession : public ITimedCapture, private IGraphEvents, private IMonitoringEvents {
 public:
  struct Parts {
    IHost& host;
    Settings& settings;
    CaptureSetup& setup;
    VideoNaming& naming;
    WorkingFiles& files;
    ICapturePage& page;
    IMeterEvents& meter;
    ICaptureWays& ways;
    JobRunner& jobs;
    JobRunner& blockJobs;     ///< keep what is triggered
    std::string trimProgram;  ///< path of `avitrim`
  };
  /// All parts outlive this.
  explicit CaptureSession(Parts parts);
  ~CaptureSession() override;
  /// The graph on which the cameras run, made with the session as its events. Before anything else.
  void SetGraph(std::unique_ptr<IGraph> graph) { graph_ = std::move(graph); }
  IGraphEvents& GraphEvents() { return *this; }

  // --- the page

  /// The page is on the screen: cameras come up.
  void Open();
  /// The page is left: what runs is stopped. False when the user wants to keep what is under review.
  bool Leave();
  /// Other choices: the live view is built anew. Nothing while something is being written or looked at.
  void Rebuild();

  // --- its buttons

  void PressCapture();
  void TrimFront();
  void TrimEnd();
  /// Both ends at once, as they are dragged.
  /// @param last  the last picture that is kept; 0: all to the end
  void Trim(int first, int last);
  void Save();
  void SendToAnalysis();
  /// `AutoCapturebtn` and `OneClickbtn`: begins to wait for triggers, or ends it.
  void PressMonitor();
  Monitoring& Triggers() { return monitoring_; }
  const Monitoring& Triggers() const { return monitoring_; }
  bool StartTimed(ITimedEvents& events) override;
  void StopTimed() override;
  void Say(std::string status) override;
  /// Looks at a recording that an earlier run left, as if it had just been stopped. Nothing while another is written
  /// or looked at.
  void ReviewUnfinished(const UnfinishedRecording& recording);
  /// Looks again at what "Back to Live Video" has put away; it lies there until the next recording begins or the page
  /// is left.
  void BringBack();
  /// Something else begins: it cannot be brought back any more.
  void ForgetPutAway() { DropPutAway(); }
  bool CanBringBack() const { return !putAway_.paths[0].empty(); }

  // --- what the page shows

  CapturePhase Phase() const { return phase_; }
  const std::string& Status() const { return status_; }
  /// A recording is being kept; its buttons rest.
  bool Saving() const { return saving_; }
  double SavedPart() const { return jobPart_; }
  /// Two windows are shown.
  bool TwoCameras() const { return two_; }
  int TrimStartFrame() const { return TrimStartFrame_; }
  int TrimEndFrame() const { return TrimEndFrame_; }
  const std::string& LastSavedVideo() const { return LastSavedVideo_; }
  /// What stands in the place of a camera's picture; empty when it gives one.
  const std::string& CameraWords(int camera) const { return words_[static_cast<std::size_t>(camera)]; }
  LivePicture Latest(int camera);
  void WantSize(int camera, int width, int height);
  /// Of the recording under way or under review.
  RecordingTally Tally(int camera) const;

 private:
  class SaveEvents;

  bool BuildCaptureGraph();
  void AssignGraphCameras();
  void BindSource(std::string_view label, int camera);
  void StopCaptureGraph();
  void RunCamcorder(bool run);
  IRendererFilter* Renderer(int camera);
  void ArmGates(bool on);
  void StartCapture();
  void StopCapture();
  UnfinishedRecording EndRecording();
  void Disarm(const std::string& status);
  std::string WhyAbsent(int camera) const;
  void RetryLater(int camera, bool away, int tries);
  void Keep(SaveRequest request);
  void BackToLive();
  void PutAway();
  void DropPutAway();
  void LeaveOutEmpty(UnfinishedRecording& recording);
  void Review(UnfinishedRecording recording);
  bool RefuseUnlessNamed();
  void Saved(const SavedRecording& saved);
  void SayReadyLater();
  void ShowTally();

  void PictureCame(const std::string& label) override;
  void SourceFailed(const std::string& label, const std::string& why) override;
  void SinkFailed(const std::string& label, const std::string& why) override;
  void PreviewFailed(const std::string& label) override;
  void EndOfStream() override {}
  void TriggerFired(const std::string& label, int shot, std::int64_t ns) override;
  void BlockWritten(const std::string& label) override;
  void MonitoringSays(std::string status) override { Say(std::move(status)); }
  void SoundCame(double level, bool fired) override { parts_.meter.SoundCame(level, fired); }
  void MonitoringKept(const std::string& video) override;

  Parts parts_;
  std::unique_ptr<IGraph> graph_;
  Monitoring monitoring_;
  ITimedEvents* timed_ = nullptr;  ///< whose recording is under way or being kept; null for the user's own
  CapturePhase phase_ = CapturePhase::LivePreview;
  std::string status_;
  std::array<std::string, 2> words_;
  std::array<PictureSize, 2> wanted_{};  ///< of the windows, for the graphs to come; 0 x 0 before they are known
  std::array<RecordingTally, 2> tallies_;
  UnfinishedRecording reviewed_;  ///< what is under review, whether it was just recorded or left by an earlier run
  UnfinishedRecording putAway_;   ///< by "Back to Live Video"
  std::int64_t stoppedAt_ = 0;
  bool open_ = false;
  bool built_ = false;
  bool two_ = false;
  bool secondAlone_ = false;  ///< what is under review was taken by camera 2 alone
  bool camcorderRuns_ = false;
  bool saving_ = false;
  bool sendNext_ = false;
  double jobPart_ = 0;
  int TrimStartFrame_ = 0;
  int TrimEndFrame_ = 0;
  std::string LastSavedVideo_;
  HostTimer ReadyTimer_;
  HostTimer tallyTimer_;
  HostTimer retry_;
};

}  // namespace kinalyx
