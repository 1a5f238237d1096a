#include "distribution/disc/DiscPlan.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <set>
#include <string_view>

#include "library/VideoNames.h"
#include "platform/files/Folders.h"
#include "platform/files/TextEncoding.h"

namespace kinalyx {
namespace {

/// Of Joliet's 103 characters, less what a sidecar's and a study's ending and a number take.
constexpr std::size_t kLongestName = 90;

bool IsForbidden(char c) {
  return static_cast<unsigned char>(c) < 0x20 || c == 0x7f ||
         std::string_view("\\/:*?\"<>|").find(c) != std::string_view::npos;
}

/// Names of devices on Windows, which no file may have.
bool IsDevice(std::string_view stem) {
  constexpr std::array<std::string_view, 4> kPlain{"con", "prn", "aux", "nul"};
  const std::string small = FoldCase(stem);
  if (std::ranges::find(kPlain, small) != kPlain.end()) return true;
  return small.size() == 4 && (small.starts_with("com") || small.starts_with("lpt")) && small[3] >= '1' &&
         small[3] <= '9';
}

std::string_view EndingIn(std::string_view name) {
  const std::size_t dot = name.rfind('.');
  constexpr std::size_t kLongest = 8;
  if (dot == std::string_view::npos || dot == 0 || dot + 1 == name.size() || name.size() - dot > kLongest) return {};
  return name.substr(dot);
}

/// The first of `text` that take so many units of UTF-16; no character is cut.
std::string_view FirstUnits(std::string_view text, std::size_t most) {
  std::size_t units = 0;
  std::size_t at = 0;
  while (at < text.size()) {
    const auto lead = static_cast<unsigned char>(text[at]);
    const std::size_t bytes = lead < 0x80 ? 1 : lead < 0xe0 ? 2 : lead < 0xf0 ? 3 : 4;
    units += bytes == 4 ? 2 : 1;
    if (units > most) break;
    at += bytes;
  }
  return text.substr(0, std::min(at, text.size()));
}

/// Keeps the names of one disc apart.
class Names {
 public:
  std::string Take(const std::string& folder, const std::string& name) {
    const std::string_view ending = EndingIn(name);
    const std::string stem = name.substr(0, name.size() - ending.size());
    std::string free = name;
    for (int number = 2; !taken_.insert(FoldCase(folder + "/" + free)).second; ++number)
      free = stem + " (" + std::to_string(number) + ")" + std::string(ending);
    return folder.empty() ? free : folder + "/" + free;
  }

 private:
  std::set<std::string> taken_;
};

}  // namespace

std::string NameForDisc(const std::string& name) {
  std::string clean = AsUtf8(name);
  std::ranges::replace_if(clean, IsForbidden, '_');
  const std::string ending(EndingIn(clean));
  std::string stem(
      FirstUnits(std::string_view(clean).substr(0, clean.size() - ending.size()), kLongestName - ending.size()));
  while (!stem.empty() && (stem.back() == ' ' || stem.back() == '.')) stem.pop_back();
  if (stem.empty() || IsDevice(stem)) stem += '_';
  return stem + ending;
}

std::int64_t DiscPlan::Bytes() const {
  return std::accumulate(Files.begin(), Files.end(), std::int64_t{0},
                         [](std::int64_t sum, const DiscFile& file) { return sum + file.Bytes; });
}

DiscPlan PlanDisc(const std::vector<DiscVideoSource>& videos, const std::vector<DiscSource>& viewer, bool page) {
  DiscPlan plan;
  Names names;
  plan.Folders = {kLessonsOnDisc, kVideosOnDisc};
  for (const std::string& folder : plan.Folders) names.Take("", folder);
  if (page) names.Take("", kMp4OnDisc);
  for (const DiscSource& file : viewer)
    plan.Files.push_back({file.Path, names.Take("", NameForDisc(LastName(file.Path))), file.Bytes});
  if (page && !videos.empty()) plan.Page = names.Take("", kPageOnDisc);
  for (const DiscVideoSource& source : videos) {
    const std::string folder = source.File.lesson ? kLessonsOnDisc : kVideosOnDisc;
    DiscVideo video{.From = source.File.path,
                    .To = names.Take(folder, NameForDisc(source.File.Name())),
                    .Title = VideoName(source.File.path),
                    .Lesson = source.File.lesson,
                    .Mp4 = {}};
    plan.Files.push_back({video.From, video.To, source.Bytes});
    const std::string name = LastName(video.To);
    for (const DiscSource& companion : source.Companions) {
      const bool study = companion.Path.ends_with(".study");
      plan.Files.push_back(
          {companion.Path, folder + "/" + (study ? StudyName(name) : SidecarName(name)), companion.Bytes});
    }
    if (page) {
      const std::string stem = name.substr(0, name.size() - EndingIn(name).size());
      video.Mp4 = source.PlaysItself ? video.To : names.Take(kMp4OnDisc, stem + ".mp4");
      if (video.MakesMp4() && plan.Folders.back() != kMp4OnDisc) plan.Folders.push_back(kMp4OnDisc);
    }
    plan.Videos.push_back(std::move(video));
  }
  return plan;
}

}  // namespace kinalyx
