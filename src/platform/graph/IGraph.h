#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files/Result.h"
#include "platform/graph/PackedPicture.h"
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

/// `Audio Trigger`: a meter on a microphone, which fires when it hears an impact.
class IAudioTriggerFilter : public IGraphFilter {
 public:
  /// Loudness now, as the trigger hears it: 0 silent to 1 full, by decibels, see ImpactDetector::LevelOf.
  virtual double Level() = 0;
  /// How loud an impact must be to fire, as Level counts; 1 and more: none is.
  virtual void SetThreshold(double /*level*/) {}
  /// How sensitive it is: what the microphone gives is taken that many times.
  virtual void SetGain(double /*gain*/) {}
};

/// `MV Switch`: fires by hand.
class ISwitchFilter : public IGraphFilter {
 public:
  /// @param ns  the moment that is meant, nanoseconds of CLOCK_MONOTONIC; 0: now
  /// @return  false while the block of the trigger before is not over
  virtual bool Fire(std::int64_t ns) = 0;
};

/// How much a block recorder remembers.
struct RingTally {
  double seconds = 0;
  std::int64_t bytes = 0;
  std::int64_t bound = 0;  ///< bytes that it never takes more than; then it remembers less
};

/// What one block recorder has written of one trigger.
struct WrittenBlock {
  std::string path;  ///< of its own; no file where no picture came
  int shot = 0;      ///< counts the triggers of a run from 1: two cameras' files of one number belong together
  std::int64_t triggerNs = 0;  ///< nanoseconds of CLOCK_MONOTONIC; 0 where none fired
  RecordingTally tally;
};

/// The blocks of one run of a block recorder. They are written to their end also when the graph has been stopped, or
/// is another one: a slow disk may take a while. Any thread.
class IBlockWriter {
 public:
  virtual ~IBlockWriter() = default;
  /// A block is under way: its window is not over, or it is still being written.
  virtual bool Writing() const = 0;
  /// The blocks whose files have been closed since it was asked last.
  virtual std::vector<WrittenBlock> TakeWritten() = 0;
};

/// `MV Block Recording`: remembers the pictures of the last seconds as the camera gave them, and writes those around
/// each trigger into a file of their own, see GraphSetFileSink. It goes on remembering meanwhile: the next trigger
/// counts as soon as the window of the one before is over, also when that is still being written.
class IBlockRecordingFilter : public IGraphFilter {
 public:
  /// The window of the triggers to come, in seconds from the trigger: negative is before it.
  virtual void BlockRecordingSetStart(double seconds) = 0;
  virtual void BlockRecordingSetEnd(double seconds) = 0;
  virtual double EndOffset() const = 0;
  /// What writes the blocks of the run under way, or of the last one; null before the first. When the graph is
  /// stopped, windows end with what has come of them.
  virtual std::shared_ptr<IBlockWriter> Blocks() const = 0;
  /// @param seconds  that it remembers at least, whatever the window
  virtual void Remember(double seconds) = 0;
  /// @param bytes  that its pictures may take
  virtual void SetBound(std::int64_t bytes) = 0;
  virtual RingTally Ring() const = 0;
  /// The picture that the camera showed at a moment, nanoseconds of CLOCK_MONOTONIC: the last one that was taken until
  /// then; nothing where it remembers none so old.
  virtual std::optional<PackedPicture> PictureAt(std::int64_t ns) const = 0;
  /// Those taken from one moment to another, both counted.
  virtual std::vector<PackedPicture> Pictures(std::int64_t fromNs, std::int64_t toNs) const = 0;
  /// Writes these pictures as a block, without a trigger. They are ever later ones of one format.
  virtual void WritePictures(std::vector<PackedPicture> pictures) = 0;
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
  /// A trigger has fired, and the block recorders behind it are at work.
  /// @param label  of the trigger
  virtual void TriggerFired(const std::string& /*label*/, int /*shot*/, std::int64_t /*ns*/) {}
  /// The recorder of that label has closed the file of a block, see Blocks.
  virtual void BlockWritten(const std::string& /*label*/) {}
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
  /// The file that the next run writes, or, while the gate before it is shut, that the next arming writes. Behind a
  /// block recorder each block of the run gets a file beside it, named by BlockPath.
  virtual Outcome GraphSetFileSink(std::string_view label, std::string_view path) = 0;

  virtual Outcome GraphRun() = 0;
  /// Stops; files that were being written are closed and whole when this returns, or within two seconds: a disk that
  /// does not answer holds up nobody, and its file is found unfinished at the next start.
  virtual Outcome GraphStop() = 0;
  virtual void GraphClear() = 0;

 protected:
  virtual IGraphFilter* Filter(std::string_view label) = 0;
};

/// "temp1 shot 12.avi" of "temp1.avi".
std::string BlockPath(std::string_view path, int shot);

}  // namespace kinalyx
