#include "app/ClipRoom.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <cmath>

#include "app/CaptureRoom.h"
#include "distribution/clips/forms/ClipCard.h"
#include "distribution/clips/forms/ClipForm.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/host/DriveWatch.h"
#include "platform/widgets/Text.h"
#include "workspace/compare/PictureExport.h"
#include "workspace/forms/AnalysisForm.h"

namespace kinalyx {

ClipRoom::ClipRoom(IHost& host, const Settings& settings, IHandoutWays& ways, CaptureRoom& capture, QWidget& over)
    : host_(host),
      ways_(ways),
      capture_(capture),
      voice_(capture.MakeVoiceRecorder()),
      card_(new ClipCard(&over)),
      desk_(host, settings, *this) {
  QObject::connect(card_, &ClipCard::CancelWanted, [this] { desk_.Cancel(); });
  QObject::connect(card_, &ClipCard::FolderWanted, [this](const QString& path) {
    if (!host_.ShowFolder(FolderOf(Std(path))))
      host_.Message(MessageKind::Information, "", Tr("It lies in {}", FolderOf(Std(path))));
  });
  QObject::connect(card_, &ClipCard::PlayWanted, [this](const QString& path) {
    if (!ways_.OpenInAnalysis({Std(path)}))
      host_.Message(MessageKind::Warning, "", Tr("The clip could not be opened."));
  });
}

ClipRoom::~ClipRoom() = default;

void ClipRoom::ShowForm(AnalysisForm& analysis) {
  analysis.Section().Stage().MP(analysis.Section().Stage().CurrentWindow).StopPlay();
  analysis.Section().PutToolDown();
  ClipForm form({.host = host_,
                 .analysis = analysis.Section(),
                 .desk = desk_,
                 .voice = *voice_,
                 .microphone = capture_.Setup().Microphone()},
                &analysis);
  form.exec();
}

Result<Surface> ClipRoom::Picture(AnalysisForm& analysis) {
  const ClipScene scene = TakePicture(analysis.Section(), analysis.Section().Stage().CurrentWindow);
  if (!host_.Drives().Answers(FolderOf(analysis.Section().Stage().Current().path)))
    return Outcome::Failed(Tr("The drive does not answer."));
  return PictureOf(scene, static_cast<int>(std::lround(scene.PixelsHigh * scene.Proportion())), scene.PixelsHigh);
}

void ClipRoom::CopyPicture(AnalysisForm& analysis) {
  const auto picture = Picture(analysis);
  if (!picture) return host_.Message(MessageKind::Warning, "", picture.Why());
  const QImage view(picture->Row(0), picture->Width(), picture->Height(), picture->Stride(), QImage::Format_RGB32);
  QGuiApplication::clipboard()->setImage(view.copy());
  analysis.Section().Transport().Announce(Tr("The picture is in the clipboard."));
}

void ClipRoom::SavePicture(AnalysisForm& analysis) {
  const Stage& stage = analysis.Section().Stage();
  const std::string& video = stage.Current().path;
  const auto path =
      host_.PickNewFile({Tr("Save Picture"), JoinPath(FolderOf(video), NameOfVideo(video) + " picture.png"),
                         Tr("PNG picture (*.png)|*.png|JPEG picture (*.jpg *.jpeg)|*.jpg; *.jpeg")});
  if (!path) return;
  const auto picture = Picture(analysis);
  const Outcome saved = picture ? ExportPicture(*picture, *path) : picture.Failure();
  if (!saved) return host_.Message(MessageKind::Warning, "", Tr("The picture was not saved. {}", saved.Why()));
  analysis.Section().Transport().Announce(Tr("The picture was saved."));
}

bool ClipRoom::MayClose() {
  return !desk_.Busy() || host_.Question("", Tr("A clip is still being written. Do you want to give it up and close?"));
}

void ClipRoom::ClipProgress(const std::string& name, double part, int waiting) {
  card_->ShowProgress(name, part, waiting);
}

void ClipRoom::ClipSaved(const std::string& path) { card_->ShowSaved(path); }
void ClipRoom::ClipCancelled() { card_->Leave(); }
void ClipRoom::ClipFailed(const std::string& words) { card_->ShowFailed(words); }

}  // namespace kinalyx
