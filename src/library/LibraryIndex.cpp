#include "library/LibraryIndex.h"

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <utility>

#include "library/LibraryTree.h"
#include "library/Sidecar.h"
#include "library/VideoNames.h"
#include "platform/files/TextSearch.h"
#include "platform/files/Tr.h"

namespace kinalyx {

IndexedText::IndexedText(std::string words) : text(std::move(words)), findable(Findable(text)) {}

// ---------------------------------------------------------------- reading

namespace {

using Folder = std::shared_ptr<const IndexedFolder>;

/// Notes and fields are read as they stand: an index mends and makes no files.
void ReadPerson(IndexedFolder& folder, const std::string& path, const ProfileFields& fields) {
  const FieldTexts values = ReadFields(path, fields);
  for (int field = 1; field < kProfileFields; ++field) {
    const std::string& value = values[static_cast<std::size_t>(field)];
    if (field != kVideosOnFileField && !IsBlank(value))
      folder.fields.emplace_back(ShownCaption(field, fields.Caption(field)) + ": " + value);
  }
  folder.notes = IndexedText(ReadNotes(path));
}

void ReadVideos(IndexedFolder& folder, const std::string& path) {
  const std::vector<std::string> sidecars = ListFiles(path, ".ved");
  for (const std::string& file : ListVideos(path)) {
    IndexedVideo video{file, IndexedText(ShownName(file)), {}};
    const auto isOwn = [name = SidecarName(file)](const std::string& sidecar) { return SameName(sidecar, name); };
    if (const auto own = std::ranges::find_if(sidecars, isOwn); own != sidecars.end())
      video.notes = IndexedText(ReadSidecarNotes(JoinPath(path, *own)));
    folder.videos.push_back(std::move(video));
  }
}

/// One reading of a library.
class Reading {
 public:
  Reading(const std::string& root, const ProfileFields& fields, const LibraryIndex* before, IndexProgress& progress)
      : tree_(root), fields_(fields), progress_(progress) {
    if (!before) return;
    for (const Folder& folder : before->folders) before_[{folder->instructor, folder->student.text}] = &folder;
  }

  void Take(const std::string& instructor, const std::string& student) {
    const std::string path = tree_.StudentFolder(instructor, student);
    const std::array stamps{StampOf(path), student.empty() ? std::nullopt : StampOf(ProfilePath(path)),
                            student.empty() ? std::nullopt : StampOf(NotesPath(path))};
    ++progress_.folders;
    const auto known = before_.find({instructor, student});
    if (known != before_.end() && std::ranges::equal((*known->second)->stamps, stamps)) {
      index_->folders.push_back(*known->second);
      return;
    }
    auto folder = std::make_shared<IndexedFolder>();
    folder->instructor = instructor;
    folder->student = IndexedText(student);
    folder->place = folder->student.findable + " " + Findable(ShownInstructor(instructor));
    std::ranges::copy(stamps, folder->stamps);
    if (!student.empty()) ReadPerson(*folder, path, fields_);
    ReadVideos(*folder, path);
    index_->folders.push_back(std::move(folder));
  }

  std::shared_ptr<const LibraryIndex> Run() {
    for (const std::string& instructor : tree_.Instructors()) {
      index_->instructors.emplace_back(instructor);
      if (instructor == kGeneralFolder || instructor == kQuickLaunch) Take(instructor, {});
      for (const std::string& student : tree_.Students(instructor)) {
        if (progress_.stop) return nullptr;
        Take(instructor, student);
      }
    }
    return index_;
  }

