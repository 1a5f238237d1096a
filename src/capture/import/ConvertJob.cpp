#include "capture/import/ConvertJob.h"

#include <algorithm>
#include <cmath>

#include "capture/import/ConversionTemplate.h"
#include "capture/import/ImportFiles.h"
#include "library/Sidecar.h"
#include "library/Study.h"
#include "platform/files/Folders.h"
#include "platform/files/PartFiles.h"
#include "platform/files/Tr.h"
#include "platform/media/VideoFile.h"

namespace kinalyx {
namespace {

constexpr const char* kTape = "dvsd";

/// True for a shape of picture that "wide" would squeeze or stretch.
bool IsNeitherWideNorUsual(const VideoInfo& video) {
  const double shape = static_cast<double>(video.width) / std::max(1, video.height);
  return shape > 1.5 && std::abs(shape - 16.0 / 9) > 0.02;
}

/// The first sidecar of a new video. What has two fields without being tape has them shown in the order in which they
/// were taken, and what has kept its shape is shown in it.
Outcome WriteFirstSidecar(const std::string& video, const VideoInfo& source, const ImportOrder& order) {
  const auto made = ReadVideoInfo(video);
  VideoInfo told = source;  // of the shape that it had before it became tape
  told.compressor = made ? made->compressor : "";
  const std::string path = SidecarPath(video);
  if (const Outcome written = WriteImportedVideoData(path, told, order.reverseFields); !written) return written;
  const bool odd = IsNeitherWideNorUsual(source);
  if (told.compressor == kTape || !(source.interlaced || odd)) return Outcome();
  SlotData data = ReadVideoData(path, told, {});
  if (odd) data.Wide = false;
  if (source.interlaced) {
    data.SplitFields = true;
    data.ReverseFields = !source.topFieldFirst;
  }
  const auto kept = WriteVideoData(path, data);
  return kept ? Outcome() : kept.Failure();
}

/// Slow motion that tells how it was taken: the new video has no place for that, and speeds go by it.
Outcome KeepTrueRate(const std::string& video, const VideoInfo& source) {
  if (source.captureRate <= 0) return Outcome();
  SlotData data;
  data.Study.TrueRate = source.captureRate;
  return WriteStudy(StudyPath(video), data);
}

}  // namespace

bool ConvertJob::End(State state, const std::string& error) {
  state_ = state;
  error_ = error;
  conversion_.reset();
  return false;
}

bool ConvertJob::Begin() {
  const auto info = ReadVideoInfo(order_.source);
  if (!info) return End(State::Unreadable, Tr("The file is no video that can be read."));
  source_ = *info;
  if (!MakeFolder(FolderOf(order_.destination)))
    return End(State::NotSaved, Tr("The folder {} cannot be made.", FolderOf(order_.destination)));
  RemoveDeadParts(FolderOf(order_.destination));

  ConversionRequest request{order_.source, order_.destination};
  request.startMs = order_.startMs;
  request.endMs = order_.endMs;
  const ConversionTemplate chosen =
      ChooseTemplate(LastName(order_.source), source_.compressor, source_.width, order_.edge);
  if (!order_.keepSize) {
    request.codec = chosen.codec;
    request.sharpen = chosen.sharpen;
  }
  auto opened = Conversion::Open(request);
  if (opened) {
    conversion_ = std::move(*opened);
    return true;
  }
  const bool unreadable =
      opened.Kind() == Fault::NotFound || opened.Kind() == Fault::NoMedia || opened.Kind() == Fault::NoFrames;
  return End(unreadable ? State::Unreadable : State::NotSaved, opened.Why());
}

bool ConvertJob::Step() {
  if (state_ != State::Running) return false;
  if (!conversion_) return Begin();
  switch (conversion_->Step()) {
    case Conversion::State::Running: return true;
    case Conversion::State::Done: Finish(); return false;
    case Conversion::State::Failed: break;
  }
  const std::string why = conversion_->Error();
  return End(State::NotSaved, why);
}

void ConvertJob::Finish() {
  conversion_.reset();
  // That it was written is not taken on trust.
  if (!FileExists(order_.destination)) {
    End(State::NotSaved, Tr("The new video has gone."));
    return;
  }
  state_ = State::Saved;
  if (const Outcome written = WriteFirstSidecar(order_.destination, source_, order_); !written)
    remark_ = Tr("How its fields are shown could not be stored: {}", written.Why());
  if (const Outcome kept = KeepTrueRate(order_.destination, source_); !kept)
    remark_ = Tr("How fast it was taken could not be stored: {}", kept.Why());
  if (!order_.moveSource) return;
  const auto moved = MoveToConverted(order_.source);
  if (moved) movedTo_ = *moved;
  else remark_ = moved.Why();
}

void ConvertJob::Cancel() {
  if (state_ == State::Running) End(State::Cancelled, {});
}

JobProgress ConvertJob::Progress() const {
  const double part = conversion_ ? conversion_->Part() : state_ == State::Saved ? 1 : 0;
  return {state_ == State::Saved ? 1 : 0, 1, part, LastName(order_.source)};
}

}  // namespace kinalyx
