#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>
#include <memory>
#include <string>
#include <vector>

#include "distribution/clips/ScenePainter.h"
#include "platform/graph/ISoundOutput.h"

class QLabel;
class QSlider;

namespace kinalyx {

class Button;
class ClipPicture;
class FigureLabel;
class NameList;

/// What a student sees who opens a disc or a stick: the lessons and videos that lie in its folders, and one of them,
/// with its drawings, played, stepped through and slowed down.
class ViewerForm : public QWidget {
  Q_OBJECT

 public:
  /// @param folder  that holds `Lessons` and `Videos`; with neither, its own videos are shown
  /// @param sound   outlives the form
  ViewerForm(const std::string& folder, ISoundOutput& sound, QWidget* parent = nullptr);
  ~ViewerForm() override;

  /// Opens a row of the list; headings open nothing.
  void OpenRow(int row);
  int Position() const;
  bool Playing() const { return tick_.isActive(); }

 protected:
  /// The list leaves all keys but those that move in it to the player.
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  QWidget* MakeList();
  QWidget* MakeStage();
  void Fill(const std::string& folder);
  void AddFolder(const QString& heading, const std::string& folder);
  void Open(const std::string& path);
  bool TakeKey(int key);
  void Play(bool on);
  void Step(int positions);
  void SetSlow(bool slow);
  void NextPicture();
  void ShowPosition();
  void SoundFrom();
  void Enable();
  double Now() const;
  double Speed() const;

  ISoundOutput& sound_;
  std::vector<std::string> paths_;  ///< of the rows; empty for a heading
  std::unique_ptr<ScenePainter> painter_;
  const IFilmTimes* times_ = nullptr;
  QTimer tick_;
  QElapsedTimer clock_;
  double playedFrom_ = 0;  ///< milliseconds of the video at which the clock began
  NameList* list_;
  ClipPicture* picture_;
  QLabel* fault_;
  QSlider* seek_;
  FigureLabel* time_;
  Button* play_;
  Button* back_;
  Button* forward_;
  Button* slow_;
};

}  // namespace kinalyx
