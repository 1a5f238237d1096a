#pragma once

#include <memory>
#include <string>
#include <vector>

#include "distribution/clips/ClipJob.h"
#include "distribution/disc/BurnBoard.h"
#include "distribution/disc/DiscOrder.h"
#include "platform/media/WebConversion.h"

namespace kinalyx {

/// Makes ready what a disc or a folder will hold: plans it, makes the MP4s with their drawings and the page. Steps on
/// a worker. What it has made lies in a folder of its own, which goes with this.
class DiscMaker {
 public:
  /// @param board  outlives this
  DiscMaker(DiscOrder order, BurnBoard& board);
  ~DiscMaker();
  DiscMaker(const DiscMaker&) = delete;
  DiscMaker& operator=(const DiscMaker&) = delete;

  /// The first step plans. False when all is ready, or nothing will be: see How.
  bool Step();
  const Outcome& How() const { return how_; }
  /// Known after the first step.
  const DiscPlan& Plan() const { return plan_; }
  /// All files with their places, once it is ready, in the order of the plan, those that were made last.
  const std::vector<DiscFile>& Files() const { return files_; }

 private:
  bool Begin();
  bool BeginMp4();
  bool Mp4On();
  bool Mp4Done(const Outcome& how);
  bool WritePage();
  bool End(Outcome how);

  DiscOrder order_;
  BurnBoard& board_;
  DiscPlan plan_;
  std::vector<DiscFile> files_;
  std::vector<double> frameSeconds_;  ///< of the plan's videos
  std::string folder_;
  std::string making_;  ///< path of the MP4 under way
  std::size_t next_ = 0;
  std::unique_ptr<ClipJob> clip_;  ///< one with drawings
  std::unique_ptr<WebConversion> plain_;
  bool planned_ = false;
  bool over_ = false;
  Outcome how_;
};

}  // namespace kinalyx
