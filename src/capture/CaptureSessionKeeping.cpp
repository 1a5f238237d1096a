#include <utility>

#include "capture/CaptureData.h"
#include "capture/CaptureSession.h"
#include "core/Settings.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/media/VideoFile.h"

namespace kinalyx {

// ---------------------------------------------------------------- keeping

bool CaptureSession::RefuseUnlessNamed() {
  if (parts_.naming.ShortGame() && FileExists(parts_.naming.CapturedVideoPath())) {
    parts_.host.Message(MessageKind::Information, "", Tr("File already exists. Choose a different name."));
    return false;
  }
  if (!parts_.naming.Shown().empty()) return true;
  parts_.host.Message(MessageKind::Information, "", Tr("You must name the video before saving!"));
  parts_.naming.ChangeName();
  return false;
}

/// What becomes of a save.
class CaptureSession::SaveEvents final : public IJobEvents {
 public:
  explicit SaveEvents(CaptureSession& session) : session_(session) {}
  void Progress(const JobProgress& progress) override {
    session_.jobPart_ = progress.part;
    session_.parts_.page.CaptureChanged();
  }
  void Over(IJob* job) override {
    const auto* saver = dynamic_cast<RecordingSaver*>(job);
    SavedRecording none;
    none.why = Tr("The disk does not answer.");
    session_.Saved(saver ? saver->Saved() : none);
  }

