#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "capture/CaptureSetup.h"
#include "capture/WorkingFiles.h"
#include "capture/mirror/MirrorChoices.h"
#include "capture/mirror/MirrorKeeper.h"
#include "capture/mirror/MirrorPane.h"
#include "capture/mirror/PaneThread.h"
#include "library/LibraryTree.h"
#include "platform/graph/IGraph.h"
#include "platform/host/Post.h"

namespace kinalyx {

/// Why a pane does not show what it should.
struct PaneNote {
  std::string text;      ///< empty: it does
  bool instead = false;  ///< what is seen is not what is due, and stands behind the words
  bool operator==(const PaneNote&) const = default;
};

/// What a mirror tells its window.
class IMirrorView {
 public:
  virtual ~IMirrorView() = default;
  /// Words, badges, what is on: anything but the pictures.
  virtual void MirrorChanged() = 0;
  /// A pane has another picture; told once until Show is asked.
  virtual void PanePictureCame(int pane) = 0;
};

/// The delayed mirror: cameras as they were some seconds ago, in up to four panes, until it is closed. Has a graph of
/// its own, which remembers; nothing here waits for a camera or a disk. Panes and cameras count from 0.
class MirrorSession : private IGraphEvents, private IKeeperEvents, private ICaptureSetupEvents {
 public:
  /// What has the panes go on.
  enum class On {
    Threads,    ///< one for each
    HostTimer,  ///< in turn, by the clock of the host
  };
  struct Parts {
    IHost& host;
    Settings& settings;
    CaptureSetup& setup;
    VideoNaming& naming;
    const LastStudentInfo& remembered;
    WorkingFiles& files;  ///< of its own: another recording may be under way
    JobRunner& jobs;
    IMirrorView& view;
    std::shared_ptr<IPost> post;
    std::function<std::int64_t()> now;  ///< nanoseconds of CLOCK_MONOTONIC
    std::function<std::unique_ptr<IGraph>(IGraphEvents&)> makeGraph;
    std::string choicesPath;
    On on = On::Threads;
  };
  /// All parts outlive this.
  explicit MirrorSession(Parts parts);
  ~MirrorSession() override;

  // --- coming and going

  /// Cameras come up, as the setup has them; nothing when it is open.
  void Open();
  /// The cameras go. What is being kept is written to its end all the same, see Keeping.
  void Close();
  bool IsOpen() const { return open_; }
  /// Something is still on its way to the student's folder.
  bool Keeping() const { return keeper_.Busy(); }
  /// Somebody else needs the cameras, or not any more. They are free when this returns; what is remembered plays on.
  void Lend(bool lent);

  // --- what the user chooses

  MirrorChoices& Choices() { return choices_; }
  const MirrorChoices& Choices() const { return choices_; }
  /// Keeps them, should they be others than before.
  void StoreChoices();
  void SetPanes(int panes);
  /// The pane to which keys and the bar refer.
  void Choose(int pane);
  int Chosen() const { return chosen_; }
  /// Of the chosen pane.
  void SetDelay(double seconds);
  void SetCamera(int camera);
  void SetLoopSeconds(int seconds);
  void SetSpeed(LoopSpeed speed);
  void SetMirrored(bool on);
  /// What each pane has shown last runs again and again, slowly; or all panes go on.
  void ToggleLoop();
  bool Looping() const { return looping_; }
  void ToggleFreeze();
  /// Nobody sees the window: the panes rest, the cameras are remembered on.
  void Rest(bool on);
  bool Frozen() const { return frozen_; }
  /// While frozen: so many pictures on, or back.
  void StepBy(int pictures);
  /// What the chosen pane has shown last, or what it loops, becomes a video of the student.
  void Keep();

  // --- what the window shows

  bool TwoCameras() const { return two_; }
  void WantSize(int pane, int width, int height);
  MirrorPane::Sight Show(int pane) { return panes_[static_cast<std::size_t>(pane)]->Show(); }
  /// "10 s ago", "now", "loop 1/4".
  std::string Badge(int pane) const;
  const PaneNote& Note(int pane) const { return notes_[static_cast<std::size_t>(pane)]; }
  /// What has come of a command, for some seconds.
  const std::string& Status() const { return status_; }
  /// "remembers 60 s, 214 MiB of 1024".
  const std::string& MemoryWords() const { return memoryWords_; }
  /// The name that the next video gets; empty while it has none.
  std::string NextName() const;
  /// Whose video it will be.
  std::string StudentName() const;

 private:
  /// One that is at work: where one works it is the first, whichever that is.
  struct Camera {
    std::shared_ptr<PictureMemory> memory = std::make_shared<PictureMemory>();
    std::string device;
    std::string fault;  ///< why it gives nothing
  };

  int PaneCamera(int pane) const;
  const Camera& CameraOf(int pane) const { return cameras_[static_cast<std::size_t>(PaneCamera(pane))]; }
  IBlockRecordingFilter* Recorder(int camera);
  int CameraCount() const { return two_ ? 2 : 1; }
  void Run();
  std::vector<CameraChoice> ChosenCameras() const;
  bool Load();
  void Bind(int camera);
  void EndRun();
  void StopGraph();
  void RetryLater();
  void Retry();
  void GoOn();
  void LetRun(int pane);
  void WakeAll();
  std::int64_t HeldBytes() const;
  void LimitMemory();
  std::vector<PackedPicture> LastSeen(int pane) const;
  void Look();
  void FollowStudent();
  PaneNote NoteOf(int pane) const;
  std::string WordsOfMemory() const;
  void Say(std::string status);
  void Changed();

  void PictureCame(const std::string&) override {}
  void SourceFailed(const std::string& label, const std::string& why) override;
  void SinkFailed(const std::string&, const std::string&) override {}
  void BlockWritten(const std::string& label) override;
  void EndOfStream() override {}
  void KeepTold(const std::string& words, bool good) override;
  void CaptureChoiceChanged() override;
  void CaptureDevicesChanged() override {}

  Parts parts_;
  LastStudentInfo student_;  ///< whom the program remembered last
  MirrorChoices choices_;
  MirrorChoices stored_;
  MirrorKeeper keeper_;
  std::unique_ptr<IGraph> graph_;
  std::array<Camera, 2> cameras_;
  std::vector<CameraChoice> served_;  ///< what the graph was built for
  /// Posted news ask it first whether the session is still there.
  std::shared_ptr<MirrorSession*> self_;
  std::array<std::unique_ptr<MirrorPane>, kMostPanes> panes_;
  std::array<std::unique_ptr<PaneThread>, kMostPanes> threads_;
  std::array<PaneNote, kMostPanes> notes_;
  Outcome ready_;  ///< of the run under way: whether there is where videos can be written
  std::string status_;
  std::string memoryWords_;
  std::int64_t bound_ = 0;      ///< bytes that all pictures may take
  std::int64_t heldBytes_ = 0;  ///< by loops
  std::int64_t begunNs_ = 0;    ///< the run under way
  int chosen_ = 0;
  int retries_ = 0;
  bool open_ = false;
  bool lent_ = false;
  bool loaded_ = false;  ///< the graph fits the cameras
  bool two_ = false;
  bool looping_ = false;
  bool frozen_ = false;
  bool resting_ = false;
  HostTimer look_;
  HostTimer step_;
  HostTimer retry_;
  HostTimer statusTimer_;
};

}  // namespace kinalyx
