#pragma once

#include <chrono>
#include <cstddef>
#include <functional>

namespace kinalyx {

/// What open files share memory for.
enum class Purse {
  Pictures,  ///< decoded ones
  StandIns,  ///< small, packed ones
};

/// One open file's part of a purse: all files of the process have equal parts.
class BudgetShare {
 public:
  /// `onChange` is called, from any thread, when the part has become another, for as long as this lives.
  explicit BudgetShare(Purse purse, std::function<void()> onChange);
  ~BudgetShare();
  BudgetShare(const BudgetShare&) = delete;
  BudgetShare& operator=(const BudgetShare&) = delete;

  std::size_t Bytes() const;

 private:
  friend void SetPictureBudget(std::size_t bytes);
  const Purse purse_;
  std::function<void()> onChange_;
};

/// One open file's decoders. Each holds the memory of a dozen pictures, so of large pictures not all files can
/// have theirs at once: who has not been asked for long gives way.
class DecoderSeat {
 public:
  /// `onYield` is called, from any thread, when the decoders are to be given up soon; Leave is the answer.
  explicit DecoderSeat(std::function<void()> onYield);
  ~DecoderSeat();
  DecoderSeat(const DecoderSeat&) = delete;
  DecoderSeat& operator=(const DecoderSeat&) = delete;

  /// Says that decoders with so much memory are about to be used, and asks others for theirs where it does not
  /// fit. False when nobody can make room at present, unless it is `urgent`.
  bool Take(std::size_t bytes, bool urgent);
  void Leave();

 private:
  std::function<void()> onYield_;
  std::size_t bytes_ = 0;
  std::chrono::steady_clock::time_point used_;
};

/// Gives back to the system what has been freed: decoders leave so large holes that it would stay for good.
void GiveFreedMemoryBack();

}  // namespace kinalyx
