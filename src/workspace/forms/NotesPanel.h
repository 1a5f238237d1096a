#pragma once

#include "workspace/edits/VideoNotes.h"
#include "workspace/forms/StagePanel.h"

class QLabel;
class QPlainTextEdit;
class QToolButton;

namespace kinalyx {

/// `NotesPnl`: the notes of the current video over the lower part of its cell.
class NotesPanel : public StagePanel {
  Q_OBJECT

 public:
  NotesPanel(VideoNotes& notes, QWidget* parent);

  /// Shows a text without telling it as a change; the same text leaves the cursor where it is.
  void SetText(const std::string& text);

 private:
  void TextChanged();
  int TakeBack(std::size_t characters);
  void Dress() override;

  VideoNotes& notes_;
  QPlainTextEdit* box_;
  QLabel* full_ = nullptr;  ///< says what the box did not take; hidden while there is nothing to say
  QToolButton* close_ = nullptr;
  int added_ = 0;     ///< characters of the box that its last change has brought
  int addedEnd_ = 0;  ///< the place behind them
};

/// Notes as a box has them, lines ended by LF, and as files have them, by CR LF.
QString BoxText(const std::string& notes);
std::string FileText(const QString& text);

}  // namespace kinalyx
