#include "app/HandoutRoom.h"

#include "workspace/forms/AnalysisForm.h"

namespace kinalyx {

HandoutRoom::HandoutRoom(Parts parts)
    : parts_(parts), clips_(parts.services.host, parts.settings, parts.ways, parts.capture, parts.over) {}

HandoutRoom::~HandoutRoom() = default;

void HandoutRoom::Serve(AnalysisForm* analysis) { analysis_ = analysis; }

void HandoutRoom::ShowClipForm() {
  if (analysis_) clips_.ShowForm(*analysis_);
}

void HandoutRoom::CopyPicture() {
  if (analysis_) clips_.CopyPicture(*analysis_);
}

void HandoutRoom::SavePicture() {
  if (analysis_) clips_.SavePicture(*analysis_);
}

}  // namespace kinalyx
