#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "platform/files/Result.h"
#include "platform/media/RecordingTally.h"

namespace kinalyx {

/// A picture of a live graph, on its way to a window: 32 bits a pixel in the order blue, green, red, unused.
struct LivePicture {
  int width = 0;
  int height = 0;
  int stride = 0;                              ///< bytes from one row to the next
  double aspect = 0;                           ///< width by height, as it is to be shown
  std::int64_t takenAt = 0;                    ///< nanoseconds of CLOCK_MONOTONIC at which the camera stamped it
  std::shared_ptr<const std::uint8_t> pixels;  ///< null: nothing has come yet
};

/// A filter of a graph that has a face of its own, beyond its label.
class IGraphFilter {
 public:
  virtual ~IGraphFilter() = default;
};

/// `VMR Input0`: where pictures are seen.
class IRendererFilter : public IGraphFilter {
 public:
  /// The picture that came last. Cheap; any number of them may have been passed over.
  virtual LivePicture Latest() = 0;
  /// The size at which pictures are wanted, in pixels of the screen; they are never made larger than the camera's.
  virtual void WantSize(int width, int height) = 0;
};

/// `MV Trigger Source`: lets pictures through to the recorder, or holds them back.
class ITriggerSourceFilter : public IGraphFilter {
 public:
  /// Armed it lets pictures through from now on, all gates of one graph from the same moment.
  virtual void Arm(bool on) = 0;
};

/// A `SINK`: the file that is written.
class IWriterFilter : public IGraphFilter {
 public:
  /// How far the file under way is, or how the last one went.
  virtual RecordingTally Tally() = 0;
  /// A lesson stands still, and goes on as if nothing had been between. Files of cameras know no pause.
  virtual void Pause(bool /*on*/) {}
};

/// A meter and trigger on a microphone.
class IAudioTriggerFilter : public IGraphFilter {
 public:
  /// Loudness now, 0 silent to 1 full.
  virtual double Level() = 0;
};

/// What a graph tells, from the event loop of the user interface, never from inside a call.
class IGraphEvents {
 public:
  virtual ~IGraphEvents() = default;
  /// The renderer of that label has a new picture; told once until Latest is asked.
  virtual void PictureCame(const std::string& label) = 0;
  /// The source of that label gives nothing any more, or never did: pulled out, busy, no answer, refused.
  /// What was written is closed and kept.
  virtual void SourceFailed(const std::string& label, const std::string& why) = 0;
  /// The file of that sink takes no more, a full disk for one. What was written is closed and kept.
  virtual void SinkFailed(const std::string& label, const std::string& why) = 0;
  /// The renderer of that label cannot show what its camera gives: nothing of it can be decoded. All else goes on, and
  /// PictureCame tells when it shows again.
  virtual void PreviewFailed(const std::string& /*label*/) {}
  /// All sources have come to their end, and the files are closed.
  virtual void EndOfStream() = 0;
};

/// One graph of cameras, microphones, recorders and windows, made from the text of a template and addressed by the
/// labels in it. Calls come from the user-interface thread and never wait for a device, a server or a disk: what
/// takes time goes on in threads of the graph's own, and how it went is told by the events. A device that never
/// answers is left to itself.
class IGraph {
 public:
  virtual ~IGraph() = default;

  /// Replaces the graph. Refused, with the name of what is wrong, where the text is cut, names a class that is not
  /// known, or connects what does not exist; then the graph is empty.
  virtual Outcome GraphXmlLoad(std::string_view text) = 0;
  /// The filter of that label, until the next load or clear; null where there is none or it has no such face.
  template <typename Face>
  Face* GraphFilterByLabel(std::string_view label) {
    return dynamic_cast<Face*>(Filter(label));
  }

  /// Binds a camera or a microphone, by its name in IDevices, to a source.
  virtual Outcome GraphSetDevice(std::string_view label, std::string_view device) = 0;
  /// Size of a source. A camera that has no such size gives the nearest one that it has.
  /// @param format  as in PictureMode, or empty for the best that the camera has at this size
  virtual Outcome GraphSetVideoFormat(std::string_view label, int width, int height, std::string_view format) = 0;
  /// The time of one picture that is wanted of a source, in seconds.
  virtual Outcome GraphSetFrameTime(std::string_view label, double seconds) = 0;
  /// Input line of the microphone.
  virtual Outcome GraphSetAudioPin(int index) = 0;
  virtual Outcome GraphSetFileSource(std::string_view label, std::string_view path) = 0;
  /// The file that the next run writes, or, while the gate before it is shut, that the next arming writes.
  virtual Outcome GraphSetFileSink(std::string_view label, std::string_view path) = 0;

  virtual Outcome GraphRun() = 0;
  /// Stops; files that were being written are closed and whole when this returns, or within two seconds: a disk that
  /// does not answer holds up nobody, and its file is found unfinished at the next start.
  virtual Outcome GraphStop() = 0;
  virtual void GraphClear() = 0;

 protected:
  virtual IGraphFilter* Filter(std::string_view label) = 0;
};

}  // namespace kinalyx
