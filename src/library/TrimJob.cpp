#include "library/TrimJob.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string_view>
#include <utility>

#include "platform/files/Folders.h"
#include "platform/files/PartFiles.h"
#include "platform/files/Tr.h"

namespace kinalyx {

namespace {

/// Longest wait for a word of the program, so that a cancel is heard.
constexpr int kPollMs = 30;

}  // namespace

int TrimRate(const VideoInfo* info) {
  constexpr int kUsualRate = 30;
  if (!info || info->rate <= 0 || info->scale <= 0) return kUsualRate;
  return static_cast<int>(std::lround(static_cast<double>(info->rate) / static_cast<double>(info->scale)));
}

bool TrimJob::Step() {
  if (!process_) {
    RemoveDeadParts(FolderOf(request_.destination));
    auto started = ChildProcess::Start(program_, {FormatTrimCommand(request_)});
    if (started) process_ = std::move(*started);
    else error_ = started.Why();
    return process_ != nullptr;
  }
  const bool runs = process_->Poll(kPollMs, [this](std::string_view line) {
    int percent = 0;
    std::from_chars(line.data(), line.data() + line.size(), percent);
    part_ = std::clamp(percent / 100.0, part_, 1.0);
  });
  if (runs) return true;
  // What the program says is not taken on trust: the video must be there.
  saved_ = process_->ExitCode() == 0 && FileExists(request_.destination);
  if (!saved_) error_ = process_->Errors().empty() ? Tr("The program avitrim has failed.") : Tr(process_->Errors());
  while (error_.ends_with('\n')) error_.pop_back();
  return false;
}

void TrimJob::Cancel() {
  if (!process_ || saved_ || !error_.empty()) {
    cancelled_ = !saved_ && error_.empty();
    return;
  }
  process_->Terminate();
  // It may have finished in this very moment, and then the video is saved.
  while (Step()) {
  }
  cancelled_ = !saved_;
}

JobProgress TrimJob::Progress() const { return {saved_ ? 1 : 0, 1, part_, LastName(request_.source)}; }

}  // namespace kinalyx
