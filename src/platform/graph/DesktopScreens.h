#pragma once

#include <memory>
#include <string>

#include "platform/graph/IScreens.h"
#include "platform/host/Post.h"

namespace kinalyx {

/// The screens of this desktop: an X server shows its own to every program; under Wayland the desktop's portal asks the
/// user, in threads of their own, for it may take as long as it likes.
class DesktopScreens final : public IScreens {
 public:
  enum class Kind { X11, Wayland, Other };
  /// By what the session and Qt's platform ("xcb", "wayland", ...) say. An X window in a session of Wayland sees other
  /// X windows alone.
  static Kind KindOf(const std::string& platform);

  DesktopScreens(Kind kind, std::shared_ptr<IPost> post);
  ~DesktopScreens() override;

  Way HowToSee() const override;
  std::string WhyNone() const override;
  void Open(const ScreenPlace& place, IScreenEvents& events) override;
  void Close() override;

 private:
  struct Asking;
  Kind kind_;
  std::shared_ptr<IPost> post_;
  std::shared_ptr<Asking> asking_;  ///< shared with its thread
  std::string token_;               ///< of the last yes
};

}  // namespace kinalyx
