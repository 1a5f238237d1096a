#include "workspace/forms/CompareForms.h"

#include <QFileInfo>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <cmath>

#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "workspace/stage/PlayerPlace.h"
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

constexpr int kNotch = 120;                            // eighths of a degree that one notch of a wheel turns
constexpr int kStrip = kStripHeight / kTwipsPerPixel;  // pixels of the stage's height

constexpr const char* kPictureKinds = TrLater("PNG picture (*.png)|*.png|JPEG picture (*.jpg *.jpeg)|*.jpg; *.jpeg");

/// "swing strobe.png" beside the video.
std::string SuggestedName(const std::string& video, const char* what) {
  return FolderOf(video) + "/" + NameOfVideo(video) + " " + what + ".png";
}

}  // namespace

CompareForms::~CompareForms() = default;

void CompareForms::Build(CompareModes& modes, Stage& theStage, QWidget* stage) {
  modes_ = &modes;
  theStage_ = &theStage;
  stage_ = stage;
  foot_ = new QWidget(stage->parentWidget());
  auto* rows = new QVBoxLayout(foot_);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  TransFrame_ = new TransFrame(modes.Transparency(), theStage, foot_);
  dual_ = new DualBar(modes, theStage, foot_);
  rows->addWidget(TransFrame_);
  rows->addWidget(dual_);
  foot_->hide();

  TransPanel_ = new SurfaceView("TransPanel", stage);
  TransPanel_->setMouseTracking(true);
  TransPanel_->installEventFilter(this);
  strip_ = new MultiPicturePanel(modes.Strip(), stage);
  connect(strip_, &MultiPicturePanel::SaveWanted, this, &CompareForms::SaveStrip);
  CarvePic_ = new CarveCanvas(modes.Carving(), theStage, stage);
  picRot_ = new CarvePiece(modes.Carving(), stage);
  carve_ = new CarvePanel(modes.Carving(), stage);
  connect(carve_, &CarvePanel::OpacityChanged, picRot_, &CarvePiece::SetOpacity);
  strobe_ = new StrobeForm(modes.Strobe(), stage);
  connect(strobe_, &StrobeForm::SaveWanted, this, &CompareForms::SaveStrobe);
  connect(strobe_, &FloatCard::CloseWanted, this, [this] { modes_->ToggleStrobeForm(); });
  zoom_ = new ZoomForm(modes.Zoom(), stage);
  connect(zoom_, &FloatCard::CloseWanted, this, [this] { modes_->ToggleZoomForm(); });
  stage->installEventFilter(this);
  PlaceOnStage();
}

std::optional<std::string> CompareForms::AskPictureName(const char* what) {
  return host_.PickNewFile({Tr("Save Picture"), SuggestedName(theStage_->Current().path, what), Tr(kPictureKinds)});
}

void CompareForms::SaveStrip() {
  if (const auto path = AskPictureName("strip")) TellUnlessSaved(modes_->Strip().SavePicture(*path));
}

void CompareForms::SaveStrobe() {
  if (const auto path = AskPictureName("strobe")) TellUnlessSaved(modes_->Strobe().SavePicture(*path));
}

void CompareForms::TellUnlessSaved(const Outcome& saved) {
  if (!saved) host_.Message(MessageKind::Warning, "", Tr("The picture could not be saved: {}", saved.Why()));
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
  if (event->type() == QEvent::NativeGesture) return Pinch(*static_cast<QNativeGestureEvent*>(event));
  if (event->type() == QEvent::Wheel) return Wheel(static_cast<QWidget*>(watched), *static_cast<QWheelEvent*>(event));
  if (watched == TransPanel_) return MouseOnMix(*event);
  return false;
}

/// The window with a video under a point of the stage; 0 for none. Cards and panels over the stage keep what the
/// mouse does there to themselves.
int CompareForms::SlotUnder(QPointF pointer) const {
  QWidget* top = stage_->childAt(pointer.toPoint());
  while (top && top->parentWidget() != stage_) top = top->parentWidget();
  if (top && !qobject_cast<VideoCell*>(top)) return 0;
  const int x = static_cast<int>(pointer.x()) * kTwipsPerPixel;
  const int y = static_cast<int>(pointer.y()) * kTwipsPerPixel;
  for (int slot = 1; slot <= kSlots; ++slot) {
    const TwipRect& cell = theStage_->At(slot).cell;
    if (theStage_->IsShown(slot) && theStage_->HasVideo(slot) && x >= cell.Left && x < cell.Left + cell.Width &&
        y >= cell.Top && y < cell.Top + cell.Height)
      return slot;
  }
  return 0;
}

