#include "distribution/web/SendPlan.h"

#include <fmt/format.h>

#include <algorithm>
#include <set>

#include "core/Heading.h"
#include "distribution/web/WebNames.h"
#include "library/VideoNames.h"
#include "platform/files/TextEncoding.h"
#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

constexpr const char* kNoNames =
    TrLater("You must fill in your name and Company name in Program Setup to use this feature.");
constexpr const char* kNoSpace =
    TrLater("Enter the web address and the FTP address of your web space in Program Setup first.");
constexpr std::string_view kFolder = "videos/";

bool IsBlankText(std::string_view text) { return Trimmed(text, " ").empty(); }

std::string FileOf(const SendItem& item) { return std::string(kFolder) + item.name + ".wmv"; }

/// A name that nobody has yet, made of this one; from then on it is taken.
std::string FreeName(const std::string& name, std::set<std::string>& taken) {
  std::string free = name;
  for (int number = 2; !taken.insert(FoldCase(free)).second; ++number) free = fmt::format("{}-{}", name, number);
  return free;
}

/// A server's root as it stands in front of a path: with a way to it, without slashes at its end.
std::string RootOf(std::string_view address) {
  address = Trimmed(address, " ");
  while (address.ends_with('/')) address.remove_suffix(1);
  return (address.find("://") == std::string_view::npos ? "http://" : "") + std::string(address);
}

/// The path of the web space on its server; empty where it is the whole of it.
std::string PathOf(const std::string& root) {
  const std::size_t host = root.find("://") + 3;
  const std::size_t slash = root.find('/', host);
  return slash == std::string::npos ? "" : DecodePath(std::string_view(root).substr(slash));
}

bool IsReplaced(const SendPlan& plan, std::string_view file) {
  return std::ranges::any_of(plan.items,
                             [&](const SendItem& item) { return FoldCase(FileOf(item)) == FoldCase(file); });
}

}  // namespace

Result<SendPlan> PlanSend(const SendOrder& order) {
  if (IsBlankText(order.coach) || IsBlankText(order.company) || order.company == kNoCompany)
    return Outcome(Fault::Refused, Tr(kNoNames));
  SendPlan plan{.company = CleanWebName(order.company), .student = CleanWebName(order.student), .items = {}};
  if (plan.company.empty())
    return Outcome(Fault::Refused, Tr("There was a problem creating the company name for the web page."));
  if (plan.student.empty())
    return Outcome(Fault::Refused, Tr("There was a problem creating the {} name for the web page.", order.noun));
  if (!order.mailMissing.empty()) return Outcome(Fault::Refused, Tr(kMailFault) + "\n\n" + order.mailMissing);
  const bool web = order.mode == SendOrder::Mode::Web;
  if (web && (order.space.address.host.empty() || IsBlankText(order.webAddress)))
    return Outcome(Fault::Refused, Tr(kNoSpace));
  std::set<std::string> taken;
  for (const FileToSend& file : order.files) {
    const std::string shown = VideoName(file.Name());
    std::string name = CleanWebName(shown);
    if (name.empty()) name = file.lesson ? "Lesson" : "Video";
    plan.items.push_back({.file = file, .name = FreeName(name, taken), .title = shown});
  }
  return plan;
}

OldContent ReadOldContent(std::string_view page, std::string_view playlist) {
  PlayerPage known = ReadPlayerPage(page);
  OldContent old{.student = known.student, .videos = std::move(known.videos), .playlist = ReadPlaylist(playlist)};
  for (const PlaylistEntry& entry : old.playlist) {
    const std::string file = std::string(kFolder) + entry.name;
    if (std::ranges::find(old.videos, file, &PageVideo::file) != old.videos.end()) continue;
    PageVideo video;
    video.file = file;
    video.title = VideoName(entry.name);
    old.videos.push_back(std::move(video));
  }
  return old;
}

bool IsOfAnother(const OldContent& old, const SendOrder& order) {
  const std::string_view student = Trimmed(order.student, " ");
  return !old.student.empty() && old.student != student;
}

void AvoidOldNames(SendPlan& plan, const OldContent& old) {
  std::set<std::string> taken;
  for (const PageVideo& video : old.videos) taken.insert(FoldCase(VideoName(video.file.substr(kFolder.size()))));
  std::set<const PageVideo*> replaced;
  for (SendItem& item : plan.items) {
    const auto same = std::ranges::find_if(old.videos, [&](const PageVideo& video) {
      return video.title == item.title && video.lesson == item.file.lesson && !replaced.contains(&video);
    });
    if (same == old.videos.end()) {
      item.name = FreeName(item.name, taken);
    } else {
      replaced.insert(&*same);
      item.name = VideoName(same->file.substr(kFolder.size()));
    }
  }
}

std::string WebLink(const std::string& webAddress, const std::string& path) {
  return RootOf(webAddress) + "/" + EncodePath(path);
}

std::string PageText(const SendOrder& order, const SendPlan& plan, const OldContent& old,
                     std::span<const double> frameSeconds, const std::string& logo) {
  PlayerPage page;
  page.coach = order.coach;
  page.company = order.company;
  page.student = Trimmed(order.student, " ");
  page.logo = logo;
  page.playlist = PathOf(RootOf(order.webAddress)) + "/" + plan.Videos() + "/playlist.wvx";
  for (std::size_t i = 0; i < plan.items.size(); ++i) {
    const SendItem& item = plan.items[i];
    page.videos.push_back({.file = FileOf(item),
                           .title = item.title,
                           .date = order.today,
                           .frameSeconds = i < frameSeconds.size() ? frameSeconds[i] : 0,
                           .lesson = item.file.lesson,
                           .group = {}});
  }
  for (const PageVideo& video : old.videos)
    if (!IsReplaced(plan, video.file)) page.videos.push_back(video);
  return WritePlayerPage(page);
}

std::string PlaylistText(const SendOrder& order, const SendPlan& plan, const OldContent& old) {
  std::vector<std::string> addresses;
  for (const SendItem& item : plan.items)
    addresses.push_back(WebLink(order.webAddress, plan.Folder() + "/" + FileOf(item)));
  for (const PlaylistEntry& entry : old.playlist)
    if (!IsReplaced(plan, std::string(kFolder) + entry.name)) addresses.push_back(entry.address);
  return WritePlaylist(addresses);
}

std::string LinkMail(const SendOrder& order, const SendPlan& plan) {
  return Tr("Click the link below to view your video lesson.") + "\r\n" +
         WebLink(order.webAddress, plan.Folder() + "/index.html");
}

}  // namespace kinalyx
