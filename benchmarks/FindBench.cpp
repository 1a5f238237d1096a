// How fast the library finds things: the search over all of it, and the pictures in a list of videos.

#include <fmt/format.h>

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QWidget>
#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <thread>

#include "Bench.h"
#include "core/Settings.h"
#include "library/LibraryBrowser.h"
#include "library/Sidecar.h"
#include "library/forms/LibraryLists.h"
#include "library/forms/SearchBar.h"
#include "library/forms/VideoRows.h"
#include "support/TestHost.h"
#include "support/TestVideos.h"

namespace kinalyx::bench {
namespace {

namespace fs = std::filesystem;

constexpr int kStudents = 5000;
constexpr int kVideosOfStudent = 4;
constexpr int kListed = 200;

/// What a worker is given is done by a thread, as in the program.
const DriveWatch::Send kSend = DriveWatch::SendWorker;

/// Lets the host and the widgets run for one turn; milliseconds that it took.
double Turn(test::TestHost& host) {
  const double took = MeasureMs([&] {
    host.Advance(10);
    QApplication::processEvents();
  });
  std::this_thread::sleep_for(std::chrono::milliseconds(5));
  return took;
}

/// Students of ten instructors, each with profile, notes and videos, every fourth of which has notes.
void MakeLibrary(const fs::path& root) {
  SlotData noted;
  noted.Notes = "Weight on the left foot at the top, hands too high. Łokieć!";
  const std::string sidecar = (root / "noted.ved").string();
  fs::create_directories(root);
  if (!WriteVideoData(sidecar, noted)) throw std::runtime_error("no sidecar");
  for (int student = 0; student < kStudents; ++student) {
    const fs::path folder =
        root / fmt::format("Instructor {}", student % 10) / fmt::format("Müller {}, Zoë", (student * 7919) % kStudents);
    fs::create_directories(folder);
    std::ofstream(folder / "profile.prf") << "[Profile]\nName=Zoë\nAge=" << student % 80
                                          << "\nWeaknesses=Slice with the driver, too much weight on the right\n"
                                             "Short term Goals=Break 90 before the end of the summer\n";
    std::ofstream(folder / "profile.txt") << "Lesson " << student
                                          << ": grip a little stronger, ball further forward, and keep the head down.\n"
                                             "Next time the wedges, then the bunker. Bring the video of last year.\n";
    for (int video = 0; video < kVideosOfStudent; ++video) {
      const std::string name = fmt::format("({:03}) {} driver.avi", video + 1, video % 2 ? "FO" : "DTL");
      std::ofstream(folder / name);
      if (video == 0) fs::copy_file(sidecar, folder / SidecarPath(name));
    }
  }
}

/// The longest time from a key to what it finds, as what a coach types grows letter by letter.
Figure Search() {
  const fs::path root = fs::path(ScratchFolder()) / "search";
  MakeLibrary(root);
  test::TestHost host;
  ProfileFields fields((root / "fields.ini").string());
  fields.SetupFields();
  const std::string place = root.string();
  QWidget page;
  page.resize(1000, 700);
  SearchBar bar(host, kSend, place, fields, &page);
  page.show();
  auto* box = bar.findChild<QLineEdit*>("LibrarySearch");
  auto* list = page.findChild<QListWidget*>("SearchList");
  const double first = MeasureMs([&] {
    box->setText("z");
    while (list->count() == 0) Turn(host);
  });
  fmt::print("  (first index: {:.0f} ms)\n", first);
  double longest = 0;
  for (const std::string typed : {"zoë müller", "driver", "lokiec", "wedges", "muller 4711 driver", "nobody at all"}) {
    for (std::size_t length = 1; length <= typed.size(); ++length) {
      const QString text = QString::fromUtf8(typed.data(), static_cast<qsizetype>(length));
      longest = std::max(longest, MeasureMs([&] {
                           box->setText(text);
                           QApplication::processEvents();
                         }));
      if (list->count() == 0 && typed == "lokiec") throw std::runtime_error("nothing was found");
    }
  }
  return {longest, "ms"};
}

/// The longest turn of the event loop while a list of videos gets its pictures, from the top to the bottom.
Figure Thumbnails() {
  const fs::path root = fs::path(ScratchFolder()) / "thumbnails";
  fs::create_directories(root);
  const std::string video = MakeTestVideo(test::H264Video(60));
  for (int each = 0; each < kListed; ++each) fs::copy_file(video, root / fmt::format("({:03}) swing.mp4", each));
  test::TestHost host;
  Settings settings(host, (root / "data").string(), "");
  settings.LoadSettings();
  settings.LibraryPath = root.string();
  LastStudentInfo remembered;
  LibraryBrowser browser(host.Drives(), settings, remembered, LibraryBrowser::Kind::Profiles);
  LibraryLists lists(browser, settings, nullptr);
  const std::unique_ptr<QObject> owned[] = {std::unique_ptr<QObject>(lists.InstructorList()),
                                            std::unique_ptr<QObject>(lists.StudentList()),
                                            std::unique_ptr<QObject>(lists.VideoList())};
  NameList& list = *lists.VideoList();
  list.resize(240, 480);
  list.show();
  QApplication::processEvents();  // what a window costs as it opens is not meant
  VideoRows rows(host, kSend, browser, list, GlanceStore(""));
  rows.SetPictures(true);
  browser.CapfolderSetup();
  lists.ShowAll();
  double longest = MeasureMs([&] { rows.Show(); });
  const auto filled = [&](int row) { return list.item(row)->data(NameDelegate::kPictureRole).isValid(); };
  for (int row = 0, turns = 0; row < kListed; ++turns) {
    longest = std::max(longest, Turn(host));
    if (turns > 20000) throw std::runtime_error("the list never fills");
    if (!filled(row)) continue;
    list.scrollToItem(list.item(row), QAbstractItemView::PositionAtTop);
    ++row;
  }
  return {longest, "ms"};
}

const Register kSearch({"search_library", {Target::Of::AtMost, 50, 16}, Search});
const Register kThumbnails({"thumbnails", {Target::Of::AtMost, 16, 8}, Thumbnails});

}  // namespace
}  // namespace kinalyx::bench