/// Two fingers that draw apart on a touchpad zoom in at the pointer.
bool CompareForms::Pinch(QNativeGestureEvent& event) {
  if (event.gestureType() == Qt::BeginNativeGesture) pinch_ = 0;
  const QPointF pointer = stage_->mapFromGlobal(event.globalPosition());
  const int slot = event.gestureType() == Qt::ZoomNativeGesture ? SlotUnder(pointer) : 0;
  if (slot == 0) return false;
  pinch_ += event.value() * theStage_->At(slot).VideoZoom;
  const int notches = static_cast<int>(pinch_ / kZoomStep);
  pinch_ -= notches * kZoomStep;
  const QPointF on = pointer * stage_->devicePixelRatioF();
  const POINTAPI corner = PlayerCornerOnStage(theStage_->At(slot));
  modes_->Zoom().Wheel(slot, static_cast<float>(on.x() - corner.x), static_cast<float>(on.y() - corner.y), notches);
  return true;
}

/// The wheel zooms the video under the pointer, and two fingers on a touchpad move it; over the mix, that of the
/// current window.
bool CompareForms::Wheel(QWidget* over, QWheelEvent& event) {
  const QPointF pointer = event.position() * stage_->devicePixelRatioF();
  POINTAPI at{qRound(pointer.x()), qRound(pointer.y())};
  int slot = 0;
  if (over == TransPanel_) {
    slot = modes_->Transparency().WindowAt(at);
    if (slot == 0) return true;
    at = modes_->Transparency().InPicture(slot, at);
  } else {
    slot = SlotUnder(event.position());
    if (slot == 0) return false;
    const POINTAPI corner = PlayerCornerOnStage(theStage_->At(slot));
    at = {at.x - corner.x, at.y - corner.y};
  }
  // A wheel has no phases.
  const bool fingers =
      event.phase() != Qt::NoScrollPhase || event.pointingDevice()->type() == QInputDevice::DeviceType::TouchPad;
  if (fingers && !(event.modifiers() & Qt::ControlModifier)) {
    const QPointF by = event.pixelDelta().isNull() ? QPointF(event.angleDelta()) / 2 : QPointF(event.pixelDelta());
    modes_->Zoom().PanBy(slot, by.x(), by.y());
    return true;
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
  const int slot = held_ != 0 && theStage_->HasVideo(held_) ? held_ : modes_->Transparency().WindowAt(point);
  held_ = mouse.buttons() == Qt::NoButton ? 0 : slot;
  IMouseAndKeyBoardEvents* sink = slot == 0 ? nullptr : theStage_->MP(slot).InputSink();
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
  TransFrame_->setVisible(shown);
  TransPanel_->setVisible(shown);
  if (shown) {
    TransPanel_->raise();
    RaiseCards();
    TransFrame_->SetCurrent(theStage_->CurrentWindow);
  }
  UpdateFoot();
}

void CompareForms::PresentMix(const Surface& picture) { TransPanel_->Show(picture); }

void CompareForms::SetTransScroll(int value, bool enabled) { TransFrame_->SetTransScroll(value, enabled); }

void CompareForms::SelectOptShow(ShowOption option) { TransFrame_->SelectOption(option); }

void CompareForms::SetVideoScroll(int window, int lowest, int highest, int value) {
  TransFrame_->SetVideoScroll(window, lowest, highest, value);
}

void CompareForms::SetVideoButtons(int window, bool playing, bool looping, bool slow) {
  TransFrame_->SetVideoButtons(window, playing, looping, slow);
}

// ---------------------------------------------------------------- strip and carve

void CompareForms::ShowMultiPicture(bool shown) {
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

int CompareForms::StripWidth() { return MultiPicturePanel::StripWidth(stage_->width()); }

void CompareForms::PresentStrip(const Surface& strip, int pictures) { strip_->Show(strip, pictures); }

void CompareForms::ShowCarve(bool shown) {
  if (!shown) return carve_->hide();
  carve_->Begin();
  carve_->Open(FloatCard::Place::Top);
}

void CompareForms::ShowCarvePic(int slot, bool shown) {
  carve_->SetFloating(!shown);
  if (!shown) return CarvePic_->hide();
  CarvePic_->ShowOver(slot);
  carve_->raise();
}

void CompareForms::ShowMark(int left, int top, int width, int height) { CarvePic_->ShowMark(left, top, width, height); }

void CompareForms::ShowPiece(const Surface& piece, POINTAPI corner) {
  const bool wasHidden = picRot_->isHidden();
  picRot_->ShowAt(piece, corner);
  if (wasHidden) carve_->raise();
}

// ---------------------------------------------------------------- lock, zoom and strobe

void CompareForms::ShowDual(const DualState& state) {
  dual_->ShowState(state);
  TransFrame_->SetCurrent(theStage_->CurrentWindow);
  UpdateFoot();
}

void CompareForms::ShowZoomForm(bool shown) { shown ? zoom_->Open(FloatCard::Place::Top) : zoom_->hide(); }

void CompareForms::ShowZoom() {
  const Slot& slot = theStage_->Current();
  zoom_->ShowZoom(slot.VideoZoom, slot.Fits);
}

void CompareForms::ShowStrobeForm(bool shown) {
  if (!shown) return strobe_->hide();
  strobe_->Begin();
  strobe_->Open(FloatCard::Place::Bottom);
}

}  // namespace kinalyx
