#pragma once

#include <memory>

#include "capture/CaptureSetup.h"
#include "capture/VideoNaming.h"
#include "capture/forms/CapturePage.h"

namespace kinalyx {

class CaptureSection;
class DeviceList;
class IPost;
class IVoiceRecorder;

/// The capture side of the program: the devices of the machine, the choices, the names, and the page and the section
/// of Program Setup that show them. The devices are looked for from now on, in a thread of their own.
class CaptureRoom {
 public:
  struct Parts {
    PlayerServices& services;
    Settings& settings;
    ProfileFields& fields;
    LastStudentInfo& remembered;
    ICaptureWays& ways;
  };
  /// All outlives the room; the widgets that it makes belong to who takes them and go first.
  explicit CaptureRoom(Parts parts);
  ~CaptureRoom();

  CapturePage* MakePage();
  CaptureSection* MakeSection();
  std::unique_ptr<IVoiceRecorder> MakeVoiceRecorder();
  /// A graph of these devices; its events outlive it.
  std::unique_ptr<IGraph> MakeGraph(IGraphEvents& events) const;
  IShortSounds& Sounds() { return *sounds_; }
  CaptureSetup& Setup() { return setup_; }
  VideoNaming& Naming() { return naming_; }
  const std::shared_ptr<IPost>& Post() const { return post_; }

 private:
  Parts parts_;
  std::shared_ptr<IPost> post_;
  std::unique_ptr<DeviceList> devices_;
  CaptureSetup setup_;
  std::unique_ptr<IShortSounds> sounds_;
  VideoNaming naming_;
};

}  // namespace kinalyx
