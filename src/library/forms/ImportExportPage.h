#pragma once

#include <string>

#include "core/Settings.h"
#include "library/LibraryOperations.h"
#include "platform/host/Host.h"
#include "platform/widgets/PageWidget.h"

class QLabel;
class QLayout;

namespace kinalyx {

class Button;
class DriveChoice;
class Gauge;
class LibrarySide;
class ProgressForm;
class StatusLine;

/// The page that takes videos out of the library to another drive or folder, and back. On the left this
/// library, on the right what is found at the other place.
class ImportExportPage : public PageWidget {
  Q_OBJECT

 public:
  /// All that is passed outlives the page.
  /// @param remembered  the program's one remembered library selection; it is read, not changed
  ImportExportPage(IHost& host, Settings& settings, LibraryOperations& operations, const LastStudentInfo& remembered,
                   QWidget* parent = nullptr);
  ~ImportExportPage() override;

  /// The page is about to be shown: reads both sides.
  void Open() override;
  void SetupVocabulary();
  /// Buttons `IECmd`.
  enum Command { kExport, kImport };
  void IECmd_Click(int command);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  class Transfer;

  QLayout* MakeCommands();
  QLayout* MakeDriveChoice(IHost& host, Settings& settings);
  void OpenDrive();
  void TakeDropped(const std::vector<std::string>& paths);
  void ShowDropTarget();
  ImportTarget TargetOfLooseVideos() const;
  void ShowResult(bool out, const OperationResult& result);
  void DiskSpaceGauge();
  void Say(const QString& text);

  IHost& host_;
  const Settings& settings_;
  LibraryOperations& operations_;
  const LastStudentInfo& LastStudent_;
  std::string otherRoot_;

  QLabel* help_;
  LibrarySide* here_;
  LibrarySide* there_;
  DriveChoice* Drive1_;
  Gauge* SpaceFlood_;
  QLabel* Label6_;
  StatusLine* status_;
  ProgressForm* progress_;
};

}  // namespace kinalyx
