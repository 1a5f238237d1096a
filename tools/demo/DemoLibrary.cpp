#include "DemoLibrary.h"

#include <fmt/format.h>
#include <stdlib.h>

#include <algorithm>
#include <filesystem>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

#include "DemoPlan.h"
#include "VideoMaker.h"
#include "platform/files/Folders.h"

namespace kinalyx::demo {
namespace {

namespace fs = std::filesystem;

constexpr std::int64_t kNeededBytes = 160LL << 20;

/// A folder that goes with all that is in it, unless it is moved to its place.
class ScratchFolder {
 public:
  /// Beside `place`, so that moving it is a matter of its name only.
  explicit ScratchFolder(const fs::path& place) {
    std::string pattern = place.string() + ".part-XXXXXX";
    if (mkdtemp(pattern.data())) path_ = pattern;
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder() {
    std::error_code ignored;
    if (!path_.empty()) fs::remove_all(path_, ignored);
  }

  bool Made() const { return !path_.empty(); }
  std::string Path() const { return path_.string(); }
  /// An empty folder in that place is replaced.
  bool MoveTo(const fs::path& place) {
    std::error_code error;
    fs::permissions(path_,
                    fs::perms::group_read | fs::perms::group_exec | fs::perms::others_read | fs::perms::others_exec,
                    fs::perm_options::add, error);
    fs::rename(path_, place, error);
    if (error) return false;
    path_.clear();
    return true;
  }

 private:
  fs::path path_;
};

struct Shot {
  const DemoVideo* video;
  std::string path;
  std::string title;
};

/// Makes all folders and profiles, and lists the videos to be filmed.
std::string MakeFolders(const std::vector<DemoInstructor>& plan, const std::string& root, std::vector<Shot>& shots) {
  ProfileFields fields("");
  fields.SetupFields();
  const auto film = [&shots](const DemoVideo& video, const std::string& folder, const std::string& owner) {
    shots.push_back({&video, JoinPath(folder, video.name + ".avi"), owner + ", " + video.name});
  };
  for (const DemoInstructor& instructor : plan) {
    if (const auto made = AddInstructor(root, instructor.name); !made) return made.Why();
    const std::string folder = JoinPath(root, instructor.name);
    for (const DemoVideo& video : instructor.videos) film(video, folder, instructor.name);
    for (const DemoStudent& student : instructor.students) {
      const std::string& name = student.profile[kNameField];
      if (const auto made = AddStudent(folder, fields.Captions(), student.profile, "student"); !made) return made.Why();
      const std::string home = JoinPath(folder, name);
      if (const Outcome saved = SaveNotes(home, student.notes); !saved) return saved.Why();
      for (const DemoVideo& video : student.videos) film(video, home, name);
    }
  }
  return {};
}

/// Films on all processors. Gives the first fault, which ends the others too.
std::string FilmAll(const std::vector<Shot>& shots, const std::function<void(const std::string&)>& progress,
                    const std::atomic<bool>& stop) {
  std::atomic<std::size_t> next = 0;
  std::atomic<bool> end = false;
  std::mutex mutex;
  std::size_t finished = 0;
  std::string fault;
  const auto work = [&] {
    for (;;) {
      if (stop) end = true;
      const std::size_t mine = next++;
      if (mine >= shots.size() || end) return;
      const std::string error = MakeVideo(*shots[mine].video, shots[mine].path, stop);
      const std::lock_guard lock(mutex);
      if (error.empty()) {
        progress(fmt::format("{:2} of {}  {}", ++finished, shots.size(), shots[mine].title));
        continue;
      }
      if (fault.empty()) fault = error;
      end = true;
    }
  };
  {
    std::vector<std::jthread> workers;
    const unsigned count = std::clamp(std::thread::hardware_concurrency(), 1u, 8u);
    for (unsigned i = 0; i < count; ++i) workers.emplace_back(work);
  }
  if (stop) return "Stopped.";
  return fault;
}

}  // namespace

std::string MakeDemoLibrary(const std::string& folder, const std::function<void(const std::string&)>& progress,
                            const std::atomic<bool>& stop) {
  std::error_code error;
  fs::path place = fs::absolute(folder, error).lexically_normal();
  if (!place.has_filename()) place = place.parent_path();
  if (fs::exists(place, error) && !(fs::is_directory(place, error) && fs::is_empty(place, error)))
    return "There is something in " + place.string() + " already; it is left as it is.";
  if (!MakeFolder(place.parent_path().string()))
    return "The folder " + place.parent_path().string() + " cannot be made.";
  const std::int64_t room = FreeBytes(place.parent_path().string());
  if (room >= 0 && room < kNeededBytes)
    return fmt::format("The demo library needs {} MB; only {} are free.", kNeededBytes >> 20, room >> 20);

  ScratchFolder scratch(place);
  if (!scratch.Made()) return "The folder " + place.parent_path().string() + " cannot be written.";
  const std::vector<DemoInstructor> plan = PlanDemo();
  std::vector<Shot> shots;
  std::string fault = MakeFolders(plan, scratch.Path(), shots);
  if (fault.empty()) fault = FilmAll(shots, progress, stop);
  if (!fault.empty()) return fault;
  return scratch.MoveTo(place) ? "" : "The library cannot be put in its place, " + place.string() + ".";
}

}  // namespace kinalyx::demo
