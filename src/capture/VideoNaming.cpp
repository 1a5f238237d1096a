#include "capture/VideoNaming.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <charconv>

#include "core/Settings.h"
#include "library/LibraryTree.h"
#include "library/VideoNames.h"
#include "platform/files/Folders.h"

namespace kinalyx {

namespace {

using std::string_view_literals::operator""sv;

constexpr std::array kViews{"DL"sv, "FO"sv, "Back"sv, "Front"sv, "Side"sv, "Top"sv};
constexpr std::array kShots{"Distance Wedge Day 1"sv, "Distance Wedge Day 3"sv, "Chip Shot Day 1"sv,
                            "Bunker Shot Day 1"sv,    "Bunker Shot Day 3"sv,    "Putting Face On"sv,
                            "Putting Down the Line"sv};
constexpr std::size_t kMostNames = 999;

std::string Join(std::initializer_list<std::string_view> pieces, std::string_view by) {
  std::string text;
  for (const std::string_view piece : pieces) {
    if (piece.empty()) continue;
    if (!text.empty()) text += by;
    text += piece;
  }
  return text;
}

}  // namespace

std::span<const std::string_view> ViewChoices() { return kViews; }
std::span<const std::string_view> ShortGameChoices() { return kShots; }
std::span<const std::string_view> CameraExtensions() { return kViews; }

int NextVideoNumber(const std::vector<std::string>& names) {
  int last = 0;
  const std::size_t count = std::min(names.size(), kMostNames);
  for (std::size_t i = 0; i < count; ++i) {
    const std::string& name = names[i];
    if (name.size() < 5 || name[0] != '(' || name[4] != ')') continue;
    int number = 0;
    std::from_chars(name.data() + 1, name.data() + 4, number);
    last = number;
  }
  return last + 1;
}

std::string NumberPrefix(int number) { return fmt::format("({:03}) ", number); }

VideoNaming::VideoNaming(Settings& settings, std::function<std::string()> date)
    : settings_(settings), date_(std::move(date)) {}

NameMode VideoNaming::Mode() const {
  const std::int32_t mode = settings_.NameMode;
  return mode >= 1 && mode <= 4 ? static_cast<NameMode>(mode) : NameMode::Detailed;
}

void VideoNaming::ChooseMode(NameMode mode) {
  settings_.Set(settings_.NameMode, static_cast<std::int32_t>(mode));
  changed_.clear();
  GetVideoName();
}

void VideoNaming::ChooseExtension(std::string_view extension) {
  settings_.Set(settings_.CamExt, std::string(extension));
  GetVideoName();
}

bool VideoNaming::SetText(std::string_view text) {
  const std::string_view name = WithoutOuterBlanks(text);
  if (!name.empty() && !IsBlank(name) && !IsValidName(name)) return false;
  text_ = IsBlank(name) ? std::string() : std::string(name);
  changed_.clear();
  GetVideoName();
  return true;
}

void VideoNaming::ChooseDetail(int index) {
  detail_ = index;
  changed_.clear();
  GetVideoName();
}

bool VideoNaming::ShortGame() const { return settings_.ShortGame == 1; }

void VideoNaming::SetFolder(std::string_view folder) {
  folder_ = folder;
  GetVideoName();
}

void VideoNaming::SetCameraUse(CameraUse use) {
  use_ = use;
  GetVideoName();
}

std::string VideoNaming::NameToChange() const {
  const std::string shown = Shown();
  const std::size_t end = shown.find(')');
  return end == std::string::npos ? shown : shown.substr(std::min(end + 2, shown.size()));
}

bool VideoNaming::TakeChangedName(std::string_view name) {
  const std::string_view wanted = WithoutOuterBlanks(name);
  if (IsBlank(wanted) || !IsValidName(wanted)) return false;
  changed_ = wanted;
  GetVideoName();
  return true;
}

void VideoNaming::NameUsed() {
  changed_.clear();
  if (Mode() == NameMode::Manual) text_.clear();
  GetVideoName();
}

std::string VideoNaming::Shown() const { return VideoName(paths_[use_ == CameraUse::Second ? 1 : 0]); }

std::string VideoNaming::DetailText() const {
  const auto index = static_cast<std::size_t>(detail_);
  if (ShortGame()) {
    const std::size_t shot = index - kViews.size();
    return std::string(shot < kShots.size() ? kShots[shot] : kShots[0]);
  }
  return std::string(index < kViews.size() ? kViews[index] : kViews[0]);
}

/// The name of camera 1 without its number.
std::string VideoNaming::Joined(int number) const {
  if (!changed_.empty()) return changed_;
  std::string today = date_();
  std::ranges::replace(today, '/', '-');
  switch (Mode()) {
    case NameMode::Detailed: return Join({text_, DetailText(), today}, "- ");
    case NameMode::Automatic: return Join({text_.empty() ? "Video" : text_, ""}, "") + std::to_string(number);
    case NameMode::General: return text_.empty() ? today : text_;
    case NameMode::Manual: return text_;
  }
  return text_;
}

std::string VideoNaming::NameOf(bool second, int number) const {
  std::string name = Joined(number);
  if (name.empty()) return {};
  if (second) {
    const std::string& extension = settings_.CamExt;
    if (Mode() == NameMode::Detailed && changed_.empty() && !ShortGame()) {
      std::string today = date_();
      std::ranges::replace(today, '/', '-');
      name = Join({text_, extension, today}, "- ");
    } else {
      name = Join({name, extension}, " ");
    }
  }
  return NumberPrefix(number) + name;
}

void VideoNaming::GetVideoName() {
  const std::string before[2] = {paths_[0], paths_[1]};
  int number = folder_.empty() ? 1 : NextVideoNumber(ListVideos(folder_));
  const auto taken = [&](const std::string& path) { return FileExists(path); };
  for (;; ++number) {
    for (int camera = 0; camera < 2; ++camera) {
      const std::string name = NameOf(camera == 1, number);
      paths_[camera] = name.empty() || folder_.empty() ? std::string() : JoinPath(folder_, name + ".avi");
    }
    // Both cameras under one name would be one file.
    if (!paths_[0].empty() && paths_[0] == paths_[1]) paths_[1] = JoinPath(folder_, NameOf(false, number) + " 2.avi");
    if (paths_[0].empty() || (!taken(paths_[0]) && !taken(paths_[1]))) break;
  }
  if (events_ && (before[0] != paths_[0] || before[1] != paths_[1])) events_->NameChanged();
}

void VideoNaming::ChangeName() {
  if (events_) events_->NameWanted();
}

}  // namespace kinalyx
