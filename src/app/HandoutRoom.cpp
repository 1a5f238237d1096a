#include "app/HandoutRoom.h"

#include "workspace/forms/AnalysisForm.h"

namespace kinalyx {

HandoutRoom::HandoutRoom(Parts parts) : parts_(parts) {}

HandoutRoom::~HandoutRoom() = default;

void HandoutRoom::Serve(AnalysisForm* analysis) { analysis_ = analysis; }

}  // namespace kinalyx
