#include "library/ListChoices.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

#include "platform/files/IniFile.h"
#include "platform/files/Tr.h"

namespace kinalyx {

namespace {

constexpr const char* kSection = "Videos";
constexpr const char* kSorts[kVideoSorts] = {"Name", "Date", "Length", "Size"};

std::string Bool(bool value) { return value ? "True" : "False"; }

}  // namespace

std::string SortCaption(VideoSort::By by) {
  constexpr const char* kCaptions[kVideoSorts] = {TrLater("By Name"), TrLater("By Date"), TrLater("By Length"),
                                                  TrLater("By Size")};
  return Tr(kCaptions[static_cast<int>(by)]);
}

std::vector<std::size_t> OrderBy(const std::vector<double>& values, bool turned) {
  std::vector<std::size_t> rows(values.size());
  std::iota(rows.begin(), rows.end(), std::size_t{0});
  std::ranges::stable_sort(rows, [&](std::size_t a, std::size_t b) {
    if ((values[a] == 0) != (values[b] == 0)) return values[b] == 0;
    return turned ? values[a] < values[b] : values[a] > values[b];
  });
  return rows;
}

ListChoices::ListChoices(std::string path) : path_(std::move(path)) {
  const ProfileReader reader(path_);
  const auto value = [&](const char* key) { return reader.Value(kSection, key).value_or(""); };
  pictures_ = value("Pictures") != "False";
  goesAlong_ = value("GoToAnalysis") != "False";
  const auto found = std::ranges::find(kSorts, value("SortBy"));
  if (found != std::end(kSorts)) sort_.by = static_cast<VideoSort::By>(found - kSorts);
  sort_.turned = value("Turned") == "True";
}

void ListChoices::SetPictures(bool pictures) {
  pictures_ = pictures;
  Write("Pictures", Bool(pictures));
}

void ListChoices::SetSort(VideoSort sort) {
  sort_ = sort;
  Write("SortBy", kSorts[static_cast<int>(sort.by)]);
  Write("Turned", Bool(sort.turned));
}

void ListChoices::SetGoesAlong(bool goes) {
  goesAlong_ = goes;
  Write("GoToAnalysis", Bool(goes));
}

/// A choice that the disk refuses holds for this run.
void ListChoices::Write(const std::string& key, const std::string& value) const {
  (void)WritePrivateProfileString(kSection, key, value, path_);
}

}  // namespace kinalyx
