#pragma once

#include <span>
#include <vector>

namespace kinalyx::demo {

/// A value that runs smoothly through given values at given times, without swinging beyond them: what
/// stands still between two equal values stays still. Before the first and after the last it rests.
class KeyCurve {
 public:
  KeyCurve() = default;
  /// `times` ascend; both are of the same length, at least 1.
  KeyCurve(std::span<const double> times, std::span<const double> values);

  double At(double time) const;

 private:
  std::vector<double> times_;
  std::vector<double> values_;
  std::vector<double> slopes_;
};

}  // namespace kinalyx::demo
