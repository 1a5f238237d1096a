#include "library/LibraryBrowser.h"

#include <algorithm>
#include <utility>

#include "library/LibraryReading.h"
#include "library/VideoNames.h"
#include "platform/files/Folders.h"
#include "platform/files/TextEncoding.h"

namespace kinalyx {

namespace {

int RowOf(const std::vector<std::string>& names, std::string_view name) {
  const auto found = std::ranges::find(names, name);
  return found == names.end() ? -1 : static_cast<int>(found - names.begin());
}

std::string At(const std::vector<std::string>& names, int row) {
  return row < 0 ? std::string() : names[static_cast<std::size_t>(row)];
}

/// Sorts files, which come sorted by name, as far as the folder tells.
void SortFiles(std::vector<std::string>& files, const std::string& folder, VideoSort sort) {
  if (sort.by == VideoSort::By::Name && sort.turned) std::ranges::reverse(files);
  if (sort.by != VideoSort::By::Date && sort.by != VideoSort::By::Size) return;
  std::vector<double> values;
  for (const std::string& file : files) {
    const FileStamp stamp = StampOf(JoinPath(folder, file)).value_or(FileStamp());
    values.push_back(static_cast<double>(sort.by == VideoSort::By::Date ? stamp.written : stamp.bytes));
  }
  std::vector<std::string> sorted;
  for (const std::size_t row : OrderBy(values, sort.turned)) sorted.push_back(std::move(files[row]));
  files = std::move(sorted);
}

int Checked(const std::vector<std::string>& names, int row) {
  return row >= 0 && row < static_cast<int>(names.size()) ? row : -1;
}

}  // namespace

LibraryBrowser::LibraryBrowser(DriveWatch& drives, const Settings& settings, LastStudentInfo& remembered, Kind kind)
    : LibraryBrowser(drives, LibraryTree(settings), remembered, kind) {}

LibraryBrowser::LibraryBrowser(DriveWatch& drives, const LibraryTree& tree, LastStudentInfo& remembered, Kind kind)
    : drives_(drives), tree_(tree), LastStudent_(remembered), kind_(kind) {}

/// Names from the library's folders, none while their drive does not answer.
std::vector<std::string> LibraryBrowser::Read(Reading reading) {
  auto names = AskLibrary(drives_, tree_, std::move(reading));
  silent_ = !names;
  return std::move(names).value_or(std::vector<std::string>());
}

void LibraryBrowser::ReadInstructors() {
  instructors_ = Read(&LibraryTree::Instructors);
  if (silent_) instructors_ = {std::string(kGeneralFolder)};
}

void LibraryBrowser::CapfolderSetup(bool keepInstructor) {
  const std::string wanted = keepInstructor && instructor_ >= 0 ? Instructor() : LastStudent_[0];
  ReadInstructors();
  // A remembered instructor whose folder has gone gives way to the library itself.
  ChooseInstructor(std::max(0, RowOf(instructors_, wanted)));
}

void LibraryBrowser::Return(bool keepInstructor) {
  const std::string folder = Folder();
  const std::string video = Video();
  CapfolderSetup(keepInstructor);
  if (Folder() == folder) SelectVideo(video);
}

void LibraryBrowser::Refresh() {
  const std::string instructor = Instructor();
  const std::string student = Student();
  const std::string video = Video();
  ReadInstructors();
  instructor_ = std::max(0, RowOf(instructors_, instructor));
  FillStudents();
  student_ = RowOf(students_, student);
  ReadVideos();
  if (const int row = RowOf(videos_, video); row >= 0) video_ = row;
  Remember();
}

void LibraryBrowser::TryAgain() { CapfolderSetup(instructor_ > 0); }

void LibraryBrowser::ChooseInstructor(int row) {
  instructor_ = Checked(instructors_, row);
  FillStudents();
  // In a silent library the entry stands alone, and nobody has chosen it.
  if (IsGeneralFolder() && !silent_) {
    LastStudent_[0].clear();
    LastStudent_[1].clear();
  }
  ChooseStudent(LastStudent_[1].empty() ? -1 : RowOf(students_, LastStudent_[1]));
}

void LibraryBrowser::ChooseStudent(int row) {
  student_ = Checked(students_, row);
  ReadVideos();
  Remember();
}

void LibraryBrowser::ChooseVideo(int row) { video_ = Checked(videos_, row); }

bool LibraryBrowser::SelectInstructor(std::string_view name) {
  const int row = RowOf(instructors_, name);
  if (row >= 0) ChooseInstructor(row);
  return row >= 0;
}

bool LibraryBrowser::SelectStudent(std::string_view name) {
  const int row = RowOf(students_, name);
  if (row >= 0) ChooseStudent(row);
  return row >= 0;
}

bool LibraryBrowser::SelectVideo(std::string_view name) {
  const int row = RowOf(videos_, name);
  if (row >= 0) ChooseVideo(row);
  return row >= 0;
}

void LibraryBrowser::SortVideos(VideoSort sort) {
  sort_ = sort;
  const std::string video = Video();
  ReadVideos();
  if (const int row = RowOf(videos_, video); row >= 0) video_ = row;
}

bool LibraryBrowser::Arrange(const std::vector<std::size_t>& rows) {
  if (rows.size() != files_.size() || std::ranges::is_sorted(rows)) return false;
  const std::string video = Video();
  std::vector<std::string> files;
  std::vector<std::string> videos;
  for (const std::size_t row : rows) {
    files.push_back(files_[row]);
    videos.push_back(videos_[row]);
  }
  files_ = std::move(files);
  videos_ = std::move(videos);
  video_ = RowOf(videos_, video);
  return true;
}

std::vector<std::string> LibraryBrowser::VideoPaths() const {
  std::vector<std::string> paths;
  const std::string folder = Folder();
  for (const std::string& file : files_) paths.push_back(JoinPath(folder, file));
  return paths;
}

bool LibraryBrowser::IsQuickLaunch() const { return Instructor() == kQuickLaunch; }

std::string LibraryBrowser::Instructor() const { return At(instructors_, instructor_); }
std::string LibraryBrowser::Student() const { return At(students_, student_); }
std::string LibraryBrowser::Video() const { return At(videos_, video_); }

std::string LibraryBrowser::Folder() const { return tree_.StudentFolder(Instructor(), Student()); }

std::string LibraryBrowser::VideoPath() const { return VideoPathAt(video_); }

std::string LibraryBrowser::VideoPathAt(int row) const {
  row = Checked(files_, row);
  return row < 0 ? std::string() : JoinPath(Folder(), files_[static_cast<std::size_t>(row)]);
}

void LibraryBrowser::FillStudents() {
  student_ = -1;
  students_.clear();
  if (instructor_ > 0)
    students_ = Read([instructor = Instructor()](const LibraryTree& tree) { return tree.Students(instructor); });
}

void LibraryBrowser::ReadVideos() {
  files_.clear();
  if (HasStudent() || IsGeneralFolder() || IsQuickLaunch()) {
    files_ = Read([instructor = Instructor(), student = Student(), sort = sort_](const LibraryTree& tree) {
      std::vector<std::string> files = tree.VideoFiles(instructor, student);
      SortFiles(files, tree.StudentFolder(instructor, student), sort);
      return files;
    });
  }
  videos_.clear();
  videos_.reserve(files_.size());
  for (const std::string& file : files_) videos_.push_back(ShownName(file));
  video_ = videos_.empty() ? -1 : 0;
}

void LibraryBrowser::Remember() {
  if (!HasStudent()) return;
  const std::string student = Student();
  if (student == kProfessionals || (kind_ != Kind::Profiles && student == kModelSwings)) return;
  LastStudent_ = {Instructor(), student, Folder()};
}

namespace {

struct ShortGame {
  std::string_view word;
  std::vector<std::string_view> files;
};

/// The family that a video's name names, if any.
const ShortGame* ShortGameOf(std::string_view videoName) {
  static const ShortGame kFamilies[] = {
      {"distance", {"Distance Wedge Day 1.avi", "Distance Wedge Day 3.avi"}},
      {"chip", {"Chip Shot Day 1.avi"}},
      {"bunker", {"Bunker Shot Day 1.avi", "Bunker Shot Day 3.avi"}},
      {"putting", {"Putting Face On.avi", "Putting Down The Line.avi"}},
  };
  const auto family = std::ranges::find_if(kFamilies, [name = FoldCase(videoName)](const ShortGame& one) {
    return name.find(one.word) != std::string::npos;
  });
  return family == std::end(kFamilies) ? nullptr : family;
}

}  // namespace

bool IsShortGameName(std::string_view videoName) { return ShortGameOf(videoName) != nullptr; }

std::vector<std::string> ShortGameFamily(const std::string& folder, std::string_view videoName) {
  const ShortGame* family = ShortGameOf(videoName);
  if (!family) return {};
  const std::vector<std::string> present = ListFiles(folder, ".avi");
  std::vector<std::string> paths;
  for (const std::string_view file : family->files) {
    const auto found =
        std::ranges::find(present, FoldCase(file), [](const std::string& name) { return FoldCase(name); });
    if (found != present.end()) paths.push_back(JoinPath(folder, *found));
  }
  return paths;
}

}  // namespace kinalyx
