#include "distribution/web/PlayerPage.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <optional>

#include "distribution/web/PageParts.h"
#include "distribution/web/WebNames.h"
#include "platform/files/TextEncoding.h"
#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

constexpr std::string_view kFolder = "videos/";
constexpr std::string_view kOption = "<option value=\"";
constexpr std::string_view kNote = "<li title=\"";
constexpr std::string_view kStep = "\" data-step=\"";
constexpr std::string_view kKind = "\" data-kind=\"";
constexpr std::string_view kLesson = "lesson";
constexpr std::string_view kStudent = "<p class=\"student\">";
constexpr std::size_t kMostVideos = 2000;
constexpr std::size_t kLongestTitle = 400;
constexpr std::size_t kLongestDate = 10;

/// What stands between two texts, which is then gone from `rest` with both of them; nothing where one is missing.
std::optional<std::string_view> TakeBetween(std::string_view& rest, std::string_view before, std::string_view after) {
  const std::size_t begin = rest.find(before);
  if (begin == std::string_view::npos) return std::nullopt;
  const std::size_t from = begin + before.size();
  const std::size_t end = rest.find(after, from);
  if (end == std::string_view::npos) return std::nullopt;
  const std::string_view between = rest.substr(from, end - from);
  rest.remove_prefix(end + after.size());
  return between;
}

std::string FileOf(std::string_view value) { return DecodePath(UnescapeText(value)); }

/// A text of the page as it is meant, on one line.
std::string AsText(std::string_view text, std::size_t longest) {
  return std::string(CutUtf8(AsUtf8(UnescapeText(Trimmed(text, " \t\r"))), longest));
}

bool IsVideoOfPage(std::string_view file) {
  return file.starts_with(kFolder) && IsPlainName(file.substr(kFolder.size()));
}

/// The list, one line for each video; what an earlier page says is read from these lines.
std::string Options(const std::vector<PageVideo>& videos) {
  std::string text;
  std::string_view group;
  const auto close = [&] {
    if (!group.empty()) text += "</optgroup>\r\n";
  };
  for (const PageVideo& video : videos) {
    if (video.group != group) {
      close();
      group = video.group;
      if (!group.empty()) text += fmt::format("<optgroup label=\"{}\">\r\n", EscapeText(group));
    }
    text += fmt::format("{}{}\"> {} </option>\r\n", kOption, EncodePath(video.file), EscapeText(video.title));
  }
  close();
  return text;
}

/// Dates and steps, which the list has no place for.
std::string Notes(const std::vector<PageVideo>& videos) {
  std::string text;
  for (const PageVideo& video : videos) {
    if (video.date.empty() && video.frameSeconds <= 0 && !video.lesson) continue;
    text +=
        fmt::format("{}{}{}{:.7f}{}{}\">{}</li>\r\n", kNote, EncodePath(video.file), kStep,
                    std::max(0.0, video.frameSeconds), kKind, video.lesson ? kLesson : "video", EscapeText(video.date));
  }
  return text;
}

void ReadNote(std::string_view line, std::vector<PageVideo>& videos) {
  const auto value = TakeBetween(line, kNote, kStep);
  const auto step = value ? TakeBetween(line, "", kKind) : std::nullopt;
  const auto kind = step ? TakeBetween(line, "", "\">") : std::nullopt;
  const auto date = kind ? TakeBetween(line, "", "</li>") : std::nullopt;
  if (!date) return;
  const auto video = std::ranges::find(videos, FileOf(*value), &PageVideo::file);
  if (video == videos.end()) return;
  double seconds = 0;
  const auto [end, error] = std::from_chars(step->data(), step->data() + step->size(), seconds);
  const bool isStep = error == std::errc() && end == step->data() + step->size() && seconds > 0 && seconds < 10;
  video->frameSeconds = isStep ? seconds : 0;
  video->lesson = *kind == kLesson;
  video->date = AsText(*date, kLongestDate);
}

