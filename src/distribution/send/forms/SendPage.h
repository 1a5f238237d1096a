#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/Vocabulary.h"
#include "distribution/send/SendWish.h"
#include "library/GlanceStore.h"
#include "library/LibraryBrowser.h"
#include "platform/host/Host.h"
#include "platform/widgets/PageWidget.h"

class QLabel;
class QLineEdit;

namespace kinalyx {

class Button;
class LibraryLists;
class NameList;
class Panel;
class SendList;
class StatusLine;
class VideoRows;

/// The Send Lessons page: gathers videos and lessons in the Files to Send list, and says how they are to go.
class SendPage : public PageWidget {
  Q_OBJECT

 public:
  /// All that is passed outlives the page.
  /// @param remembered  the program's one remembered library selection; it is read, not changed
  /// @param files       the list, which others may read at any time
  SendPage(IHost& host, const Settings& settings, const LastStudentInfo& remembered, FilesToSend& files,
           QWidget* parent = nullptr, DriveWatch::Send send = DriveWatch::SendWorker,
           GlanceStore glances = GlanceStore::OfUser());
  ~SendPage() override;

  /// What the page shows in the mode of the disc; the page becomes its parent.
  void SetDiscPanel(QWidget* panel);
  void Open() override;
  void SetupVocabulary();
  /// The buttons `SSCommand4`.
  void SSCommand4_Click(int index);
  void cmdAddtoBurn_Click(int index);
  void cmdSendtoWeb_Click();

 signals:
  /// The list has got another file, or lost one.
  void FilesChanged();
  /// The listed files are to be sent; nothing is missing to the wish.
  void SendWanted(const SendWish& wish);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QLayout* MakeChoice();
  QLayout* MakeSources();
  QLayout* MakeSending();
  QWidget* MakeAddresses();
  void StudentChosen();
  void ShowLessons();
  void ShowButtons();
  void ReadAddress();

  IHost& host_;
  const Settings& settings_;
  const LastStudentInfo& LastStudent_;
  FilesToSend& files_;
  LastStudentInfo remembered_;
  LastStudentInfo seenLast_;  ///< the program's selection when the page was opened last
  LibraryBrowser browser_;
  LibraryLists* lists_;
  VideoRows* rows_;
  std::vector<std::string> lessons_;  ///< paths, row by row
  SendMode mode_ = SendMode::Email;
  std::string addressOf_;  ///< folder of the student whose address was read last
  QString readAddress_;    ///< that address

  Panel* students_;
  NameList* lessonRows_;
  std::array<Button*, 2> add_{};
  SendList* sendList_;
  std::array<Button*, 3> modes_{};
  Panel* way_;
  QWidget* addresses_;
  QWidget* discPanel_ = nullptr;
  QLabel* words_;
  std::array<QLineEdit*, 3> txtSendTo_{};
  Button* cmdSendtoWeb_;
  StatusLine* status_;
};

}  // namespace kinalyx
