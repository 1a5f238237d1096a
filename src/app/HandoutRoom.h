#pragma once

#include <functional>
#include <memory>
#include <string>

#include "app/ClipRoom.h"
#include "app/PrintDesk.h"
#include "core/MailSettings.h"
#include "core/Settings.h"
#include "library/LibraryTree.h"
#include "library/Profile.h"
#include "platform/print/Printer.h"
#include "video/PlayerServices.h"
#include "workspace/commands/IHandouts.h"

namespace kinalyx {

class AnalysisForm;
class CaptureRoom;
class DLModelsForm;
class LessonRoom;
class MailRoom;

/// The side of the program that makes something to take home: for each kind a desk, made when it is first wanted.
class HandoutRoom final : public IHandouts {
 public:
  struct Parts {
    PlayerServices& services;
    IPrinter& printer;
    Settings& settings;
    MailSettings& mail;
    ProfileFields& fields;
    LastStudentInfo& remembered;
    CaptureRoom& capture;
    IHandoutWays& ways;
    std::function<void(const std::string& words)> lessonSign;  ///< what the recorder does, for other pages
    QWidget& over;                                             ///< the main window, which goes first
  };
  /// All outlives the room.
  explicit HandoutRoom(Parts parts);
  ~HandoutRoom() override;

  /// The analysis section that stands now; null when it goes. What the desks lay over its stage belongs to it.
  void Serve(AnalysisForm* analysis);
  /// Ends the lesson that is being recorded, if there is one.
  void StopLesson();
  /// Whether the program may end: asks, too, where something is still being written.
  bool MayClose();

  void ShowClipForm() override;
  void CopyPicture() override;
  void SavePicture() override;
  bool MayLeave() override;

  void ShowModelsForm() override;

  void TakeSnapshot() override;
  void SendSnapshots() override;

  void ToggleLesson() override;
  bool LessonShown() const override;
  bool LessonUnderWay() const override;

  void ShowPrintForm() override { print_.ShowPrintForm(); }
  void ShowReportForm() override { print_.ShowReportForm(); }
  void PrintSheet(ShortGame sheet) override { print_.PrintSheet(sheet); }
  void SaveSheetPictures(ShortGame sheet) override { print_.SaveSheetPictures(sheet); }
  void SaveModelPicture() override { print_.SaveModelPicture(); }
  void ToggleLefty() override { print_.ToggleLefty(); }
  bool Lefty() const override { return print_.Lefty(); }

 private:
  Parts parts_;
  PrintDesk print_;
  AnalysisForm* analysis_ = nullptr;
  ClipRoom clips_;
  std::unique_ptr<LessonRoom> lessons_;
  std::unique_ptr<MailRoom> mail_;
  DLModelsForm* models_ = nullptr;  ///< owned by the main window, and made when it is first wanted
};

}  // namespace kinalyx