/// A text as it stands between the single quotes of a script.
std::string AsQuoted(std::string_view text) {
  std::string quoted;
  for (const char letter : text) {
    if (letter == '\'' || letter == '\\') quoted += '\\';
    quoted += letter;
  }
  return quoted;
}

/// The script, with what it may have to say.
std::string Script() {
  std::string script(kPageScript);
  const auto say = [&](std::string_view place, const std::string& words) {
    script.replace(script.find(place), place.size(), AsQuoted(words));
  };
  say("@none", Tr("There are no videos here yet."));
  say("@fetch", Tr("Fetch the file"));
  say("@cannot", Tr("This video cannot be played here. "));
  return script;
}

}  // namespace

std::string WritePlayerPage(const PlayerPage& page) {
  const std::string heading = Tr("Video Lessons by {}", EscapeText(page.coach));
  std::string text =
      fmt::format("<!DOCTYPE html>\r\n<html lang=\"{}\">\r\n<head>\r\n<meta charset=\"utf-8\" />\r\n", Tr("en"));
  text += "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\" />\r\n";
  text += "<link rel=\"icon\" href=\"data:,\" />\r\n";  // else every browser asks the server for one
  text += fmt::format("<title>{}</title>\r\n<style>\r\n{}</style>\r\n</head>\r\n", heading, kPageStyle);
  text += "<body>\r\n<header>\r\n";
  if (!page.logo.empty()) text += fmt::format("<img src=\"{}\" alt=\"\" />\r\n", EncodePath(page.logo));
  text += fmt::format("<div>\r\n<p class=\"heading\"><span class=\"style4\">{}</span></p>\r\n", heading);
  if (!page.company.empty()) text += fmt::format("<p class=\"company\">{}</p>\r\n", EscapeText(page.company));
  if (!page.student.empty()) text += fmt::format("{}{}</p>\r\n", kStudent, EscapeText(page.student));
  text += "</div>\r\n</header>\r\n<main>\r\n";
  text += fmt::format(kPageStage, Tr("Left arrow key"), Tr("Picture"), Tr("Key H"), Tr("Half speed"),
                      Tr("Right arrow key"), Tr("Picture"));
  text += fmt::format("<label for=\"list\">{}</label>\r\n<select id=\"list\">\r\n{}</select>\r\n", Tr("Videos"),
                      Options(page.videos));
  text += "<p id=\"words\" role=\"status\"></p>\r\n";
  if (!page.playlist.empty())
    text += fmt::format("<p class=\"playlist\"><a href=\"{}\"><span>{}</span></a></p>\r\n", EncodePath(page.playlist),
                        Tr("Play all of them with Windows Media Player"));
  if (const std::string notes = Notes(page.videos); !notes.empty())
    text += "<ul id=\"notes\" hidden=\"hidden\">\r\n" + notes + "</ul>\r\n";
  text += fmt::format("</main>\r\n<script>\r\n{}</script>\r\n</body>\r\n</html>\r\n", Script());
  return text;
}

PlayerPage ReadPlayerPage(std::string_view text) {
  PlayerPage page;
  std::vector<PageVideo>& videos = page.videos;
  while (!text.empty()) {
    std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    if (line.find(kNote) != std::string_view::npos) {
      ReadNote(line, videos);
    } else if (std::string_view rest = line; const auto student = TakeBetween(rest, kStudent, "</p>")) {
      page.student = AsText(*student, kLongestTitle);
    } else if (const auto value = TakeBetween(line, kOption, "\">"); value && videos.size() < kMostVideos) {
      const auto title = TakeBetween(line, "", "</option>");
      PageVideo video;
      video.file = FileOf(*value);
      if (!title || !IsVideoOfPage(video.file) ||
          std::ranges::find(videos, video.file, &PageVideo::file) != videos.end())
        continue;
      video.title = AsText(*title, kLongestTitle);
      videos.push_back(std::move(video));
    }
  }
  return page;
}

}  // namespace kinalyx
