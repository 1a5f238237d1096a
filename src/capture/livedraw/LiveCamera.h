#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "capture/CaptureSetup.h"
#include "capture/livedraw/HotZones.h"
#include "platform/graph/IGraph.h"
#include "platform/host/Host.h"

namespace kinalyx {

/// What a live camera tells.
class ILiveCameraEvents {
 public:
  virtual ~ILiveCameraEvents() = default;
  /// There is a new picture.
  virtual void LivePictureCame() = 0;
  /// Frozen or live, or other words in the place of the picture.
  virtual void CameraChanged() = 0;
  /// Other cameras, or another one chosen.
  virtual void CamerasChanged() = 0;
};

/// The camera of live draw, by its graph: `MVMotionDraw` in a mirror, `MVMotionDraw2` as the others see it. Shows the
/// camera with which the capture page works alone. One that fails, or is pulled out, is asked again until it is there.
class LiveCamera : private IGraphEvents, private ICaptureSetupEvents {
 public:
  using MakeGraph = std::function<std::unique_ptr<IGraph>(IGraphEvents&)>;

  /// All outlive this.
  LiveCamera(IHost& host, CaptureSetup& setup, MakeGraph makeGraph, ILiveCameraEvents& events);
  ~LiveCamera() override;
  LiveCamera(const LiveCamera&) = delete;
  LiveCamera& operator=(const LiveCamera&) = delete;

  void Open();
  void Close();
  /// Somebody else in this program is about to have the cameras: ours is let go, when this returns or a second later,
  /// until they are free again.
  void GiveAway(bool away);
  /// Stops the graph; the picture stays. Nothing happens without one.
  void Freeze();
  void GoLive();
  bool Frozen() const { return frozen_; }
  void SetMirror(bool on);
  /// For what comes.
  bool Mirror() const { return mirror_; }

  /// The one that it shows: 0 or 1, as the choices of the capture page count.
  int Camera() const { return setup_.Use() == CameraUse::Second ? 1 : 0; }
  const CaptureSetup& Setup() const { return setup_; }
  void ChooseCamera(const std::string& name) { setup_.ChooseSource(Camera(), name); }

  /// The last picture; without pixels where there is none, and then Words say why.
  const LivePicture& Picture() const { return picture_; }
  /// It came as the mirror shows it.
  bool PictureMirrored() const { return pictureMirrored_; }
  const std::string& Words() const { return words_; }
  void WantSize(int width, int height);

  void SetZones(const std::vector<HotZone>& zones);
  void SetSensitivity(int sensitivity);
  /// Zones in which motion has begun since this was asked last, and those in which something moves now.
  std::vector<int> TakeFired();
  std::vector<int> Moving() const;

 private:
  /// A zone, and the region that the graph has for it.
  struct Watched {
    HotZone zone;
    int region = 0;
  };

  bool BuildGraph();
  bool BindCamera();
  void StopGraph();
  void Rebuild();
  void DropPicture();
  IRendererFilter* Renderer() { return graph_->GraphFilterByLabel<IRendererFilter>("Video Renderer"); }
  IMotionDetectionFilter* Detector() const;
  std::vector<int> ZonesOf(const std::vector<int>& regions) const;

  // --- IGraphEvents
  void PictureCame(const std::string& label) override;
  void SourceFailed(const std::string& label, const std::string& why) override;
  void SinkFailed(const std::string&, const std::string&) override {}
  void PreviewFailed(const std::string& label) override;
  void EndOfStream() override {}
  // --- ICaptureSetupEvents
  void CaptureChoiceChanged() override;
  void CaptureDevicesChanged() override;

  IHost& host_;
  CaptureSetup& setup_;
  const MakeGraph makeGraph_;
  ILiveCameraEvents& events_;
  std::unique_ptr<IGraph> graph_;
  bool open_ = false;
  bool away_ = false;
  bool running_ = false;
  bool frozen_ = false;
  bool mirror_ = true;
  bool pictureMirrored_ = true;
  CameraChoice bound_;  ///< what the graph was built for
  LivePicture picture_;
  std::string words_;
  PictureSize wanted_;
  std::vector<Watched> zones_;
  int sensitivity_ = IMotionDetectionFilter::kUsualSensitivity;
  HostTimer retry_;
};

}  // namespace kinalyx