 private:
  LibraryTree tree_;
  const ProfileFields& fields_;
  IndexProgress& progress_;
  std::map<std::pair<std::string, std::string>, const Folder*> before_;
  std::shared_ptr<LibraryIndex> index_ = std::make_shared<LibraryIndex>();
};

}  // namespace

std::shared_ptr<const LibraryIndex> ReadIndex(const std::string& root, const ProfileFields& fields,
                                              const LibraryIndex* before, IndexProgress& progress) {
  return Reading(root, fields, before, progress).Run();
}

// ---------------------------------------------------------------- finding

namespace {

using Words = std::vector<std::string>;

constexpr int kAround = 40;

/// How well a text fits: not at all, somewhere, or from the beginning of a word.
enum class Fit { None, Within, Beginning };

bool BeginsWord(std::string_view text, std::size_t at) {
  if (at == 0) return true;
  const char before = text[at - 1];
  return before == ' ' || before == '(' || before == '-' || before == '_' || before == ',' || before == '.';
}

/// Each word must be in the text or among the others that are known to be around it, and one in the text.
/// @param around  for each word, whether it is around
Fit FitOf(std::string_view text, const Words& words, const std::vector<bool>& around) {
  Fit fit = Fit::None;
  for (std::size_t each = 0; each < words.size(); ++each) {
    const std::size_t at = text.find(words[each]);
    if (at == std::string_view::npos) {
      if (!around[each]) return Fit::None;
    } else if (BeginsWord(text, at)) {
      fit = Fit::Beginning;
    } else {
      fit = std::max(fit, Fit::Within);
    }
  }
  return fit;
}

/// The best of what was found of one kind.
class Group {
 public:
  /// @param hit  makes it; called only for what is kept
  template <typename Make>
  void Add(Fit fit, Make hit) {
    if (fit == Fit::None) return;
    ++all_;
    auto& place = fit == Fit::Beginning ? first_ : second_;
    if (place.size() < SearchResult::kMost) place.push_back(hit);
  }
  std::size_t Give(std::vector<SearchHit>& hits) const {
    for (const auto* place : {&first_, &second_})
      for (const auto& make : *place)
        if (hits.size() < SearchResult::kMost) hits.push_back(make());
    return all_;
  }

 private:
  std::size_t all_ = 0;
  std::vector<std::function<SearchHit()>> first_;
  std::vector<std::function<SearchHit()>> second_;
};

std::string PlaceOf(const IndexedFolder& folder) {
  const std::string instructor = ShownInstructor(folder.instructor);
  return folder.student.text.empty() ? instructor : folder.student.text + "  \u00B7  " + instructor;
}

/// The first of the words that is in a text.
std::string WordIn(const IndexedText& text, const Words& words) {
  const auto isThere = [&](const std::string& word) { return text.findable.find(word) != std::string::npos; };
  const auto found = std::ranges::find_if(words, isThere);
  return found == words.end() ? std::string() : *found;
}

void FindInFolder(const IndexedFolder& folder, const Words& words, Group& people, Group& videos, Group& texts) {
  using Kind = SearchHit::Kind;
  std::vector<bool> around(words.size());
  for (std::size_t each = 0; each < words.size(); ++each)
    around[each] = folder.place.find(words[each]) != std::string::npos;
  const auto textHit = [&](Kind kind, const IndexedText& text, const std::string& video) {
    texts.Add(FitOf(text.findable, words, around), [&folder, &words, &text, kind, video] {
      const std::string around = TextAround(text.text, WordIn(text, words), kAround).text;
      const std::string title = video.empty() ? PlaceOf(folder) : video + "  \u00B7  " + folder.student.text;
      return SearchHit{kind, folder.instructor, folder.student.text, video, title, around};
    });
  };
  if (!folder.student.text.empty()) {
    people.Add(FitOf(folder.student.findable, words, around), [&folder] {
      return SearchHit{Kind::Student,       folder.instructor, folder.student.text, {},
                       folder.student.text, folder.instructor};
    });
  }
  for (const IndexedText& field : folder.fields) textHit(Kind::Field, field, {});
  textHit(Kind::StudentNotes, folder.notes, {});
  for (const IndexedVideo& video : folder.videos) {
    videos.Add(FitOf(video.name.findable, words, around), [&folder, &video] {
      return SearchHit{Kind::Video,     folder.instructor, folder.student.text,
                       video.name.text, video.name.text,   PlaceOf(folder)};
    });
    if (!video.notes.text.empty()) textHit(Kind::VideoNotes, video.notes, video.name.text);
  }
}

}  // namespace

SearchResult FindIn(const LibraryIndex& index, std::string_view typed) {
  const Words words = SearchWords(typed);
  SearchResult result;
  if (words.empty()) return result;
  Group people;
  Group videos;
  Group texts;
  const std::vector<bool> nothing(words.size());
  for (const IndexedText& instructor : index.instructors) {
    people.Add(FitOf(instructor.findable, words, nothing), [&instructor] {
      return SearchHit{SearchHit::Kind::Instructor, instructor.text, {}, {}, ShownInstructor(instructor.text),
                       Tr("Instructor or database")};
    });
  }
  for (const auto& folder : index.folders) FindInFolder(*folder, words, people, videos, texts);
  result.allPeople = people.Give(result.people);
  result.allVideos = videos.Give(result.videos);
  result.allTexts = texts.Give(result.texts);
  return result;
}

}  // namespace kinalyx
