#include "platform/graph/GraphWords.h"

#include <algorithm>
#include <array>

#include "platform/files/Tr.h"
#include "platform/graph/ScreenWords.h"

namespace kinalyx {
namespace {

/// One thing that can go wrong, in the words for each device.
struct Saying {
  const char* camera;
  const char* microphone;
  const char* screen;
};

constexpr Saying kSilent{TrLater("The camera gives nothing any more."),
                         TrLater("The microphone gives nothing any more."),
                         TrLater("The screen gives nothing any more.")};
constexpr Saying kNoAnswer{TrLater("The camera does not answer."), TrLater("The microphone does not answer."),
                           TrLater("The screen does not answer.")};
constexpr Saying kBusy{TrLater("Another program is using the camera."),
                       TrLater("Another program is using the microphone."),
                       TrLater("Another program is using the screen.")};
constexpr Saying kGone{TrLater("The camera is not there any more."), TrLater("The microphone is not there any more."),
                       TrLater("The screen is not there any more.")};
constexpr Saying kForbidden{TrLater("The camera may not be used: it wants a password."),
                            TrLater("The microphone may not be used: it wants a password."),
                            TrLater("The screen may not be used: it wants a password.")};
constexpr Saying kClosed{TrLater("The camera cannot be opened."), TrLater("The microphone cannot be opened."),
                         TrLater("The screen cannot be opened.")};
constexpr Saying kPulled{TrLater("The camera gives nothing any more. Is it still plugged in?"),
                         TrLater("The microphone gives nothing any more. Is it still plugged in?"),
                         TrLater("The screen gives nothing any more. Is it still plugged in?")};
constexpr Saying kStopped{TrLater("The camera has stopped: {}"), TrLater("The microphone has stopped: {}"),
                          TrLater("The screen has stopped: {}")};
constexpr Saying kEnded{TrLater("The camera has ended."), TrLater("The microphone has ended."),
                        TrLater("The screen has ended.")};
constexpr Saying kNothing{TrLater("The camera gives no picture."), TrLater("The microphone gives no sound."),
                          TrLater("The screen gives no picture.")};
constexpr std::array kSayings{kSilent, kNoAnswer, kBusy, kGone, kForbidden, kClosed, kPulled, kEnded, kNothing};

std::string Said(const Saying& saying, bool camera) { return Tr(camera ? saying.camera : saying.microphone); }

}  // namespace

std::string WordsForFailure(GstMessage* error, bool camera, bool given) {
  GError* fault = nullptr;
  gst_message_parse_error(error, &fault, nullptr);
  const auto said = [camera](const Saying& saying) { return Said(saying, camera); };
  std::string words = Tr(camera ? kStopped.camera : kStopped.microphone, std::string(fault->message));
  if (fault->domain == GST_STREAM_ERROR) words = said(given ? kSilent : kNoAnswer);
  if (fault->domain == GST_RESOURCE_ERROR) {
    switch (fault->code) {
      case GST_RESOURCE_ERROR_BUSY: words = said(kBusy); break;
      case GST_RESOURCE_ERROR_NOT_FOUND: words = said(kGone); break;
      case GST_RESOURCE_ERROR_NOT_AUTHORIZED: words = said(kForbidden); break;
      case GST_RESOURCE_ERROR_OPEN_READ:
      case GST_RESOURCE_ERROR_OPEN_READ_WRITE: words = said(kClosed); break;
      case GST_RESOURCE_ERROR_READ: words = said(kPulled); break;
      default: break;
    }
  }
  g_clear_error(&fault);
  return words;
}

std::string WordsForEnd(bool camera) { return Said(kEnded, camera); }
std::string WordsForSilence(bool camera) { return Said(kNothing, camera); }

std::string SaidOfScreen(const std::string& ofCamera) {
  for (const Saying& saying : kSayings)
    if (ofCamera == Tr(saying.camera)) return Tr(saying.screen);
  const std::string stopped = Tr(kStopped.camera, std::string());
  if (ofCamera.starts_with(stopped)) return Tr(kStopped.screen, ofCamera.substr(stopped.size()));
  return ofCamera;
}

}  // namespace kinalyx
