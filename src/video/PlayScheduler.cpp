#include "video/PlayScheduler.h"

#include <algorithm>

namespace kinalyx {

void PlayScheduler::Add(IPlayRun& run, std::int64_t due) {
  Remove(run);
  entries_.push_back({&run, due});
  if (!ticking_) Arm();
}

void PlayScheduler::Remove(IPlayRun& run) {
  std::erase_if(entries_, [&](const Entry& entry) { return entry.run == &run; });
  if (!ticking_) Arm();
}

void PlayScheduler::TickDue() {
  if (ticking_) return;  // a tick that pumps events itself must not start the round again
  ticking_ = true;
  // The earliest first, so that under load every window gets its turn. A tick may add and remove any
  // run, so the list is searched anew after each; what is due again in this round waits for the next.
  const std::int64_t roundStart = host_.timeGetTime();
  std::vector<IPlayRun*> ticked;
  for (;;) {
    auto next = entries_.end();
    for (auto entry = entries_.begin(); entry != entries_.end(); ++entry) {
      if (entry->due > roundStart || std::ranges::find(ticked, entry->run) != ticked.end()) continue;
      if (next == entries_.end() || entry->due < next->due) next = entry;
    }
    if (next == entries_.end()) break;
    IPlayRun* run = next->run;
    ticked.push_back(run);
    const PlayerNews::Hold hold(news_);
    const std::int64_t due = run->Tick(host_.timeGetTime());
    const auto entry = std::ranges::find(entries_, run, &Entry::run);
    if (entry != entries_.end()) entry->due = due;
  }
  ticking_ = false;
  Arm();
}

void PlayScheduler::Arm() {
  timer_.Stop();
  if (entries_.empty()) return;
  const auto next = std::ranges::min_element(entries_, {}, &Entry::due);
  const auto wait = std::max<std::int64_t>(0, next->due - host_.timeGetTime());
  timer_ = HostTimer(host_, static_cast<int>(std::min<std::int64_t>(wait, 1000)), false, [this] { TickDue(); });
}

}  // namespace kinalyx
