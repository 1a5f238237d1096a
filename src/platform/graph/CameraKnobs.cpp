#include "platform/graph/CameraKnobs.h"

#include <algorithm>
#include <utility>

#include "platform/files/Tr.h"
#include "platform/graph/V4l2Controls.h"
#include "platform/host/DriveWatch.h"
#include "platform/host/Post.h"

namespace kinalyx {
namespace {

using namespace std::chrono_literals;

constexpr auto kFresh = 500ms;  // an answer that is not older is not asked for again

CameraControl* Find(std::vector<CameraControl>& controls, std::uint32_t id) {
  const auto found =
      std::find_if(controls.begin(), controls.end(), [&](const CameraControl& control) { return control.id == id; });
  return found == controls.end() ? nullptr : &*found;
}

}  // namespace

CameraKnobs::CameraKnobs(std::shared_ptr<IPost> post, IEvents& events, Open open)
    : post_(std::move(post)), events_(events), open_(std::move(open)) {}

const std::vector<CameraControl>& CameraKnobs::Of(const std::string& path) {
  Knobs& knobs = cameras_[path];
  if (!knobs.asking && Clock::now() - knobs.answered > kFresh) Ask(path);
  return knobs.controls;
}

Outcome CameraKnobs::Set(const std::string& path, std::uint32_t id, int value) {
  Knobs& knobs = cameras_[path];
  CameraControl* control = Find(knobs.controls, id);
  if (!control) return {Fault::NotFound, Tr("The camera has no such control.")};
  if (!control->active) return {Fault::Refused, Tr("The camera has this control in hand itself.")};
  const bool within = value >= control->low && value <= control->high;
  const bool named =
      control->kind != CameraControl::Kind::Choice || (within && value < static_cast<int>(control->choices.size()) &&
                                                       !control->choices[static_cast<std::size_t>(value)].empty());
  if (!within || !named) return {Fault::Refused, Tr("The camera has no such value.")};
  control->value = knobs.wishes[id] = value;
  if (!knobs.asking) Ask(path);
  return {};
}

void CameraKnobs::KeepOnly(const std::vector<std::string>& paths) {
  std::erase_if(cameras_,
                [&](const auto& camera) { return std::count(paths.begin(), paths.end(), camera.first) == 0; });
}

void CameraKnobs::Ask(const std::string& path) {
  Knobs& knobs = cameras_[path];
  knobs.asking = true;
  // A thread that hangs in the camera is left to itself.
  DriveWatch::SendWorker(
      [path, wishes = std::exchange(knobs.wishes, {}), open = open_, post = post_, knobs = weak_from_this()] {
        std::vector<CameraControl> controls;
        if (const auto device = open(path)) {
          // Who is refused sees it: the value that is read back is the old one.
          for (const auto& [id, value] : wishes) static_cast<void>(WriteControl(*device, id, value));
          controls = ReadControls(*device);
        }
        post->Post([path, knobs, controls = std::move(controls)]() mutable {
          if (const auto still = knobs.lock()) still->Answered(path, std::move(controls));
        });
      });
}

void CameraKnobs::Answered(const std::string& path, std::vector<CameraControl> controls) {
  const auto camera = cameras_.find(path);
  if (camera == cameras_.end()) return;
  Knobs& knobs = camera->second;
  knobs.asking = false;
  knobs.answered = Clock::now();
  for (const auto& [id, value] : knobs.wishes) {
    if (CameraControl* control = Find(controls, id)) control->value = value;
  }
  const bool other = knobs.controls != controls;
  knobs.controls = std::move(controls);
  if (!knobs.wishes.empty()) Ask(path);
  if (other) events_.KnobsChanged();
}

}  // namespace kinalyx
