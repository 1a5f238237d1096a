#include "printing/report/ReportMaker.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <ctime>
#include <utility>

#include "library/Study.h"
#include "library/VideoNames.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/host/DriveWatch.h"

namespace kinalyx {
namespace {

constexpr std::int64_t kNanosecondsPerSecond = 1'000'000'000;

/// "25 November 2026", which every reader takes for the same day; in the order of the language.
std::string DayText(std::time_t time) {
  constexpr std::array kMonths{TrLater("January"),   TrLater("February"), TrLater("March"),    TrLater("April"),
                               TrLater("May"),       TrLater("June"),     TrLater("July"),     TrLater("August"),
                               TrLater("September"), TrLater("October"),  TrLater("November"), TrLater("December")};
  std::tm day{};
  localtime_r(&time, &day);
  return Tr("{0} {1} {2}", day.tm_mday, Tr(kMonths[static_cast<std::size_t>(day.tm_mon)]), day.tm_year + 1900);
}

std::vector<StudentVideo> VideosIn(const std::string& folder) {
  std::vector<StudentVideo> videos;
  for (const std::string& file : ListVideos(folder)) {
    const std::string path = JoinPath(folder, file);
    const auto stamp = StampOf(path);
    if (!stamp) continue;
    videos.push_back({path, ShownName(file), DayText(stamp->written / kNanosecondsPerSecond), stamp->written});
  }
  std::ranges::stable_sort(videos, {}, &StudentVideo::written);
  return videos;
}

std::string NameOfKind(const Shape& shape) {
  const std::string_view name = InfOf(shape.Kind).Name;
  return name.empty() ? Tr("Drawing") : Tr(std::string(name));
}

}  // namespace

ReportMaker::ReportMaker(const Parts& parts) : parts_(parts), moments_(parts.services, parts.settings) {}

int ReportMaker::Subject() const {
  if (parts_.stage.HasVideo(parts_.stage.CurrentWindow)) return parts_.stage.CurrentWindow;
  const std::vector<int> shown = parts_.pictures.Shown();
  return shown.empty() ? 0 : shown.front();
}

std::string ReportMaker::Student() const {
  const int slot = Subject();
  return slot == 0 ? "" : LastName(FolderOf(parts_.stage.At(slot).path));
}

std::string ReportMaker::CaptionOf(int slot) const {
  const Slot& at = parts_.stage.At(slot);
  return fmt::format("{}, {:.2f} s", NameOfVideo(at.path), at.MP->TimeOf(at.MP->Position()) / 1000);
}

std::vector<StudentVideo> ReportMaker::Videos() const {
  const int slot = Subject();
  if (slot == 0) return {};
  const std::string folder = FolderOf(parts_.stage.At(slot).path);
  return parts_.services.host.Drives()
      .Ask(folder, [folder] { return VideosIn(folder); })
      .value_or(std::vector<StudentVideo>());
}

std::vector<StudentVideo> ReportMaker::OtherVideos() const {
  std::vector<StudentVideo> videos = Videos();
  const int slot = Subject();
  std::erase_if(videos, [&](const StudentVideo& video) { return video.path == parts_.stage.At(slot).path; });
  return videos;
}

std::vector<VideoMark> ReportMaker::MarksOf(const std::string& path) const {
  return parts_.services.host.Drives()
      .Ask(FolderOf(path),
           [path] {
             SlotData data;
             ReadStudy(StudyPath(path), data);
             return data.Study.Marks;
           })
      .value_or(std::vector<VideoMark>());
}

std::vector<ReportItem> ReportMaker::Offer() const {
  using Kind = ReportItem::Kind;
  const std::vector<int> shown = parts_.pictures.Shown();
  if (shown.empty()) return {};
  std::vector<ReportItem> items;
  if (shown.size() > 1) items.push_back({.kind = Kind::AllWindows, .caption = Tr("All windows as they stand")});
  for (const int slot : shown)
    items.push_back({.kind = Kind::Window,
                     .caption = Tr("Window {}: {}", slot, CaptionOf(slot)),
                     .slot = slot,
                     .wanted = shown.size() == 1});
  if (const std::vector<StudentVideo> others = OtherVideos(); !others.empty())
    items.push_back({.kind = Kind::ThenAndNow, .caption = Tr("Then and now"), .path = others.front().path});
  const auto rows = Measures();
  items.push_back({.kind = Kind::Measures,
                   .caption = rows.empty() ? Tr("Measures (nothing is measured)") : Tr("Measures"),
                   .wanted = !rows.empty()});
  items.push_back({.kind = Kind::Notes, .caption = Tr("Notes")});
  return items;
}

RichText ReportMaker::NotesOnStage() const {
  RichText text;
  const std::vector<int> shown = parts_.pictures.Shown();
  std::vector<std::string> told;
  for (const int slot : shown) {
    const Slot& at = parts_.stage.At(slot);
    if (at.data.Notes.empty() || std::ranges::find(told, at.path) != told.end()) continue;
    told.push_back(at.path);
    std::string words = at.data.Notes;
    std::erase(words, '\r');
    if (!text.runs.empty()) text.runs.push_back({"\n\n"});
    if (shown.size() > 1) text.runs.push_back({NameOfVideo(at.path) + "\n", true});
    text.runs.push_back({std::move(words)});
  }
  return text;
}

std::vector<ReportMeasures::Row> ReportMaker::Measures() const {
  std::vector<ReportMeasures::Row> rows;
  for (const int slot : parts_.pictures.Shown()) {
    const auto shapes = ShapesOf(parts_.tools.List(slot));
    for (const auto& [index, label] : parts_.tools.MeasuresOf(slot)) {
      std::string figure = label.Text;
      std::ranges::replace(figure, '\n', ' ');
      rows.push_back({NameOfVideo(parts_.stage.At(slot).path), NameOfKind(shapes[index]), std::move(figure)});
    }
  }
  return rows;
}

ReportPair ReportMaker::ThenAndNow(const ReportItem& item) {
  const int slot = Subject();
  const Slot& at = parts_.stage.At(slot);
  // Where the present stands on a mark with a name, the other day is seen at the mark of that name. Without any marks
  // it is as far on as the present one.
  const VideoMoment here = VideoMoment::At(at.MP->Position(), at.MP->SplitFields());
  const auto mark = std::ranges::find(at.data.Study.Marks, here, &VideoMark::Moment);
  const auto caption = [](const std::string& path) {
    const auto stamp = StampOf(path);
    return VideoName(LastName(path)) + (stamp ? ", " + DayText(stamp->written / kNanosecondsPerSecond) : "");
  };
  const std::string name = mark == at.data.Study.Marks.end() ? "" : mark->Name;
  const double part = at.MP->VideoLength() > 1 ? 1.0 * at.MP->Position() / (at.MP->VideoLength() - 1) : 0;
  const bool answers = parts_.services.host.Drives().Answers(FolderOf(item.path));
  Surface then = answers ? moments_.PictureAtMark(item.path, name, part) : Surface();
  const std::string words = then.Empty() ? Tr("This video cannot be read") : caption(item.path);
  return {Tr("Then and Now"), {std::move(then), words}, {parts_.pictures.Window(slot), caption(at.path)}};
}

ReportSection ReportMaker::SectionOf(const ReportItem& item, const RichText& notes) {
  switch (item.kind) {
    case ReportItem::Kind::AllWindows: {
      std::string names;
      for (const int slot : parts_.pictures.Shown())
        names += (names.empty() ? "" : " \u00B7 ") + NameOfVideo(parts_.stage.At(slot).path);
      return ReportPicture{StagePictures::WithoutWhite(parts_.pictures.All()), names};
    }
    case ReportItem::Kind::Window: return ReportPicture{parts_.pictures.Window(item.slot), CaptionOf(item.slot)};
    case ReportItem::Kind::Moment: return ReportPicture{moments_.PictureAt(item.path, item.moment), item.caption};
    case ReportItem::Kind::ThenAndNow: return ThenAndNow(item);
    case ReportItem::Kind::Measures: return ReportMeasures{Measures()};
    case ReportItem::Kind::Notes: break;
  }
  return ReportNotes{notes};
}

ReportPrintout ReportMaker::Make(const std::vector<ReportItem>& items, const RichText& notes) {
  std::vector<ReportSection> sections;
  for (const ReportItem& item : items)
    if (item.wanted) sections.push_back(SectionOf(item, notes));
  return {Student(), DayText(std::time(nullptr)), ReadHeading(parts_.services.host, parts_.settings),
          std::move(sections)};
}

}  // namespace kinalyx
