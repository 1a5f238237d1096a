#include "capture/mirror/MirrorChoices.h"

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>

#include "platform/files/FileStore.h"

namespace kinalyx {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::int64_t kMostBytes = 64 << 10;
constexpr int kDeepest = 4;
constexpr int kFarthest = 100'000;  // pixels
constexpr std::array kSpeeds{0.25, 0.5, 1.0};

/// A whole number from `least` to `most`; else it stays.
void Take(const Json& object, const char* name, int least, int most, int& into) {
  const auto found = object.find(name);
  if (found == object.end() || !found->is_number()) return;
  const auto value = found->get<double>();
  if (value >= least && value <= most) into = static_cast<int>(value);
}

void Take(const Json& object, const char* name, bool& into) {
  const auto found = object.find(name);
  if (found != object.end() && found->is_boolean()) into = found->get<bool>();
}

void TakeDelays(const Json& json, MirrorChoices& choices) {
  const auto rows = json.find("delays");
  if (rows == json.end() || !rows->is_array() || rows->size() != kMostPanes) return;
  MirrorChoices taken = choices;
  for (taken.panes = 1; taken.panes <= kMostPanes; ++taken.panes) {
    const Json& row = (*rows)[static_cast<std::size_t>(taken.panes - 1)];
    if (!row.is_array()) continue;
    for (int pane = 0; pane < taken.panes && pane < static_cast<int>(row.size()); ++pane) {
      const Json& delay = row[static_cast<std::size_t>(pane)];
      if (delay.is_number()) taken.SetDelay(pane, delay.get<double>());
    }
  }
  choices.delays = taken.delays;
}

}  // namespace

double PartOf(LoopSpeed speed) { return kSpeeds[static_cast<std::size_t>(speed)]; }

void MirrorChoices::SetDelay(int pane, double seconds) {
  if (!std::isfinite(seconds)) return;
  delays[Row()][static_cast<std::size_t>(pane)] =
      std::clamp(std::round(seconds / kDelayStep) * kDelayStep, 0.0, kMostDelay);
}

MirrorChoices ReadMirrorChoices(const std::string& path) {
  MirrorChoices choices;
  const auto bytes = ReadWholeFile(path, kMostBytes);
  if (!bytes) return choices;
  const auto shallow = [](int depth, Json::parse_event_t, const Json&) { return depth <= kDeepest; };
  const Json json = Json::parse(bytes->begin(), bytes->end(), shallow, false);
  if (!json.is_object()) return choices;
  TakeDelays(json, choices);
  Take(json, "panes", 1, kMostPanes, choices.panes);
  if (const auto cameras = json.find("cameras"); cameras != json.end() && cameras->is_array())
    for (std::size_t i = 0; i < kMostPanes && i < cameras->size(); ++i)
      choices.cameras[i] = (*cameras)[i].is_number() && (*cameras)[i].get<double>() == 1 ? 1 : 0;
  Take(json, "loopSeconds", kLeastLoop, kMostLoop, choices.loopSeconds);
  int speed = static_cast<int>(choices.speed);
  Take(json, "speed", 0, static_cast<int>(LoopSpeed::Full), speed);
  choices.speed = static_cast<LoopSpeed>(speed);
  Take(json, "mirrored", choices.mirrored);
  Take(json, "left", -kFarthest, kFarthest, choices.left);
  Take(json, "top", -kFarthest, kFarthest, choices.top);
  Take(json, "width", 0, kFarthest, choices.width);
  Take(json, "height", 0, kFarthest, choices.height);
  Take(json, "fullScreen", choices.fullScreen);
  if (const auto screen = json.find("screen"); screen != json.end() && screen->is_string())
    choices.screen = screen->get<std::string>();
  return choices;
}

Outcome WriteMirrorChoices(const std::string& path, const MirrorChoices& choices) {
  const Json json{{"panes", choices.panes},
                  {"delays", choices.delays},
                  {"cameras", choices.cameras},
                  {"loopSeconds", choices.loopSeconds},
                  {"speed", static_cast<int>(choices.speed)},
                  {"mirrored", choices.mirrored},
                  {"left", choices.left},
                  {"top", choices.top},
                  {"width", choices.width},
                  {"height", choices.height},
                  {"fullScreen", choices.fullScreen},
                  {"screen", choices.screen}};
  return WriteWholeFile(path, json.dump(1, ' ', false, Json::error_handler_t::replace) + "\n");
}

}  // namespace kinalyx
