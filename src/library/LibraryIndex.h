#pragma once

#include <atomic>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "library/Profile.h"
#include "platform/files/Folders.h"

namespace kinalyx {

/// A text of the library, as it stands and as it is searched.
struct IndexedText {
  std::string text;
  std::string findable;

  IndexedText() = default;
  explicit IndexedText(std::string words);
};

struct IndexedVideo {
  std::string file;
  IndexedText name;
  IndexedText notes;
};

/// A folder of the library that holds videos: a student's, or that of "General Folder" or "Quick Launch".
struct IndexedFolder {
  std::string instructor;
  IndexedText student;              ///< empty where the videos lie directly with the instructor
  std::string place;                ///< findable: student and instructor
  std::vector<IndexedText> fields;  ///< "Age: 44"
  IndexedText notes;
  std::vector<IndexedVideo> videos;

  /// As the folder, the profile and the notes were when they were read.
  std::optional<FileStamp> stamps[3];
};

/// All that can be found in a library, as it was read; it does not change any more.
struct LibraryIndex {
  std::vector<IndexedText> instructors;
  std::vector<std::shared_ptr<const IndexedFolder>> folders;
};

/// How far a reading of the index is, and whether it is still wanted; for two threads.
struct IndexProgress {
  std::atomic<int> folders{0};
  std::atomic<bool> stop{false};
};

/// Reads a library. Folders that are as they were in the index before are taken from that. It touches the drive: a
/// worker calls it. Null when it was stopped.
/// @param before  may be null
std::shared_ptr<const LibraryIndex> ReadIndex(const std::string& root, const ProfileFields& fields,
                                              const LibraryIndex* before, IndexProgress& progress);

/// Something that was found, and where it is.
struct SearchHit {
  enum class Kind { Instructor, Student, Field, StudentNotes, Video, VideoNotes };

  Kind kind = Kind::Student;
  std::string instructor;
  std::string student;
  std::string video;   ///< as lists show it; empty for what is about the student
  std::string title;   ///< what is shown in the first line
  std::string detail;  ///< in the second: where it is, or the words around what was found
};

/// What was found, the best first.
struct SearchResult {
  static constexpr std::size_t kMost = 12;  ///< of each group

  std::vector<SearchHit> people;  ///< instructors and students
  std::vector<SearchHit> videos;
  std::vector<SearchHit> texts;  ///< fields and notes
  std::size_t allPeople = 0;
  std::size_t allVideos = 0;
  std::size_t allTexts = 0;

  bool Empty() const { return people.empty() && videos.empty() && texts.empty(); }
};

/// Finds what has all words of the user's; words of its instructor and student count too, as long as one is its own.
SearchResult FindIn(const LibraryIndex& index, std::string_view typed);

}  // namespace kinalyx
