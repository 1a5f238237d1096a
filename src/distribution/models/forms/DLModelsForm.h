#pragma once

#include <QDialog>

#include "distribution/models/ModelVideos.h"

class QLabel;
class QListWidget;
class QProgressBar;
class QStackedWidget;

namespace kinalyx {

class Button;

/// "Download Model Videos": the folders of the server, and the videos that come into the library. It may be closed
/// while videos come; when it is opened again it tells how far they are.
class DLModelsForm final : public QDialog, private IModelVideosEvents {
  Q_OBJECT

 public:
  /// @param over  the main window, which owns the form; the parts outlive it
  DLModelsForm(ModelVideos::Parts parts, QWidget* over);

  /// Shows the form, and asks the server unless it is busy or has been asked.
  void Open();
  bool Busy() const { return models_.Busy(); }

 signals:
  /// There is no server yet; it is set elsewhere.
  void SetupWanted();

 protected:
  void reject() override;

 private:
  void Form_Load();
  void List1_Click(int row);
  void List2_Click(int row);
  void List3_Click();
  void SSCommand4_Click();

  QWidget* MakeLists();
  QWidget* MakeEmpty();
  std::vector<int> Chosen() const;
  void FillLists();
  void ShowState();

  void ModelsChanged() override;
  void ModelsFailed(const std::string& title, const std::string& text) override;

  IHost& host_;
  ModelVideos models_;
  QStackedWidget* parts_;
  QListWidget* List1_;
  QListWidget* List2_;
  QListWidget* List3_;
  QLabel* status_;
  QLabel* detail_;
  QLabel* selected_;
  QProgressBar* gauge_;
  Button* again_;
  Button* SSCommand4_;
  Button* close_;
};

}  // namespace kinalyx
