#pragma once

#include <QObject>
#include <optional>
#include <string>

#include "platform/host/Host.h"
#include "workspace/compare/CompareModes.h"

class QNativeGestureEvent;
class QWheelEvent;
class QWidget;

namespace kinalyx {

class CarveCanvas;
class CarvePanel;
class CarvePiece;
class DualBar;
class FloatCard;
class MultiPicturePanel;
class StrobeForm;
class SurfaceView;
class TransFrame;
class ZoomForm;

/// All windows of the comparing modes. Made before the theStage, as its view; Build then puts the windows
/// on the stage, before the workspace starts to speak.
class CompareForms : public QObject, public ICompareView {
  Q_OBJECT

 public:
  explicit CompareForms(IHost& host) : host_(host) {}
  ~CompareForms() override;

  /// Makes everything. Windows that float are children of the stage and go with it; so nothing here may be
  /// called after the stage has gone.
  void Build(CompareModes& modes, Stage& theStage, QWidget* stage);
  /// The bars beneath the stage: whoever lays the stage out gives it its place, and it shows itself when
  /// there is something in it.
  QWidget* Foot() { return foot_; }

  /// A drawing tool is in hand: it draws on the mix too, and beneath a floating piece.
  void SetDrawing(bool drawing);
  /// The zoom of the current window may have changed.
  void ShowZoom();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void PlaceOnStage();
  void SaveStrip();
  void SaveStrobe();
  /// Asks for a name beside the current video; nothing when the user cancels.
  std::optional<std::string> AskPictureName(const char* what);
  void TellUnlessSaved(const Outcome& saved);
  bool Wheel(QWidget* over, QWheelEvent& event);
  bool Pinch(QNativeGestureEvent& event);
  int SlotUnder(QPointF pointer) const;
  bool MouseOnMix(QEvent& event);
  void UpdateFoot();
  /// The cards on the stage come above what has been raised there, and keep within its margins.
  void RaiseCards();

  // --- ITransparencyView
  void ShowTransparency(bool shown) override;
  void PresentMix(const Surface& picture) override;
  void SetTransScroll(int value, bool enabled) override;
  void SelectOptShow(ShowOption option) override;
  void SetVideoScroll(int window, int lowest, int highest, int value) override;
  void SetVideoButtons(int window, bool playing, bool looping, bool slow) override;
  // --- IMultiPictureView
  void ShowMultiPicture(bool shown) override;
  int StripWidth() override;
  void PresentStrip(const Surface& strip, int pictures) override;
  // --- ICarveView
  void ShowCarve(bool shown) override;
  void ShowCarvePic(int slot, bool shown) override;
  void ShowMark(int left, int top, int width, int height) override;
  void ShowPiece(const Surface& piece, POINTAPI corner) override;
  // --- ICompareView
  void ShowDual(const DualState& state) override;
  void ShowZoomForm(bool shown) override;
  void ShowStrobeForm(bool shown) override;

  IHost& host_;
  CompareModes* modes_ = nullptr;
  Stage* theStage_ = nullptr;
  QWidget* stage_ = nullptr;
  QWidget* foot_ = nullptr;
  SurfaceView* TransPanel_ = nullptr;
  TransFrame* TransFrame_ = nullptr;
  DualBar* dual_ = nullptr;
  MultiPicturePanel* strip_ = nullptr;
  CarvePanel* carve_ = nullptr;
  CarveCanvas* CarvePic_ = nullptr;
  CarvePiece* picRot_ = nullptr;
  StrobeForm* strobe_ = nullptr;
  ZoomForm* zoom_ = nullptr;
  int held_ = 0;      ///< window whose video a mouse button was pressed on in the mix; 0 none
  double pinch_ = 0;  ///< of two fingers that have not zoomed by a tenth yet
  int wheel_ = 0;     ///< turns of the wheel that have not made a notch yet
};

}  // namespace kinalyx
