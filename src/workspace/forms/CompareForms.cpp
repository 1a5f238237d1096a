#include "workspace/forms/CompareForms.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <cmath>

#include "workspace/PlayerPlace.h"
#include "workspace/forms/CarvePanel.h"
#include "workspace/forms/DualBar.h"
#include "workspace/forms/MultiPicturePanel.h"
#include "workspace/forms/PlayBar.h"
#include "workspace/forms/StrobeForm.h"
#include "workspace/forms/TransFrame.h"
#include "workspace/forms/VideoCell.h"
#include "workspace/forms/ZoomForm.h"

namespace kinalyx {
namespace {

constexpr int kNotch = 120;  // eighths of a degree that one notch of a wheel turns
constexpr int kStrip = MultiPicture::kStripHeight / kTwipsPerPixel;  // pixels of the stage's height

/// "swing strobe.png" beside the video.
QString SuggestedName(const std::string& video, const QString& what) {
  const QFileInfo file(QString::fromStdString(video));
  return file.path() + "/" + file.completeBaseName() + " " + what + ".png";
}

}  // namespace

CompareForms::CompareForms(IHost& host) : host_(host) {
  askPicture = [this](const QString& suggestion) {
    QString filter;
    QString path = QFileDialog::getSaveFileName(stage_->window(), tr("Save Picture"), suggestion,
                                                tr("PNG picture (*.png);;JPEG picture (*.jpg *.jpeg)"), &filter);
    // A name without an ending takes that of the chosen kind.
    if (!path.isEmpty() && QFileInfo(path).suffix().isEmpty()) path += filter.contains("*.jpg") ? ".jpg" : ".png";
    return path;
  };
}

CompareForms::~CompareForms() = default;

void CompareForms::Build(CompareModes& modes, Workspace& workspace, QWidget* stage) {
  modes_ = &modes;
  workspace_ = &workspace;
  stage_ = stage;
  foot_ = new QWidget(stage->parentWidget());
  auto* rows = new QVBoxLayout(foot_);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  TransFrame_ = new TransFrame(modes.Transparency(), workspace, foot_);
  dual_ = new DualBar(modes, workspace, foot_);
  rows->addWidget(TransFrame_);
  rows->addWidget(dual_);
  foot_->hide();

  TransPanel_ = new SurfaceView("TransPanel", stage);
  TransPanel_->setMouseTracking(true);
  TransPanel_->installEventFilter(this);
  strip_ = new MultiPicturePanel(
      modes.Strip(),
      [this] {
        SavePicture(workspace_->CurrentWindow, tr("strip"),
                    [this](const std::string& path) { return modes_->Strip().SavePicture(path); });
      },
      stage);
  CarvePic_ = new CarveCanvas(modes.Carving(), workspace, stage);
  picRot_ = new CarvePiece(modes.Carving(), stage);
  carve_ = new CarvePanel(modes.Carving(), stage);
  connect(carve_, &CarvePanel::OpacityChanged, picRot_, &CarvePiece::SetOpacity);
  strobe_ = new StrobeForm(
      modes.Strobe(),
      [this] {
        SavePicture(workspace_->CurrentWindow, tr("strobe"),
                    [this](const std::string& path) { return modes_->Strobe().SavePicture(path); });
      },
      stage);
  connect(strobe_, &FloatCard::CloseWanted, this, [this] { modes_->ToggleStrobeForm(); });
  zoom_ = new ZoomForm(modes.Zoom(), stage);
  connect(zoom_, &FloatCard::CloseWanted, this, [this] { modes_->ToggleZoomForm(); });
  stage->installEventFilter(this);
  PlaceOnStage();
}

void CompareForms::SavePicture(int slot, const QString& what,
                               const std::function<ImageResult(const std::string&)>& save) {
  const QString path = askPicture(SuggestedName(workspace_->At(slot).path, what));
  if (path.isEmpty()) return;
  const ImageResult result = save(path.toStdString());
  if (!result) host_.Message(MessageKind::Warning, "", "The picture could not be saved: " + result.message);
}

// ---------------------------------------------------------------- stage, wheel and drag

void CompareForms::PlaceOnStage() {
  TransPanel_->setGeometry(stage_->rect());
  const qreal ratio = stage_->devicePixelRatioF();
  modes_->Transparency().Resize(qRound(stage_->width() * ratio), qRound(stage_->height() * ratio));
  strip_->setGeometry(0, 0, stage_->width(), kStrip);
  for (FloatCard* card : std::initializer_list<FloatCard*>{carve_, strobe_, zoom_})
    if (!card->isHidden()) card->KeepInside();
}

bool CompareForms::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize && watched == stage_) PlaceOnStage();
  if (event->type() == QEvent::Wheel)
    return Wheel(static_cast<QWidget*>(watched), *static_cast<QWheelEvent*>(event));
  if (watched == TransPanel_) return MouseOnMix(*event);
  return false;
}

