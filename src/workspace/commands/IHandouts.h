#pragma once

namespace kinalyx {

/// The four sheets of the short-game school.
enum class ShortGame { Putting, DistanceWedge, BunkerShot, ChipShot };

/// What the student takes home, made of what stands on the stage by the rooms above the workspace. Menus and keys call
/// here; a section that stands alone hands out nothing.
class IHandouts {
 public:
  virtual ~IHandouts() = default;

  /// Whether the section may go; asks where something would be given up with it.
  virtual bool MayLeave() { return true; }

  /// "Record Lesson": the recorder comes, or goes.
  virtual void ToggleLesson() {}
  virtual bool LessonShown() const { return false; }
  /// The screen is being recorded: what covers the stage stays away.
  virtual bool LessonUnderWay() const { return false; }

  /// "Save Video with Drawings": the form that makes a clip.
  virtual void ShowClipForm() {}
  /// The current window's picture with its drawings, at the video's own size: into the clipboard, or into a file.
  virtual void CopyPicture() {}
  virtual void SavePicture() {}

  /// "Print Video(s)": the notes that go with a printed page, and its preview.
  virtual void ShowPrintForm() {}
  /// "Report": one file of several pages from what the student has.
  virtual void ShowReportForm() {}

  virtual void PrintSheet(ShortGame /*sheet*/) {}
  virtual void SaveSheetPictures(ShortGame /*sheet*/) {}
  /// "Create Model".
  virtual void SaveModelPicture() {}
  /// "Lefty Print": sheets show the model for the left hand.
  virtual void ToggleLefty() {}
  virtual bool Lefty() const { return false; }

  /// "Email- Take SnapShot": the picture of the stage joins the queue for mail.
  virtual void TakeSnapshot() {}
  /// "Email- Send SnapShots": the form that mails the queue.
  virtual void SendSnapshots() {}
  /// "Download Model Videos".
  virtual void ShowModelsForm() {}
};

}  // namespace kinalyx
