#include "platform/graph/GraphWords.h"

#include <fmt/format.h>

#include <algorithm>
#include <string_view>

namespace kinalyx {

std::string WordsForFailure(GstMessage* error, bool camera, bool given) {
  GError* fault = nullptr;
  gst_message_parse_error(error, &fault, nullptr);
  const std::string_view name = camera ? "camera" : "microphone";
  std::string words = fmt::format("The {} has stopped: {}", name, fault->message);
  if (fault->domain == GST_STREAM_ERROR)
    words = fmt::format("The {} {}.", name, given ? "gives nothing any more" : "does not answer");
  if (fault->domain == GST_RESOURCE_ERROR) {
    switch (fault->code) {
      case GST_RESOURCE_ERROR_BUSY: words = fmt::format("Another program is using the {}.", name); break;
      case GST_RESOURCE_ERROR_NOT_FOUND: words = fmt::format("The {} is not there any more.", name); break;
      case GST_RESOURCE_ERROR_NOT_AUTHORIZED:
        words = fmt::format("The {} may not be used: it wants a password.", name);
        break;
      case GST_RESOURCE_ERROR_OPEN_READ:
      case GST_RESOURCE_ERROR_OPEN_READ_WRITE: words = fmt::format("The {} cannot be opened.", name); break;
      case GST_RESOURCE_ERROR_READ:
        words = fmt::format("The {} gives nothing any more. Is it still plugged in?", name);
        break;
      default: break;
    }
  }
  g_clear_error(&fault);
  return words;
}

}  // namespace kinalyx
