#pragma once

#include <array>
#include <vector>

#include "library/ListChoices.h"
#include "library/VideoStats.h"
#include "library/forms/PreviewPlayer.h"
#include "platform/widgets/NameList.h"
#include "platform/widgets/Panel.h"

namespace kinalyx {

class Button;
class EditPanel;
class FigureLabel;
class Settings;
class SidecarMarkLabels;

/// The list of videos, the preview of the selected one, what is known of it, and its buttons.
class VideosPanel : public Panel {
  Q_OBJECT

 public:
  /// All that is passed outlives the panel.
  VideosPanel(PlayerServices& services, const Settings& settings, ListChoices& choices, NameList* list,
              QWidget* parent = nullptr);

  PreviewPlayer& VideoPlay1() { return *preview_; }
  /// Shows a video of the library, or nothing for "". False when it cannot be opened, and not because its
  /// drive does not answer.
  bool ShowVideo(const std::string& path);
  /// Shows or hides the list under "Video Statistics".
  void ShowStatsPanel(bool shown);
  bool StatsShown() const;
  /// Rows show pictures and details, and not names alone.
  bool PicturesAreShown() const { return picturesShown_; }
  void SetCount(int videos);

  /// The panel in which the shown video is trimmed, in the place of the buttons; no others are added meanwhile.
  EditPanel& Trim() { return *trim_; }
  void ShowTrim(bool shown);
  bool TrimShown() const;
  void FocusList() { list_->setFocus(); }
  /// The rows that are chosen in the list.
  std::vector<int> ChosenRows() const { return list_->ChosenRows(); }

 signals:
  /// Videos from elsewhere are to come to this list.
  void AddWanted();
  /// The folder of this list is to be shown.
  void FolderWanted();
  /// The user wants the list in another order.
  void SortChanged();
  /// Rows show pictures and details now, or names alone.
  void PicturesShown(bool shown);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  QLayout* MakeList();
  QWidget* MakeSummary();
  QWidget* MakeStats();
  void ShowStats(const VideoStats& stats);
  void LimitList();
  void OpenSortMenu();
  void Sort(VideoSort::By by);

  DriveWatch& drives_;
  const Settings& settings_;
  ListChoices& choices_;
  NameList* list_;
  PreviewPlayer* preview_ = nullptr;
  QWidget* statsPart_;
  EditPanel* trim_;
  Button* add_ = nullptr;
  FigureLabel* count_;
  Button* sort_;
  Button* pictures_;
  QHBoxLayout* middle_;
  bool picturesShown_ = false;
  class SummaryLine* summary_;
  SidecarMarkLabels* marks_;
  std::array<FigureLabel*, 9> stats_{};
};

}  // namespace kinalyx