/// The wheel zooms the video under the pointer; over the mix, that of the current window.
bool CompareForms::Wheel(QWidget* over, QWheelEvent& event) {
  const QPointF pointer = event.position() * stage_->devicePixelRatioF();
  POINTAPI at{qRound(pointer.x()), qRound(pointer.y())};
  int slot = 0;
  if (over == TransPanel_) {
    slot = modes_->Transparency().WindowAt(at);
    if (slot == 0) return true;
    at = modes_->Transparency().InPicture(slot, at);
  } else {
    // Cards and panels over the stage keep the wheel to themselves.
    QWidget* top = stage_->childAt(event.position().toPoint());
    while (top && top->parentWidget() != stage_) top = top->parentWidget();
    if (top && !qobject_cast<VideoCell*>(top)) return false;
    const int x = static_cast<int>(event.position().x()) * kTwipsPerPixel;
    const int y = static_cast<int>(event.position().y()) * kTwipsPerPixel;
    for (int each = 1; each <= kSlots && slot == 0; ++each) {
      const TwipRect& cell = workspace_->At(each).cell;
      if (workspace_->IsShown(each) && workspace_->HasVideo(each) && x >= cell.Left && x < cell.Left + cell.Width &&
          y >= cell.Top && y < cell.Top + cell.Height)
        slot = each;
    }
    if (slot == 0) return false;
    const POINTAPI corner = PlayerCornerOnStage(workspace_->At(slot));
    at = {at.x - corner.x, at.y - corner.y};
  }
  wheel_ += event.angleDelta().y();
  const int notches = wheel_ / kNotch;
  wheel_ -= notches * kNotch;
  modes_->Zoom().Wheel(slot, static_cast<float>(at.x), static_cast<float>(at.y), notches);
  return true;
}

/// The mouse on the mix is the mouse on one of its videos: tools draw there, a click stops the play, the
/// middle button takes the picture along. A button that is held keeps its video until it comes up.
bool CompareForms::MouseOnMix(QEvent& event) {
  const auto type = event.type();
  if (type != QEvent::MouseButtonPress && type != QEvent::MouseMove && type != QEvent::MouseButtonRelease) return false;
  const auto& mouse = static_cast<QMouseEvent&>(event);
  const QPointF pointer = mouse.position() * stage_->devicePixelRatioF();
  const POINTAPI point{qRound(pointer.x()), qRound(pointer.y())};
  const int slot = held_ != 0 && workspace_->HasVideo(held_) ? held_ : modes_->Transparency().WindowAt(point);
  held_ = mouse.buttons() == Qt::NoButton ? 0 : slot;
  IMouseAndKeyBoardEvents* sink = slot == 0 ? nullptr : workspace_->MP(slot).InputSink();
  if (!sink) return true;
  const POINTAPI at = modes_->Transparency().InPicture(slot, point);
  const auto x = static_cast<float>(at.x);
  const auto y = static_cast<float>(at.y);
  const int shift = ShiftOf(mouse.modifiers());
  if (type == QEvent::MouseButtonPress) sink->MouseDown(ButtonOf(mouse.button()), shift, x, y, slot);
  if (type == QEvent::MouseMove) sink->MouseMove(static_cast<int>(mouse.buttons()), shift, x, y, slot);
  if (type == QEvent::MouseButtonRelease) sink->MouseUp(ButtonOf(mouse.button()), shift, x, y, slot);
  return true;
}

