#pragma once

#include <stdexcept>
#include <string>

#include "Bench.h"
#include "Nowhere.h"
#include "platform/files/Log.h"
#include "platform/host/QtHost.h"
#include "support/TestVideos.h"
#include "video/PlayScheduler.h"
#include "workspace/forms/AnalysisForm.h"

namespace kinalyx::bench {

/// The real window of the analysis section, shown, with settings of its own.
class BenchStage {
 public:
  /// @param name    of the folder of its settings
  /// @param layout  number of the layout with which it opens
  BenchStage(const std::string& name, const std::string& layout, QSize size)
      : settings_(*host_, ScratchFolder() + "/" + name, ScratchFolder()),
        form_(*host_, Prepared(settings_, layout), players_, remembered_, nowhere_) {
    form_.resize(size);
    form_.show();
  }

  AnalysisForm& Form() { return form_; }
  AnalysisWorkspace& Section() { return form_.Section(); }
  IHost& Host() { return *host_; }
  const Settings& OwnSettings() const { return settings_; }
  /// Throws when the video cannot be opened.
  void Open(int slot, const std::string& path) {
    if (!Section().Videos().OpenVideo(slot, path)) throw std::runtime_error("a video could not be opened");
  }

 private:
  static Settings& Prepared(Settings& settings, const std::string& layout) {
    settings.LoadSettings();
    settings.ScreenMode = layout;
    return settings;
  }

  Log log_{ScratchFolder() + "/bench.log"};
  const std::unique_ptr<IHost> host_ = MakeQtHost(log_);
  Settings settings_;
  PlayScheduler scheduler_{*host_};
  PlayerServices players_{*host_, scheduler_};
  LastStudentInfo remembered_;
  Nowhere nowhere_;
  AnalysisForm form_;
};

/// A video of 640 x 480 with this many pictures, `rate` a second; throws when it cannot be made.
inline std::string StageVideo(int pictures, int rate = 30) {
  test::TestVideo video = test::MjpegVideo(pictures);
  video.format.width = 640;
  video.format.height = 480;
  video.format.rate = rate;
  std::string path = test::MakeTestVideo(video);
  if (path.empty()) throw std::runtime_error("the test video could not be made");
  return path;
}

}  // namespace kinalyx::bench
