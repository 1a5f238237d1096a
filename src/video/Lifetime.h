#pragma once

#include <memory>

namespace kinalyx {

/// A member by which an object finds out, after a callback that may do anything, whether it is still
/// there and still in the state in which it was before.
class Lifetime {
 public:
  /// Another state begins: watches taken before tell of it.
  void Change() { ++*state_; }

  /// Taken before the callback, asked behind it.
  class Watch {
   public:
    explicit Watch(const Lifetime& life) : life_(life.state_), state_(*life.state_) {}
    /// The object is no more.
    bool Gone() const { return life_.expired(); }
    /// Also true when it is in another state.
    bool Changed() const {
      const auto life = life_.lock();
      return !life || *life != state_;
    }

   private:
    std::weak_ptr<int> life_;
    int state_;
  };

 private:
  std::shared_ptr<int> state_ = std::make_shared<int>(0);  ///< counts the states
};

}  // namespace kinalyx
