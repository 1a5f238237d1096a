#include "app/MailRoom.h"

#include <fmt/format.h>

#include "distribution/mail/MailReader.h"
#include "distribution/mail/forms/EmailPnl.h"
#include "distribution/mail/forms/MailForm.h"
#include "platform/files/Folders.h"
#include "platform/host/DriveWatch.h"
#include "workspace/forms/AnalysisForm.h"
#include "workspace/pictures/StagePictures.h"

namespace kinalyx {

MailRoom::MailRoom(Parts parts)
    : parts_(parts),
      queue_(JoinPath(parts.settings.DataPath, "capture/email")),
      desk_(parts.host, parts.mail, queue_, [] { return MakeMailSender(); }) {}

MailRoom::~MailRoom() = default;

void MailRoom::Serve(AnalysisForm* analysis) {
  snapshots_.reset();
  analysis_ = analysis;
  auto* stage = analysis ? analysis->findChild<QWidget*>("MainPanel") : nullptr;
  if (!stage) {
    // Whoever let the section go has been asked.
    if (const Outcome cleared = queue_.ClearEmailQueue(); !cleared)
      parts_.host.Note(MessageKind::Warning, cleared.Why());
    return;
  }
  snapshots_ =
      std::make_unique<SnapshotDesk>(parts_.host, queue_, parts_.sounds,
                                     JoinPath(parts_.settings.AppPath, "pictures/camera.wav"), *new EmailPnl(stage));
}

bool MailRoom::FolderAnswers() {
  const bool answers = parts_.host.Drives().Answers(parts_.settings.DataPath);
  if (!answers) parts_.host.Message(MessageKind::Warning, "", "The drive with the data folder does not answer.");
  return answers;
}

void MailRoom::TakeSnapshot() {
  if (!snapshots_ || !FolderAnswers()) return;
  AnalysisWorkspace& section = analysis_->Section();
  StagePictures pictures(section.Stage(), section.Compare());
  snapshots_->TTES_Click(pictures.All());
}

void MailRoom::SendSnapshots() {
  if (!analysis_ || !FolderAnswers()) return;
  AskForLeft();
  if (queue_.Count() == 0) return parts_.host.Message(MessageKind::Information, "", "No Pictures to Send.");
  const Stage& stage = analysis_->Section().Stage();
  MailForm form(
      {.host = parts_.host,
       .desk = desk_,
       .reader = ReaderOf(parts_.host, parts_.settings, parts_.fields, stage.Current().path, parts_.remembered)},
      analysis_);
  form.exec();
}

/// What an earlier run has left may belong to another student.
void MailRoom::AskForLeft() {
  const int left = queue_.FindLeft();
  if (left == 0) return;
  const bool one = left == 1;
  const bool away = parts_.host.Question(
      "", fmt::format("{} of an earlier session {} not been sent. Do you want to delete {}? If not, {} before the new "
                      "ones.",
                      one ? "A picture" : fmt::format("{} pictures", left), one ? "has" : "have", one ? "it" : "them",
                      one ? "it comes" : "they come"));
  if (!away) return queue_.TakeLeft();
  if (const Outcome gone = queue_.DeleteLeft(); !gone) parts_.host.Message(MessageKind::Warning, "", gone.Why());
}

bool MailRoom::MayLeave() {
  const int count = queue_.Count();
  if (count == 0) return true;
  return parts_.host.Question(
      "",
      fmt::format("{} not been sent by e-mail. Leaving the analysis section deletes {}. Do you want to leave?",
                  count == 1 ? "A picture has" : fmt::format("{} pictures have", count), count == 1 ? "it" : "them"));
}

}  // namespace kinalyx
