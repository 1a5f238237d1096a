#pragma once

#include <QWidget>
#include <string>
#include <vector>

#include "distribution/send/FilesToSend.h"
#include "platform/host/DriveWatch.h"
#include "platform/widgets/Panel.h"

class QLabel;

namespace kinalyx {

class Button;
class NameList;

/// The panel "Files to Send" with `LessonList`: takes what is dropped on it, and lets go what is chosen in it.
class SendList : public Panel {
  Q_OBJECT

 public:
  /// All that is passed outlives the panel.
  SendList(DriveWatch& drives, FilesToSend& files, QWidget* parent = nullptr);

  /// Adds files, and tells what became of the last one, or how many were added.
  /// @param lesson  of each: it was made by the instructor
  struct Offer {
    std::string path;
    bool lesson = false;
  };
  void Add(const std::vector<Offer>& offers);
  void Remove();
  /// The list has been changed elsewhere.
  void Show();

 signals:
  void Said(const QString& words);
  void Changed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void TakeDropped(const std::vector<std::string>& paths);
  void ShowTotal();

  DriveWatch& drives_;
  FilesToSend& files_;
  NameList* LessonList_;
  QLabel* total_;
  Button* remove_;
};

}  // namespace kinalyx
