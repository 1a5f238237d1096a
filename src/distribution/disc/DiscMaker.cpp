#include "distribution/disc/DiscMaker.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "distribution/web/PlayerPage.h"
#include "platform/files/FileCopy.h"
#include "platform/files/FileStore.h"
#include "platform/files/Folders.h"
#include "platform/files/PartFiles.h"
#include "platform/files/Tr.h"
#include "platform/media/VideoFile.h"

namespace kinalyx {
namespace {

/// Seconds for which a picture of a video stands, as a page steps by them.
double FrameSecondsOf(const std::string& path) {
  const auto info = ReadVideoInfo(path);
  return info && info->rate > 0 ? static_cast<double>(info->scale) / static_cast<double>(info->rate) : 0;
}

ClipOrder OrderFor(ClipScene scene, const std::string& path) {
  ClipOrder order;
  const POINTAPI pixels = PixelsOf(scene, ClipSize::Lines1080);
  // No larger than it was filmed.
  const POINTAPI own = PixelsOf(scene, ClipSize::AsSeen);
  order.Width = std::min(pixels.x, own.x);
  order.Height = pixels.x <= own.x ? pixels.y : own.y;
  order.Stretch.Last = std::numeric_limits<int>::max();
  order.Scene = std::move(scene);
  order.Sound = true;
  order.Path = path;
  return order;
}

}  // namespace

DiscMaker::DiscMaker(DiscOrder order, BurnBoard& board) : order_(std::move(order)), board_(board) {}

DiscMaker::~DiscMaker() {
  clip_.reset();
  plain_.reset();
  if (!folder_.empty()) (void)RemoveTree(folder_);
}

bool DiscMaker::End(Outcome how) {
  over_ = true;
  how_ = std::move(how);
  clip_.reset();
  plain_.reset();
  return false;
}

bool DiscMaker::Step() {
  if (over_) return false;
  if (board_.StopWanted()) return End(Outcome(Fault::Cancelled, Tr("It was cancelled.")));
  if (!planned_) return Begin();
  if (clip_ || plain_) return Mp4On();
  while (next_ < plan_.Videos.size()) {
    if (!plan_.Page.empty() && plan_.Videos[next_].MakesMp4()) return BeginMp4();
    frameSeconds_.push_back(plan_.Page.empty() ? 0 : FrameSecondsOf(plan_.Videos[next_].From));
    ++next_;
  }
  return plan_.Page.empty() ? End({}) : WritePage();
}

bool DiscMaker::Begin() {
  auto plan = PlanOrder(order_);
  if (!plan) return End(plan.Failure());
  plan_ = std::move(*plan);
  files_ = plan_.Files;
  planned_ = true;
  if (plan_.Page.empty()) return true;
  const std::string folder = PartNameBeside(JoinPath(order_.WorkFolder, "Disc"));
  if (!MakeFolder(order_.WorkFolder) || !MakeFolder(folder))
    return End(Outcome(Fault::Unwritable, Tr("The folder for what is made on the way could not be made.")));
  RemoveDeadParts(order_.WorkFolder);  // of a program that was killed
  folder_ = folder;
  return true;
}

bool DiscMaker::BeginMp4() {
  const DiscVideo& video = plan_.Videos[next_];
  board_.Say(Tr(">>> Making MP4 of {}", LastName(video.To)));
  making_ = JoinPath(folder_, std::to_string(next_) + ".mp4");
  auto scene = SceneOfFile(video.From, order_.Look);
  if (!scene) return Mp4Done(scene.Failure());
  if (HasDrawings(*scene)) {
    clip_ = std::make_unique<ClipJob>(OrderFor(std::move(*scene), making_));
    return true;
  }
  auto plain = WebConversion::Open({.source = video.From, .wmv = {}, .mp4 = making_});
  if (!plain) return Mp4Done(plain.Failure());
  plain_ = std::move(*plain);
  return true;
}

bool DiscMaker::Mp4On() {
  if (clip_) {
    board_.SetPart(clip_->Progress().part);
    if (clip_->Step()) return true;
    const Outcome how = clip_->Outcome();
    clip_.reset();
    return Mp4Done(how);
  }
  board_.SetPart(plain_->Part());
  const WebConversion::State state = plain_->Step();
  if (state == WebConversion::State::Running) return true;
  const Outcome how = state == WebConversion::State::Done ? Outcome() : Outcome::Failed(plain_->Error());
  plain_.reset();
  return Mp4Done(how);
}

bool DiscMaker::Mp4Done(const Outcome& how) {
  DiscVideo& video = plan_.Videos[next_];
  ++next_;
  board_.SetPart(0);
  if (how) {
    files_.push_back({making_, video.Mp4, FileSize(making_).value_or(0)});
    frameSeconds_.push_back(FrameSecondsOf(making_));
    return true;
  }
  // No room is no fault of the video, and the next one would find none either.
  if (FreeBytes(order_.WorkFolder) < (std::int64_t{64} << 20))
    return End(Outcome(Fault::Unwritable, Tr("There is too little room for what is made on the way: {}", how.Why())));
  // The video goes along as it is; the page leaves it out.
  board_.Say(Tr(">>> \"{}\" will not be on the page: {}", video.Title, how.Why()));
  video.Mp4.clear();
  frameSeconds_.push_back(0);
  return true;
}

bool DiscMaker::WritePage() {
  PlayerPage page{.coach = order_.Coach,
                  .company = order_.Company,
                  .student = order_.Student,
                  .logo = {},
                  .playlist = {},
                  .videos = {}};
  for (std::size_t i = 0; i < plan_.Videos.size(); ++i) {
    const DiscVideo& video = plan_.Videos[i];
    if (video.Mp4.empty()) continue;
    page.videos.push_back({.file = video.Mp4,
                           .title = video.Title,
                           .date = order_.Today,
                           .frameSeconds = frameSeconds_[i],
                           .group = Tr(video.Lesson ? kLessonsOnDisc : kVideosOnDisc)});
  }
  if (page.videos.empty()) return End({});
  const std::string path = JoinPath(folder_, "index.html");
  const std::string text = WritePlayerPage(page);
  if (Outcome written = WriteWholeFile(path, text); !written) return End(written);
  files_.push_back({path, plan_.Page, static_cast<std::int64_t>(text.size())});
  return End({});
}

}  // namespace kinalyx
