#include "app/MailRoom.h"

#include <fmt/format.h>

#include "distribution/mail/MailReader.h"
#include "distribution/mail/forms/EmailPnl.h"
#include "distribution/mail/forms/MailForm.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
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
  if (!answers) parts_.host.Message(MessageKind::Warning, "", Tr("The drive with the data folder does not answer."));
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
  if (queue_.Count() == 0) return parts_.host.Message(MessageKind::Information, "", Tr("No Pictures to Send."));
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
  const bool away =
      parts_.host.Question("", left == 1 ? Tr("A picture of an earlier session has not been sent. Do you want to "
                                              "delete it? If not, it comes before the new ones.")
                                         : Tr("{} pictures of an earlier session have not been sent. Do you want to "
                                              "delete them? If not, they come before the new ones.",
                                              left));
  if (!away) return queue_.TakeLeft();
  if (const Outcome gone = queue_.DeleteLeft(); !gone) parts_.host.Message(MessageKind::Warning, "", gone.Why());
}

bool MailRoom::MayLeave() {
  const int count = queue_.Count();
  if (count == 0) return true;
  return parts_.host.Question(
      "",
      count == 1
          ? Tr("A picture has not been sent by e-mail. Leaving the analysis section deletes it. Do you want to leave?")
          : Tr("{} pictures have not been sent by e-mail. Leaving the analysis section deletes them. Do you want to "
               "leave?",
               count));
}

}  // namespace kinalyx
