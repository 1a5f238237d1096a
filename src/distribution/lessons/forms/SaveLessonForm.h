#pragma once

#include <QDialog>

#include "distribution/lessons/LessonSession.h"

class QLabel;
class QLineEdit;
class QProgressBar;

namespace kinalyx {

class Button;

/// Gives a lesson its name and keeps it. When it is closed before, the lesson waits in the recorder.
class SaveLessonForm : public QDialog {
  Q_OBJECT

 public:
  /// @param session  outlives the form
  SaveLessonForm(LessonSession& session, QWidget* over);

  /// Shows it with the name that is proposed.
  void Open();
  /// The session says something else.
  void Update();
  /// A name is asked for, and nothing has been kept yet.
  bool Asks() const;
  /// The lesson has been kept.
  void Saved(const std::string& path);

 signals:
  void StudentWanted();
  void FolderWanted(const QString& folder);
  void PlayWanted(const QString& path);

 private:
  void Save();

  LessonSession& session_;
  QString proposed_;
  QString path_;
  QWidget* asking_;
  QWidget* MsgPnl_;
  QLabel* whose_;
  QLineEdit* Text1_;
  QLabel* MsgLbl_;
  QProgressBar* progress_;
  Button* SSCommand1_;
  Button* change_;
  Button* later_;
  QLabel* savedAs_;
};

}  // namespace kinalyx