 private:
  CaptureSession& session_;
};

void CaptureSession::Save() {
  if (saving_ || phase_ != CapturePhase::Reviewing) return;
  if (!RefuseUnlessNamed()) {
    sendNext_ = false;
    return;
  }
  if (TrimEndFrame_ > 0 && TrimEndFrame_ <= TrimStartFrame_) {
    sendNext_ = false;
    parts_.host.Message(
        MessageKind::Information, "",
        Tr("Your TRIM Start and End times are not correct. Please check your Start and End times and try "
           "again."));
    return;
  }
  SaveRequest request;
  request.firstFrame = TrimStartFrame_;
  request.lastFrame = TrimEndFrame_;
  const bool dv = parts_.setup.DVMode();
  for (int camera = 0; camera < 2; ++camera)
    request.recompress[static_cast<std::size_t>(camera)] =
        !dv && parts_.settings.Recompress && parts_.page.ReviewPlayer(camera).Facts().raw;
  request.flags = CaptureFlags(parts_.settings, dv, parts_.page.ReviewPlayer(0).Facts());
  parts_.page.ReviewPlayer(0).Unload();
  parts_.page.ReviewPlayer(1).Unload();
  Keep(std::move(request));
}

/// What is under review, as the request wants it.
void CaptureSession::Keep(SaveRequest request) {
  request.recorded = reviewed_.paths;
  request.videos = {parts_.naming.CapturedVideoPath(), parts_.naming.CapturedVideoPath2()};
  if (secondAlone_) request.videos[0] = request.videos[1];
  request.tallies = tallies_;
  request.dv = parts_.setup.DVMode();
  request.trimProgram = parts_.trimProgram;
  saving_ = true;
  jobPart_ = 0;
  Say(timed_ ? Tr("Saving Video") : Tr("Saving Video.... Please Wait."));
  parts_.jobs.Start(std::make_unique<RecordingSaver>(std::move(request)), std::make_unique<SaveEvents>(*this));
}

/// All is kept and the way back to the live picture open, or nothing is and the recording stays under review.
void CaptureSession::Saved(const SavedRecording& saved) {
  saving_ = false;
  const bool send = std::exchange(sendNext_, false);
  ITimedEvents* timed = std::exchange(timed_, nullptr);
  if (!saved.Done()) {
    const UnfinishedRecording again = reviewed_;
    const int start = TrimStartFrame_;
    const int end = TrimEndFrame_;
    Review(again);
    TrimStartFrame_ = start;
    TrimEndFrame_ = end;
    Say(Tr("Last Video WAS NOT SAVED"));
    if (!saved.cancelled)
      parts_.host.Message(MessageKind::Warning, "",
                          Tr("There was a problem saving this video.\n\n{}", AsSentence(saved.why)));
    if (timed) timed->TimedFailed();
    return;
  }
  LastSavedVideo_ = saved.videos[0];
  const bool both = two_;
  std::vector<std::string> paths{saved.videos[0]};
  if (both) paths.push_back(saved.videos[1]);
  const std::string fault = tallies_[0].fault.empty() ? tallies_[1].fault : tallies_[0].fault;
  // A timer's next video is called alike.
  if (timed) parts_.naming.GetVideoName();
  else parts_.naming.NameUsed();
  BackToLive();
  if (timed) return timed->TimedKept(saved.note.empty() ? fault : saved.note);
  Say(both ? Tr("Both Videos Saved Successfully") : Tr("Last Video Saved Successfully"));
  if (!saved.note.empty()) parts_.host.Message(MessageKind::Warning, "", saved.note);
  SayReadyLater();
  if (!send) return;
  Say(Tr("Loading Analysis Section..."));
  const bool opened = parts_.ways.OpenInAnalysis(paths);
  if (opened) Say(Tr("Sending last saved to Analysis..."));
  Say(opened ? Tr("Last video saved was sent to Analysis.")
             : Tr("The video is saved. The analysis section did not open it."));
  SayReadyLater();
}

void CaptureSession::SendToAnalysis() {
  if (saving_ || phase_ != CapturePhase::Reviewing) return;
  sendNext_ = true;
  Save();
}

bool CaptureSession::StartTimed(ITimedEvents& events) {
  if (phase_ != CapturePhase::LivePreview || saving_ || monitoring_.Armed()) {
    Say(Tr("The cameras are busy with another recording."));
    return false;
  }
  timed_ = &events;
  StartCapture();
  if (phase_ != CapturePhase::Writing) timed_ = nullptr;
  return timed_ != nullptr;
}

/// Ends in TimedKept or TimedFailed, now or when the recording has been kept.
void CaptureSession::StopTimed() {
  if (!timed_ || phase_ != CapturePhase::Writing) return;
  reviewed_ = EndRecording();
  TrimStartFrame_ = TrimEndFrame_ = 0;
  phase_ = CapturePhase::Reviewing;
  std::array<std::unique_ptr<VideoInfo>, 2> infos;
  for (std::size_t i = 0; i < 2; ++i)
    if (!reviewed_.paths[i].empty()) infos[i] = ReadVideoInfo(reviewed_.paths[i]);
  // What cannot be read now may be mended later.
  for (std::size_t i = 0; i < 2; ++i)
    if (!infos[i]) parts_.files.Park(std::exchange(reviewed_.paths[i], {}), {});
  if (!infos[0] && infos[1]) {
    std::swap(infos[0], infos[1]);
    std::swap(reviewed_.paths[0], reviewed_.paths[1]);
    std::swap(tallies_[0], tallies_[1]);
    secondAlone_ = true;
  }
  if (!infos[0] || parts_.naming.CapturedVideoPath().empty()) {
    ITimedEvents* timed = std::exchange(timed_, nullptr);
    std::string why =
        tallies_[0].fault.empty() ? Tr("The camera gave no picture. Nothing was recorded.") : tallies_[0].fault;
    if (infos[0]) {
      why = Tr("The folder for the video is not there any more.");
      parts_.files.Park(reviewed_.paths[0], reviewed_.paths[1]);
      reviewed_ = {};
    }
    BackToLive();
    Say(why);
    return timed->TimedFailed();
  }
  // A raw recording is always compressed: nobody is there to see a disk fill up.
  const bool dv = parts_.setup.DVMode();
  SaveRequest request;
  request.flags = CaptureFlags(parts_.settings, dv, FactsOf(*infos[0]));
  for (std::size_t i = 0; i < 2; ++i) request.recompress[i] = !dv && infos[i] && FactsOf(*infos[i]).raw;
  Keep(std::move(request));
}

}  // namespace kinalyx
