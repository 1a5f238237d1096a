#include "capture/templates/CaptureTemplate.h"

#include "capture/templates/CaptureTemplates.h"

namespace kinalyx {

std::string_view CaptureTemplate(bool armed, CaptureMethod method, CameraUse use, bool dvMode) {
  const bool both = use == CameraUse::Both;
  if (!armed) return both ? MVTwoCamSS : dvMode ? MVOneCamSS : MVOneCamSSAN;
  if (method == CaptureMethod::Sound) {
    if (both) return dvMode ? MVTwoCamAutoDV : MVTwoCamAutoAN;
    return dvMode ? MVOneCamAutoDV : MVOneCamAuto;
  }
  if (both) return dvMode ? MVTwoCamClickDV : MVTwoCamClickAN;
  return dvMode ? MVOneCamClickDV : MVOneCamClickAN;
}

}  // namespace kinalyx
