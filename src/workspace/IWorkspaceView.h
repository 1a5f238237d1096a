#pragma once

#include "platform/paint/Geometry.h"
#include "workspace/commands/ICommandsView.h"
#include "workspace/edits/IStudyView.h"
#include "workspace/stage/IStageView.h"
#include "workspace/transport/ITransportView.h"

namespace kinalyx {

/// The window that shows the analysis section. It decides nothing: it shows what it is told.
class IWorkspaceView : public IStageView, public ITransportView, public IStudyView, public ICommandsView {
 public:
  virtual void ShowVectorColor(Colour colour) = 0;
  virtual void HideVectorColor() = 0;
  /// Presses one colour button, 0 to 11; -1 releases all.
  virtual void SetColorButton(int index) = 0;
};

}  // namespace kinalyx
