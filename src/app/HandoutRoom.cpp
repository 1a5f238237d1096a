#include "app/HandoutRoom.h"

#include "app/LessonRoom.h"
#include "app/MailRoom.h"
#include "app/CaptureRoom.h"
#include "distribution/models/forms/DLModelsForm.h"
#include "platform/files/Tr.h"
#include "workspace/forms/AnalysisForm.h"

namespace kinalyx {

HandoutRoom::HandoutRoom(Parts parts)
    : parts_(parts),
      print_(parts.services, parts.printer, parts.settings),
      clips_(parts.services.host, parts.settings, parts.ways, parts.capture, parts.over),
      lessons_(std::make_unique<LessonRoom>(LessonRoom::Parts{.host = parts.services.host,
                                                              .settings = parts.settings,
                                                              .fields = parts.fields,
                                                              .remembered = parts.remembered,
                                                              .capture = parts.capture,
                                                              .sign = parts.lessonSign})),
      mail_(std::make_unique<MailRoom>(MailRoom::Parts{.host = parts.services.host,
                                                       .settings = parts.settings,
                                                       .mail = parts.mail,
                                                       .fields = parts.fields,
                                                       .remembered = parts.remembered,
                                                       .sounds = parts.capture.Sounds()})) {}

HandoutRoom::~HandoutRoom() = default;

void HandoutRoom::Serve(AnalysisForm* analysis) {
  analysis_ = analysis;
  lessons_->Serve(analysis);
  print_.Serve(analysis);
  mail_->Serve(analysis);
}

bool HandoutRoom::MayLeave() { return lessons_->MayLeave() && mail_->MayLeave(); }

bool HandoutRoom::MayClose() {
  if (!MayLeave() || !clips_.MayClose()) return false;
  return !models_ || !models_->Busy() ||
         parts_.services.host.Question("", Tr("Model videos are still coming. Do you want to give them up?"));
}

void HandoutRoom::ShowModelsForm() {
  if (!models_) {
    models_ = new DLModelsForm({.host = parts_.services.host,
                                .settings = parts_.settings,
                                .mail = parts_.mail,
                                .makeServer = [](ServerLogin login) { return MakeFileServer(std::move(login)); }},
                               &parts_.over);
    QObject::connect(models_, &DLModelsForm::SetupWanted, models_, [this] { parts_.ways.GoToInternetSetup(); });
  }
  models_->Open();
}

void HandoutRoom::TakeSnapshot() { mail_->TakeSnapshot(); }
void HandoutRoom::SendSnapshots() { mail_->SendSnapshots(); }

void HandoutRoom::ToggleLesson() { lessons_->Toggle(); }
void HandoutRoom::StopLesson() { lessons_->Stop(); }
bool HandoutRoom::LessonShown() const { return lessons_->Shown(); }
bool HandoutRoom::LessonUnderWay() const { return lessons_->UnderWay(); }

void HandoutRoom::ShowClipForm() {
  if (analysis_) clips_.ShowForm(*analysis_);
}

void HandoutRoom::CopyPicture() {
  if (analysis_) clips_.CopyPicture(*analysis_);
}

void HandoutRoom::SavePicture() {
  if (analysis_) clips_.SavePicture(*analysis_);
}

}  // namespace kinalyx
