#pragma once

#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string>

namespace kinalyx::fuzz {

/// A folder of this process for readers that take a path; removed when the process ends.
class InputFolder {
 public:
  InputFolder() {
    // In memory where there is such a place: every input is written and flushed several times.
    const std::filesystem::path memory = "/dev/shm";
    folder_ = (std::filesystem::is_directory(memory) ? memory : std::filesystem::temp_directory_path()) /
              ("kinalyx-fuzz-" + std::to_string(getpid()));
    std::filesystem::create_directories(folder_);
  }
  ~InputFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }

  std::string Path(const std::string& name) const { return (folder_ / name).string(); }

  /// Writes the input as a file and gives its path.
  std::string Write(const std::string& name, const std::uint8_t* bytes, std::size_t count) const {
    const std::string path = Path(name);
    if (std::FILE* file = std::fopen(path.c_str(), "wb")) {
      if (count > 0) std::fwrite(bytes, 1, count, file);
      std::fclose(file);
    }
    return path;
  }

 private:
  std::filesystem::path folder_;
};

/// Stops the run as a finding when a property does not hold.
inline void Require(bool holds) {
  if (!holds) __builtin_trap();
}

}  // namespace kinalyx::fuzz
