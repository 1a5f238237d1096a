#include "distribution/clips/ClipPlan.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace kinalyx {
namespace {

/// Times of a file are rounded; a picture that is due by so much is taken.
constexpr double kSlackMs = 1.5;

/// Where the videos stand while the lead is at a position.
std::vector<int> PositionsAt(const ClipScene& scene, std::span<const IFilmTimes* const> times, int lead) {
  const SceneVideo& leader = scene.LeadVideo();
  const IFilmTimes& clock = *times[scene.Lead];
  std::vector<int> positions;
  for (std::size_t i = 0; i < scene.Videos.size(); ++i) {
    const SceneVideo& video = scene.Videos[i];
    int position = lead;
    if (i != scene.Lead)
      position =
          video.Locked
              ? video.Position + lead - leader.Position
              : times[i]->PositionAt(times[i]->TimeOf(video.Position) +
                                     (clock.TimeOf(lead) - clock.TimeOf(leader.Position)) * leader.Pace / video.Pace);
    positions.push_back(std::clamp(position, 0, std::max(0, times[i]->Count() - 1)));
  }
  return positions;
}

/// The lead's position by which a drawing of any video has begun; those that are there all the time begin with the
/// clip.
std::set<int> Beginnings(const ClipScene& scene, std::span<const IFilmTimes* const> times, int first, int last) {
  std::set<int> found;
  for (std::size_t i = 0; i < scene.Videos.size(); ++i) {
    const SceneVideo& video = scene.Videos[i];
    for (const ExactDrawing& drawing : video.Drawings.Drawings) {
      const ShapeTime& time = drawing.Shape.Time;
      const auto shows = [&](int lead) {
        return time.OpacityOn(video.FrameOf(PositionsAt(scene, times, lead)[i])) == 255;
      };
      if (time.Always()) {
        found.insert(first);
        continue;
      }
      for (int lead = first; lead <= last; ++lead) {
        if (!shows(lead)) continue;
        found.insert(lead);
        break;
      }
    }
  }
  return found;
}

}  // namespace

ClipPlan PlanClip(const ClipScene& scene, std::span<const IFilmTimes* const> times, const ClipStretch& stretch) {
  ClipPlan plan;
  if (scene.Videos.empty() || times.size() != scene.Videos.size()) return plan;
  const IFilmTimes& clock = *times[scene.Lead];
  const int end = std::max(0, clock.Count() - 1);
  const int first = std::clamp(stretch.First, 0, end);
  const int last = std::clamp(stretch.Last, first, end);
  const double slower = std::max(1, stretch.Slower);
  const std::set<int> pauses = stretch.PauseMs > 0 ? Beginnings(scene, times, first, last) : std::set<int>{};

  const double shortest = 1000 / std::max(1.0, stretch.MostRate);
  double waited = 0;
  const auto due = [&](int position) { return (clock.TimeOf(position) - clock.TimeOf(first)) * slower + waited; };
  const auto begin = [&](int position) {
    if (slower > 1) return;
    if (!plan.Sounds.empty()) plan.Sounds.back().LengthMs = clock.TimeOf(position) - plan.Sounds.back().FromMs;
    plan.Sounds.push_back({due(position), clock.TimeOf(position), 0});
  };
  begin(first);
  for (int position = first; position <= last; ++position) {
    const bool pause = pauses.contains(position);
    const double ms = due(position);
    const bool early = !plan.Frames.empty() && ms < plan.Frames.back().Ms + shortest - kSlackMs;
    if (early && !pause && position != last) continue;
    plan.Frames.push_back({ms, PositionsAt(scene, times, position), pause});
    if (!pause) continue;
    waited += stretch.PauseMs;
    begin(position);
  }
  plan.EndMs = due(last + 1);
  if (!plan.Sounds.empty()) plan.Sounds.back().LengthMs = clock.TimeOf(last + 1) - plan.Sounds.back().FromMs;
  return plan;
}

}  // namespace kinalyx
