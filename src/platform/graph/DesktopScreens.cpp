#include "platform/graph/DesktopScreens.h"

#include <unistd.h>

#include <cstdlib>
#include <thread>
#include <utility>

#include "platform/files/Tr.h"
#include "platform/graph/ScreenCast.h"
#include "platform/graph/ScreenSource.h"

namespace kinalyx {

/// From a question to the end of what was given. Only the user-interface thread touches it, but for the question.
struct DesktopScreens::Asking {
  ~Asking() { LetGo(); }
  void LetGo() {
    if (granted.connection >= 0) ::close(std::exchange(granted.connection, -1));
    if (granted.session.empty()) return;
    std::thread([session = std::exchange(granted.session, {})] { EndScreenCast(session); }).detach();
  }

  ScreenQuestion question;
  IScreenEvents* events = nullptr;  ///< null: nobody wants to know any more
  GrantedScreen granted;
};

DesktopScreens::Kind DesktopScreens::KindOf(const std::string& platform) {
  const auto set = [](const char* name) {
    const char* value = std::getenv(name);
    return value && *value;
  };
  if (platform.starts_with("wayland")) return Kind::Wayland;
  if (platform != "xcb") return Kind::Other;
  return set("WAYLAND_DISPLAY") ? Kind::Wayland : Kind::X11;
}

DesktopScreens::DesktopScreens(Kind kind, std::shared_ptr<IPost> post) : kind_(kind), post_(std::move(post)) {}

DesktopScreens::~DesktopScreens() { Close(); }

IScreens::Way DesktopScreens::HowToSee() const {
  switch (kind_) {
    case Kind::X11: return Way::Direct;
    case Kind::Wayland: return Way::Asked;
    case Kind::Other: break;
  }
  return Way::None;
}

std::string DesktopScreens::WhyNone() const {
  return kind_ == Kind::Other ? Tr("The screen cannot be recorded here: Kinalyx runs on no desktop that could show it.")
                              : std::string();
}

void DesktopScreens::Open(const ScreenPlace& place, IScreenEvents& events) {
  Close();
  asking_ = std::make_shared<Asking>();
  asking_->events = &events;
  const std::weak_ptr<Asking> mine = asking_;
  if (kind_ != Kind::Wayland) {
    post_->Post([mine, device = NameOfX11Screen(place)] {
      if (const auto asking = mine.lock(); asking && asking->events) asking->events->ScreenReady(device);
    });
    return;
  }
  std::thread([this, asking = asking_, post = post_, token = token_]() mutable {
    auto answer = std::make_shared<Result<GrantedScreen>>(asking->question.Ask(token));
    post->Post([this, answer, asking = std::move(asking)] {
      if (*answer) asking->granted = **answer;
      if (!asking->events) return asking->LetGo();
      // Whoever is told may close.
      IScreenEvents& told = *asking->events;
      if (!*answer) return told.ScreenRefused(answer->Why());
      token_ = (*answer)->token;
      told.ScreenReady(NameOfPipeWireScreen((*answer)->connection, (*answer)->node));
    });
  }).detach();
}

void DesktopScreens::Close() {
  if (!asking_) return;
  asking_->events = nullptr;
  asking_->question.TakeBack();
  asking_->LetGo();
  asking_.reset();
}

}  // namespace kinalyx
