#pragma once

#include <string>

namespace kinalyx {

/// A part of the desktop, in pixels of the screens.
struct ScreenPlace {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

/// What is told of a screen, from the event loop of the user interface, never from inside a call.
class IScreenEvents {
 public:
  virtual ~IScreenEvents() = default;
  /// It may be recorded, under this name: that of a device for a graph.
  virtual void ScreenReady(const std::string& device) = 0;
  /// It may not, or cannot; in words for the user.
  virtual void ScreenRefused(const std::string& why) = 0;
};

/// The way to a picture of the screen.
class IScreens {
 public:
  virtual ~IScreens() = default;
  enum class Way {
    Direct,  ///< it is had at once
    Asked,   ///< the desktop asks the user first, in a window of its own
    None,    ///< this machine has none
  };
  virtual Way HowToSee() const = 0;
  /// For Way::None: why, and what helps.
  virtual std::string WhyNone() const = 0;

  /// Has the screen given; `events` is told once, and outlives the answer or a call of Close.
  /// @param place  which part; where the user is asked, it is the user who says which
  virtual void Open(const ScreenPlace& place, IScreenEvents& events) = 0;
  /// The screen is wanted no more, or the question is taken back. Nothing is told of it any more.
  virtual void Close() = 0;
};

}  // namespace kinalyx
