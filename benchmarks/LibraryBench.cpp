#include <dirent.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "Bench.h"
#include "core/Settings.h"
#include "library/LibraryBrowser.h"
#include "library/forms/LibraryLists.h"
#include "support/TestHost.h"

namespace kinalyx::bench {
namespace {

namespace fs = std::filesystem;

constexpr int kStudents = 5000;
constexpr int kVideos = 2000;

/// An instructor with many students, the first of whom has many videos, each with its sidecar.
void MakeLibrary(const fs::path& root) {
  for (int student = 0; student < kStudents; ++student)
    fs::create_directories(root / "Instructor" / fmt::format("Student, Number {}", (student * 7919) % kStudents));
  const fs::path videos = root / "Instructor" / "Student, Number 0";
  for (int video = 0; video < kVideos; ++video) {
    const std::string name = fmt::format("({:03}) FO driver", (video * 997) % kVideos);
    std::ofstream(videos / (name + ".avi"));
    std::ofstream(videos / (name + ".ved"));
  }
}

/// What any listing must do at least: reads the names of one folder.
std::size_t ReadNames(const fs::path& folder) {
  std::size_t letters = 0;
  DIR* open = opendir(folder.c_str());
  while (const dirent* entry = readdir(open)) letters += std::string(entry->d_name).size();
  closedir(open);
  return letters;
}

const Register kListLibrary(
    {"list_library", {Target::Of::Ratio, 10, 3}, [] {
       const fs::path root = fs::path(ScratchFolder()) / "library";
       MakeLibrary(root);
       test::TestHost host;
       Settings settings(host, (fs::path(ScratchFolder()) / "data").string(), "");
       settings.LoadSettings();
       settings.LibraryPath = root.string();
       LastStudentInfo remembered;
       LibraryBrowser browser(host.Drives(), settings, remembered, LibraryBrowser::Kind::Profiles);
       LibraryLists lists(browser, settings, nullptr);
       const std::unique_ptr<QObject> owned[] = {std::unique_ptr<QObject>(lists.InstructorList()),
                                                 std::unique_ptr<QObject>(lists.StudentList()),
                                                 std::unique_ptr<QObject>(lists.VideoList())};
       browser.CapfolderSetup();
       lists.ShowAll();

       std::vector<double> ours;
       std::vector<double> bare;
       for (int round = 0; round < 15; ++round) {
         std::size_t letters = 0;
         bare.push_back(MeasureMs(
             [&] { letters = ReadNames(root / "Instructor") + ReadNames(root / "Instructor" / "Student, Number 0"); }));
         Keep(&letters);
         lists.InstructorList()->setCurrentRow(0);
         ours.push_back(MeasureMs([&] {
           lists.InstructorList()->setCurrentRow(1);
           lists.StudentList()->setCurrentRow(0);
         }));
         if (lists.StudentList()->count() != kStudents || lists.VideoList()->count() != kVideos)
           throw std::runtime_error("the lists are not full");
         remembered = {};
       }
       return Figure{Median(ours), "ms", Median(bare)};
     }});

}  // namespace
}  // namespace kinalyx::bench
