#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace kinalyx {

/// By what a list of videos is sorted, and in which direction.
struct VideoSort {
  enum class By { Name, Date, Length, Size };

  By by = By::Name;
  bool turned = false;  ///< against the direction that one expects: names from A, dates from the latest, lengths and
                        ///< sizes from the largest

  friend bool operator==(const VideoSort&, const VideoSort&) = default;
};
inline constexpr int kVideoSorts = 4;

/// "By Name", "By Date" ...
std::string SortCaption(VideoSort::By by);

/// A new order of rows that are sorted by name, each with a value; 0 for one that is not known, which comes last.
/// Rows of one value stay as they are.
std::vector<std::size_t> OrderBy(const std::vector<double>& values, bool turned);

/// How the user likes the lists of the library, kept in `lists.ini` of the data folder.
class ListChoices {
 public:
  /// Reads what is stored.
  explicit ListChoices(std::string path);

  bool Pictures() const { return pictures_; }
  VideoSort Sort() const { return sort_; }
  /// What is sent to the analysis section is shown there at once.
  bool GoesAlong() const { return goesAlong_; }

  void SetPictures(bool pictures);
  void SetSort(VideoSort sort);
  void SetGoesAlong(bool goes);

 private:
  void Write(const std::string& key, const std::string& value) const;

  std::string path_;
  bool pictures_ = true;
  VideoSort sort_;
  bool goesAlong_ = true;
};

}  // namespace kinalyx
