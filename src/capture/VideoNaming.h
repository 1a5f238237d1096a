#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "capture/CaptureState.h"
#include "capture/IVideoNaming.h"

namespace kinalyx {

class Settings;

/// The choice buttons of detailed names, `LineChoicebtn`: six views, then seven shots of the short game.
std::span<const std::string_view> ViewChoices();
std::span<const std::string_view> ShortGameChoices();

/// The extensions for camera 2, `Cam2Ext` 0 to 5; any other text is "Other".
std::span<const std::string_view> CameraExtensions();

/// The number of the next video: one more than the "(NNN) " of the last of these names that has one, in their
/// order; names past the 999th are not looked at.
int NextVideoNumber(const std::vector<std::string>& names);
/// "(007) ".
std::string NumberPrefix(int number);

/// What is told of names.
class INamingEvents {
 public:
  virtual ~INamingEvents() = default;
  /// The next name is another one, or there is none.
  virtual void NameChanged() = 0;
  /// The user is asked to type it.
  virtual void NameWanted() = 0;
};

/// Works out under which name the next video is kept: a number that the folder gives, then what the naming that is
/// chosen joins. Names of one student are numbered through.
class VideoNaming final : public IVideoNaming {
 public:
  /// All outlives this.
  /// @param date  today's, with slashes, as ChangeDateFormat gives it
  VideoNaming(Settings& settings, std::function<std::string()> date);

  /// Null for nobody.
  void SetEvents(INamingEvents* events) { events_ = events; }

  // --- choices of the user; each works the names out anew

  void ChooseMode(NameMode mode);
  NameMode Mode() const;
  /// Extension of camera 2's names.
  void ChooseExtension(std::string_view extension);
  /// The text box `VidNametxt`. False, with nothing changed, for a text that no file can be named after.
  bool SetText(std::string_view text);
  const std::string& Text() const { return text_; }
  /// A button `LineChoicebtn`: 0 to 5, with short-game naming 6 to 12.
  void ChooseDetail(int index);
  int Detail() const { return detail_; }
  bool ShortGame() const;
  /// Where videos go.
  void SetFolder(std::string_view folder);
  const std::string& Folder() const { return folder_; }
  void SetCameraUse(CameraUse use);

  /// The text that `ChangeNamebtn` puts into its box: the name as it is, less its number.
  std::string NameToChange() const;
  /// The next video, and only that one, is called so. False for a text that no file can be named after.
  bool TakeChangedName(std::string_view name);
  /// A video has been kept under the name: what was typed for it alone is used up.
  void NameUsed();

  /// `VidNameLbl`: the name that the next video gets, without ending; of the second camera where it works alone.
  std::string Shown() const;

  // --- IVideoNaming
  void GetVideoName() override;
  const std::string& CapturedVideoPath() const override { return paths_[0]; }
  const std::string& CapturedVideoPath2() const override { return paths_[1]; }
  void ChangeName() override;

 private:
  std::string NameOf(bool second, int number) const;
  std::string DetailText() const;
  std::string Joined(int number) const;

  Settings& settings_;
  std::function<std::string()> date_;
  INamingEvents* events_ = nullptr;
  std::string folder_;
  std::string text_;
  std::string changed_;  ///< typed for the next video alone
  int detail_ = 0;
  CameraUse use_ = CameraUse::First;
  std::string paths_[2];
};

}  // namespace kinalyx
