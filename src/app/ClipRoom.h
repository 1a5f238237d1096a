#pragma once

#include "distribution/clips/ClipDesk.h"

class QWidget;

namespace kinalyx {

class AnalysisForm;
class CaptureRoom;
class ClipCard;
class IVoiceRecorder;

/// What the rooms of handouts may ask of the program.
class IHandoutWays {
 public:
  virtual ~IHandoutWays() = default;
  /// Opens videos in the analysis section and goes there; false when none could be opened.
  virtual bool OpenInAnalysis(const std::vector<std::string>& paths) = 0;
  /// Goes to the section Internet of Program Setup.
  virtual void GoToInternetSetup() = 0;
};

/// Clips and pictures with drawings: the form, the desk, and the card that tells how far it is.
class ClipRoom final : private IClipEvents {
 public:
  /// @param over  the main window, which owns the card; all outlives the room but that, which goes first
  ClipRoom(IHost& host, const Settings& settings, IHandoutWays& ways, CaptureRoom& capture, QWidget& over);
  ~ClipRoom() override;

  void ShowForm(AnalysisForm& analysis);
  void CopyPicture(AnalysisForm& analysis);
  void SavePicture(AnalysisForm& analysis);
  /// Asks whether clips that are being written may be given up; true also when there are none.
  bool MayClose();

 private:
  Result<Surface> Picture(AnalysisForm& analysis);

  // --- IClipEvents
  void ClipProgress(const std::string& name, double part, int waiting) override;
  void ClipSaved(const std::string& path) override;
  void ClipCancelled() override;
  void ClipFailed(const std::string& words) override;

  IHost& host_;
  IHandoutWays& ways_;
  CaptureRoom& capture_;
  std::unique_ptr<IVoiceRecorder> voice_;
  ClipCard* card_;
  ClipDesk desk_;
};

}  // namespace kinalyx
