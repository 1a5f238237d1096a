#include "platform/media/MediaLog.h"

#include <array>
#include <cstdarg>
#include <mutex>
#include <string_view>

#include "platform/files/Log.h"
#include "platform/media/AvHandles.h"

namespace kinalyx {

namespace {

// The library takes one function for the whole process and gives it nothing of ours, so the way to the log
// can only be kept here. The lock is held while a message is handed on, which waits for no disk.
std::mutex mutex;
Log* target = nullptr;

/// Only decoders of ours have an `opaque`, and the library hands it on to their threads.
void CountComplaint(void* context, std::string_view message) {
  // To forget a picture that never came is no loss: that is so wherever a stream of open groups is entered.
  if (message.starts_with("mmco:")) return;
  const AVClass* kind = context ? *static_cast<AVClass**>(context) : nullptr;
  if (kind != avcodec_get_class()) return;
  if (void* counter = static_cast<AVCodecContext*>(context)->opaque) ++*static_cast<Complaints*>(counter);
}

void Take(void* context, int level, const char* format, va_list arguments) {
  if (level > AV_LOG_WARNING) return;
  if (level <= AV_LOG_ERROR) CountComplaint(context, format);
  const std::lock_guard lock(mutex);
  if (!target) return;
  std::array<char, 512> text{};
  int startsLine = 1;
  av_log_format_line2(context, level, format, arguments, text.data(), text.size(), &startsLine);
  target->Write(level <= AV_LOG_ERROR ? LogLevel::Error : LogLevel::Warning, "media", text.data());
}

}  // namespace

void SetMediaLog(Log* log) {
  const std::lock_guard lock(mutex);
  target = log;
}

void HearLibrary() {
  // No picture or table of a likely file needs more in one piece.
  constexpr std::size_t kMostBytes = std::size_t{320} << 20;
  static const bool once = (av_log_set_callback(&Take), av_max_alloc(kMostBytes), true);
  (void)once;
}

}  // namespace kinalyx
