#include "capture/import/ImportFiles.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cctype>

#include "platform/files/FileCopy.h"
#include "platform/files/Tr.h"
#include "platform/files/WriterWatch.h"

namespace kinalyx {
namespace {

constexpr std::array<std::string_view, 17> kEndings = {"mov", "avi", ".qt", "mpg", "peg", "wmv", "ogg", "asf", "m2v",
                                                       "m1v", ".ts", "mts", "2ts", "mp4", "3gp", "flv", "vob"};
constexpr int kNumbers = 1000;

}  // namespace

bool IsImportable(std::string_view name) {
  if (name.size() < 3 || name.starts_with('.')) return false;
  std::string last(name.substr(name.size() - 3));
  for (char& letter : last) letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
  return std::ranges::find(kEndings, last) != kEndings.end();
}

std::vector<ImportFile> FilesToImport(const std::string& folder, bool writers) {
  std::vector<ImportFile> files;
  for (const std::string& name : ListFiles(folder, &IsImportable)) {
    const std::string path = JoinPath(folder, name);
    if (const auto stamp = StampOf(path)) files.push_back({path, *stamp, writers && IsOpenForWriting(path)});
  }
  return files;
}

std::string ConvertedPath(const std::string& source) {
  const std::string folder = JoinPath(FolderOf(source), kConvertedFolder);
  const std::string name = LastName(source);
  std::string path = JoinPath(folder, name);
  for (int number = 0; EntryExists(path); ++number) {
    if (number == kNumbers) return {};
    path = JoinPath(folder, fmt::format("({:03}){}", number, name));
  }
  return path;
}

Result<std::string> MoveToConverted(const std::string& source) {
  for (;;) {
    const std::string target = ConvertedPath(source);
    if (target.empty()) return Outcome::Failed(Tr("there are a thousand files of that name already"));
    CopyJob move(CopyJob::Kind::Move, {{{source, target}}});
    const CopyJob::State state = RunToEnd(move);
    // What stays in the old place after a copy is a second original, not a loss.
    if (state == CopyJob::State::Done) return target;
    if (!move.NameTaken()) return Outcome::Failed(move.Error());
  }
}

}  // namespace kinalyx
