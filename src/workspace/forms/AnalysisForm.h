#pragma once

#include <array>
#include <memory>

#include "library/LibraryTree.h"
#include "library/OpenVideo.h"
#include "platform/widgets/PageWidget.h"
#include "video/AVIControl.h"
#include "workspace/AnalysisWorkspace.h"

class QHBoxLayout;

namespace kinalyx {

class CalibrationPanel;
class CardDesk;
class ColorRow;
class CompareForms;
class CommandMenus;
class DrawCaption;
class EditForms;
class FloatCard;
class NotesPanel;
class OpenVideoParts;
class PlayBar;
class SeekPreview;
class ToolStrip;
class VideoCell;
class VideoTimerForm;

/// The analysis section's page: menus, tool strip and the dark stage with its eight windows, play bar and
/// small panels. It shows what AnalysisWorkspace tells it to, and hands it mouse and keys.
class AnalysisForm : public PageWidget, private IWorkspaceView, private IOpenVideo {
  Q_OBJECT

 public:
  /// What is passed must outlive the form. The form may be let go at any time from the event loop; videos
  /// that are still open are written then, without a question.
  /// @param remembered  the program's one remembered library selection
  AnalysisForm(IHost& host, Settings& settings, PlayerServices& players, LastStudentInfo& remembered,
               INavigation& navigation, QWidget* parent = nullptr);
  ~AnalysisForm() override;

  /// The keys are its own, and an open panel that was left standing is up to date.
  void Open() override;
  /// Videos and panels stay as they are.
  bool Leave() override;
  /// Writes and closes all videos. False when the user kept one open, because its drawings could not be saved.
  bool CloseAll();
  /// A setting of the section, or the noun, has changed.
  void SettingsChanged();

  AnalysisWorkspace& Section() { return *analysis_; }
  /// A card that a room above has laid over the stage lies as the section's own ones do.
  void TakeCard(FloatCard& card);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void MakeStage();
  void MakeOpenPanel();
  void PlaceOpenPanel();
  void FitOpenPanel();
  bool ScaleBars();
  void Run(const std::string& command);
  void NoteOpened(int videos);
  void TakeDropped(const std::vector<std::string>& paths, QPoint at);
  void PlaceCaption();
  void PressColour(const Shape* taken);
  void ShowPointer(int slot, HandPointer pointer);
  QRect Pixels(const TwipRect& place) const;
  bool Typing() const;
  void HearIfSeen(bool onPage);
  VideoCell& Cell(int slot) { return *cells_[static_cast<std::size_t>(slot - 1)]; }

  // --- IWorkspaceView
  int MainPanelWidth() override;
  int MainPanelHeight() override;
  void PlaceCell(int slot, const TwipRect& border, const TwipRect& video) override;
  void HideCell(int slot) override;
  void PlaceFilm(int slot, const TwipRect& place) override;
  void PlacePlayer(int slot, const TwipRect& place, bool shown) override;
  void PaintBorder(int slot, bool current) override;
  void SetCellTitle(int slot, const std::string& title) override;
  void SetCellPosition(int slot, int position, int maximum, const std::string& line) override;
  void SetZoomFigure(int slot, const std::string& figure) override;
  void PlacePlayBar(const TwipRect& place) override;
  void SetScrollRange(int minimum, int maximum) override;
  void SetScrollValue(int position) override;
  void SetPlayRange(int first, int last) override;
  void SetPlayPicture(bool playing) override;
  void SetSlomoButton(bool down) override;
  void SetSpeed(int percent) override;
  void SetLoopButton(bool down) override;
  void SetDisplayLine(const std::string& line, const std::string& counter) override;
  void SetMarks(const std::vector<ShownMark>& marks) override;
  void SetDisplayText(const std::string& text) override;
  void ShowVectorColor(Colour colour) override;
  void HideVectorColor() override;
  void SetColorButton(int index) override;
  void ShowNotesPnl(const TwipRect& place, const std::string& notes) override;
  void HideNotesPnl() override;
  void ShowVideoTimer(bool shown) override;
  void SetVideoTimer(const std::string& reading, bool negative, const std::string& rate) override;
  void ShowCalibration(bool shown) override;
  void SetCalibrationLength(const std::string& length) override;
  void SetVideoRuler(const std::string& words) override;
  void ShowHint(int slot, const std::string& words, const std::string& command) override;
  void ShowRateForm() override;
  void ShowOpenPanel() override;
  void ShowWindowMenu() override;
  void OpenFromDisk() override;
  bool CloseOpenPanel() override;
  bool CloseMomentary() override;
  void NameLastMark() override;
  void CommandsChanged() override;
  void FocusKeyBox() override;

  // --- IOpenVideo
  bool OpenVideo(const std::string& path) override;
  int OpenFamily(const std::vector<std::string>& paths) override;
  int PickAndOpen() override;
  void UndoLastOpen() override;
  void OpenVideoDone() override;

  IHost& host_;
  Settings& settings_;
  PlayerServices& players_;
  LastStudentInfo& remembered_;
  std::unique_ptr<EditForms> edits_;  ///< a view of what follows
  std::unique_ptr<CompareForms> compare_;
  std::unique_ptr<AnalysisWorkspace> analysis_;
  std::unique_ptr<CardDesk> desk_;
  CommandMenus* menus_ = nullptr;
  ColorRow* colors_ = nullptr;
  ToolStrip* strip_ = nullptr;
  QHBoxLayout* middle_ = nullptr;  ///< the stage, and the open panel beside it
  QWidget* stage_ = nullptr;
  QWidget* keyBox_ = nullptr;
  std::array<VideoCell*, kSlots> cells_{};
  std::array<std::string, kSlots + 1> hints_{};  ///< the commands of what the cells say
  PlayBar* playBar_ = nullptr;
  SeekPreview* preview_ = nullptr;
  DrawCaption* caption_ = nullptr;
  NotesPanel* notes_ = nullptr;
  VideoTimerForm* timer_ = nullptr;
  CalibrationPanel* calibration_ = nullptr;
  OpenVideoParts* openPanel_ = nullptr;  ///< made when first wanted
  bool onPage_ = true;
  int openChoice_ = -1;  ///< the place for which it was made
};

}  // namespace kinalyx
