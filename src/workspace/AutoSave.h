#pragma once

#include "core/Settings.h"
#include "platform/host/Host.h"
#include "workspace/Workspace.h"

namespace kinalyx {

/// Writes what was drawn and noted as soon as the user's hands rest, so that a power cut costs a second
/// of work and not the lesson.
class AutoSave {
 public:
  AutoSave(IHost& host, const Settings& settings, Workspace& workspace)
      : host_(host), settings_(settings), workspace_(workspace) {}

  /// Something that belongs into a sidecar may have changed.
  void Changed();

 private:
  void Save();
  bool SaveSlot(int slot);

  IHost& host_;
  const Settings& settings_;
  Workspace& workspace_;
  HostTimer rest_;
};

}  // namespace kinalyx
