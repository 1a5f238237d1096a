#pragma once

#include <cstddef>
#include <functional>

namespace kinalyx {

/// One open file's part of the memory for decoded pictures: all files of the process have equal parts.
class BudgetShare {
 public:
  /// `onChange` is called, from any thread, when the part has become another, for as long as this lives.
  explicit BudgetShare(std::function<void()> onChange);
  ~BudgetShare();
  BudgetShare(const BudgetShare&) = delete;
  BudgetShare& operator=(const BudgetShare&) = delete;

  std::size_t Bytes() const;

 private:
  friend void SetPictureBudget(std::size_t bytes);
  std::function<void()> onChange_;
};

}  // namespace kinalyx
