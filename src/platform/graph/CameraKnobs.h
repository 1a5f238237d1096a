#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/files/Result.h"
#include "platform/graph/IDevices.h"

namespace kinalyx {

class IControlDevice;
class IPost;

/// The controls of all cameras as they were last told, since a camera may be long in answering: questions and wishes
/// go to it by a thread, one at a time. Lives on the user-interface thread. Only for the sources of this room.
class CameraKnobs : public std::enable_shared_from_this<CameraKnobs> {
 public:
  using Open = std::function<std::unique_ptr<IControlDevice>(const std::string& path)>;

  /// Who is told that the knobs of a camera are other than they were.
  class IEvents {
   public:
    virtual ~IEvents() = default;
    virtual void KnobsChanged() = 0;
  };

  /// @param events  told from the event loop, as long as this is shared
  CameraKnobs(std::shared_ptr<IPost> post, IEvents& events, Open open);

  /// @param path  of the camera's file
  const std::vector<CameraControl>& Of(const std::string& path);
  Outcome Set(const std::string& path, std::uint32_t id, int value);
  /// Forgets cameras that have gone.
  void KeepOnly(const std::vector<std::string>& paths);

 private:
  using Clock = std::chrono::steady_clock;
  struct Knobs {
    std::vector<CameraControl> controls;
    std::map<std::uint32_t, int> wishes;  ///< not yet sent
    bool asking = false;
    Clock::time_point answered{};
  };

  void Ask(const std::string& path);
  void Answered(const std::string& path, std::vector<CameraControl> controls);

  std::shared_ptr<IPost> post_;
  IEvents& events_;
  Open open_;
  std::map<std::string, Knobs> cameras_;
};

}  // namespace kinalyx