void CompareForms::SetDrawing(bool drawing) {
  TransPanel_->setCursor(drawing ? Qt::CrossCursor : Qt::ArrowCursor);
  picRot_->setAttribute(Qt::WA_TransparentForMouseEvents, drawing);
}

void CompareForms::UpdateFoot() { foot_->setVisible(!TransFrame_->isHidden() || !dual_->isHidden()); }

void CompareForms::RaiseCards() {
  for (FloatCard* card : stage_->findChildren<FloatCard*>(Qt::FindDirectChildrenOnly)) {
    card->raise();
    if (!card->isHidden()) card->KeepInside();
  }
}

// ---------------------------------------------------------------- transparency

void CompareForms::ShowTransparency(bool shown) {
  if (!stage_) return;
  TransFrame_->setVisible(shown);
  TransPanel_->setVisible(shown);
  if (shown) {
    TransPanel_->raise();
    RaiseCards();
    TransFrame_->SetCurrent(workspace_->CurrentWindow);
  }
  UpdateFoot();
}

void CompareForms::PresentMix(const Surface& picture) {
  if (TransPanel_) TransPanel_->Show(picture);
}

void CompareForms::SetTransScroll(int value, bool enabled) {
  if (TransFrame_) TransFrame_->SetTransScroll(value, enabled);
}

void CompareForms::SelectOptShow(ShowOption option) {
  if (TransFrame_) TransFrame_->SelectOption(option);
}

void CompareForms::SetVideoScroll(int window, int lowest, int highest, int value) {
  if (TransFrame_) TransFrame_->SetVideoScroll(window, lowest, highest, value);
}

void CompareForms::SetVideoButtons(int window, bool playing, bool looping, bool slow) {
  if (TransFrame_) TransFrame_->SetVideoButtons(window, playing, looping, slow);
}

// ---------------------------------------------------------------- strip and carve

void CompareForms::ShowMultiPicture(bool shown) {
  if (!stage_) return;
  strip_->setVisible(shown);
  // The cards keep off it, so that its buttons stay in reach.
  stage_->setContentsMargins(0, shown ? kStrip : 0, 0, 0);
  if (!shown) return;
  strip_->raise();
  // So does a play bar that floats.
  if (auto* bar = stage_->findChild<PlayBar*>({}, Qt::FindDirectChildrenOnly); bar && !bar->Docked()) {
    bar->raise();
    bar->KeepInside();
  }
  RaiseCards();
}

int CompareForms::StripWidth() { return stage_ ? MultiPicturePanel::StripWidth(stage_->width()) : 0; }

void CompareForms::PresentStrip(const Surface& strip, int pictures) {
  if (strip_) strip_->Show(strip, pictures);
}

void CompareForms::ShowCarve(bool shown) {
  if (!carve_) return;
  if (!shown) return carve_->hide();
  carve_->Begin();
  carve_->Open(FloatCard::Place::TopRight);
}

void CompareForms::ShowCarvePic(int slot, bool shown) {
  if (!stage_) return;
  carve_->SetFloating(!shown);
  if (!shown) return CarvePic_->hide();
  CarvePic_->ShowOver(slot);
  carve_->raise();
}

void CompareForms::ShowMark(int left, int top, int width, int height) {
  if (CarvePic_) CarvePic_->ShowMark(left, top, width, height);
}

void CompareForms::ShowPiece(const Surface& piece, POINTAPI corner) {
  if (!picRot_) return;
  const bool wasHidden = picRot_->isHidden();
  picRot_->ShowAt(piece, corner);
  if (wasHidden) carve_->raise();
}

// ---------------------------------------------------------------- lock, zoom and strobe

void CompareForms::ShowDual(const DualState& state) {
  if (!stage_) return;
  dual_->ShowState(state);
  TransFrame_->SetCurrent(workspace_->CurrentWindow);
  UpdateFoot();
  if (LockShown) LockShown();
}

void CompareForms::ShowZoomForm(bool shown) {
  if (!zoom_) return;
  shown ? zoom_->Open(FloatCard::Place::TopRight) : zoom_->hide();
}

void CompareForms::ShowStrobeForm(bool shown) {
  if (!strobe_) return;
  if (!shown) return strobe_->hide();
  strobe_->Begin();
  strobe_->Open(FloatCard::Place::BottomRight);
}

}  // namespace kinalyx
