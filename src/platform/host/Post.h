#pragma once

#include <functional>
#include <memory>

namespace kinalyx {

/// The way from any thread to the one of the user interface.
class IPost {
 public:
  virtual ~IPost() = default;
  /// Has the user-interface thread do something in its event loop, in the order of posting. Returns at once; any
  /// thread may call. What is posted when that loop has ended is dropped. The action outlives who posted it: it asks
  /// first whether those whom it concerns are still there.
  virtual void Post(std::function<void()> action) = 0;
};

/// Over Qt's event loop.
std::shared_ptr<IPost> MakeQtPost();

}  // namespace kinalyx
