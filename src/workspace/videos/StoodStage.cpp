#include "workspace/videos/StoodStage.h"

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>
#include <tuple>

#include "platform/files/FileStore.h"
#include "workspace/stage/Layout.h"

namespace kinalyx {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::int64_t kMostBytes = 1 << 20;
constexpr int kDeepest = 8;
constexpr double kFarthest = 1e6;  // twips

/// The member of an object, `otherwise` when it is missing or of another kind.
template <typename T>
T Member(const Json& object, const char* name, T otherwise) {
  const auto found = object.find(name);
  if (found == object.end()) return otherwise;
  if constexpr (std::is_same_v<T, bool>) return found->is_boolean() ? found->template get<bool>() : otherwise;
  else if constexpr (std::is_same_v<T, std::string>) return found->is_string() ? found->template get<T>() : otherwise;
  else return found->is_number() ? found->template get<double>() : otherwise;
}

int Whole(const Json& object, const char* name, int least, int most, int otherwise) {
  const double value = Member<double>(object, name, otherwise);
  return value >= least && value <= most ? static_cast<int>(value) : otherwise;
}

std::optional<StoodVideo> VideoOf(const Json& json) {
  if (!json.is_object()) return std::nullopt;
  constexpr int kMostFrames = 1 << 28;
  StoodVideo video;
  video.slot = Whole(json, "slot", 1, kSlots, 0);
  video.path = Member<std::string>(json, "path", {});
  video.moment = {Whole(json, "frame", 0, kMostFrames, 0), Whole(json, "field", 0, 1, 0) == 1};
  video.flipped = Member(json, "flipped", false);
  video.fits = Member(json, "fits", false);
  const double zoom = Member(json, "zoom", 1.0);
  video.zoom = zoom > 0 && zoom < kFarthest ? zoom : 1;
  video.panX = std::clamp(Member(json, "panX", 0.0), -kFarthest, kFarthest);
  video.panY = std::clamp(Member(json, "panY", 0.0), -kFarthest, kFarthest);
  return video.slot > 0 && !video.path.empty() ? std::optional(video) : std::nullopt;
}

}  // namespace

std::optional<StoodStage> ReadSession(const std::string& path) {
  const auto bytes = ReadWholeFile(path, kMostBytes);
  if (!bytes) return std::nullopt;
  const auto shallow = [](int depth, Json::parse_event_t, const Json&) { return depth <= kDeepest; };
  const Json json = Json::parse(bytes->begin(), bytes->end(), shallow, false);
  if (!json.is_object()) return std::nullopt;
  StoodStage stage;
  if (const auto videos = json.find("videos"); videos != json.end() && videos->is_array())
    for (const Json& one : *videos)
      if (auto video = VideoOf(one); video && stage.videos.size() < kSlots) stage.videos.push_back(std::move(*video));
  if (stage.videos.empty()) return std::nullopt;
  stage.layout = Member<std::string>(json, "layout", {});
  if (!FindScreenMode(stage.layout)) stage.layout.clear();
  stage.currentWindow = Whole(json, "current", 1, kSlots, 1);
  if (const auto locks = json.find("locks"); locks != json.end() && locks->is_array() && locks->size() == 3)
    for (std::size_t i = 0; i < 3; ++i) stage.locks[i] = (*locks)[i].is_boolean() && (*locks)[i].get<bool>();
  return stage;
}

bool StoodStage::Follow(const std::string& from, const std::string& to) {
  bool any = false;
  for (StoodVideo& video : videos) {
    const bool below =
        video.path.starts_with(from) && (video.path.size() == from.size() || video.path[from.size()] == '/');
    if (below) video.path.replace(0, from.size(), to);
    any = any || below;
  }
  return any;
}

void FollowInSession(const std::string& path, const std::string& from, const std::string& to) {
  auto session = ReadSession(path);
  if (session && session->Follow(from, to)) std::ignore = WriteSession(path, *session);  // a convenience
}

Outcome WriteSession(const std::string& path, const StoodStage& stage) {
  Json json{{"layout", stage.layout}, {"current", stage.currentWindow}, {"locks", stage.locks}};
  for (const StoodVideo& video : stage.videos)
    json["videos"].push_back({{"slot", video.slot},
                              {"path", video.path},
                              {"frame", video.moment.Frame},
                              {"field", video.moment.SecondField ? 1 : 0},
                              {"flipped", video.flipped},
                              {"zoom", video.zoom},
                              {"fits", video.fits},
                              {"panX", video.panX},
                              {"panY", video.panY}});
  return WriteWholeFile(path, json.dump(1, ' ', false, Json::error_handler_t::replace) + "\n");
}

}  // namespace kinalyx
