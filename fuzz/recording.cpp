// Takes any bytes for what a killed program has left of a recording: mended, it holds what was counted, and is mended
// once.

#include <algorithm>
#include <string_view>
#include <vector>

#include "InputFile.h"
#include "platform/files/FileStore.h"
#include "platform/files/Folders.h"
#include "platform/media/RecordingFile.h"
#include "platform/media/VideoFile.h"

namespace {

/// What stands before the pictures of every recording.
std::vector<std::uint8_t> HeadOfRecording(const std::string& path) {
  using namespace kinalyx;
  KillFile(path);
  const auto file = RecordingFile::Create(path, {RecordingFormat::Codec::Mjpeg, 64, 48, 30});
  fuzz::Require(static_cast<bool>(file));
  return *ReadWholeFile(path);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  using namespace kinalyx;
  static const fuzz::InputFolder folder;
  static const std::vector<std::uint8_t> head = HeadOfRecording(folder.Path("head"));
  const bool ownHead = std::string_view(reinterpret_cast<const char*>(bytes), count).starts_with("RIFF");
  std::vector<std::uint8_t> whole = ownHead ? std::vector<std::uint8_t>() : head;
  whole.insert(whole.end(), bytes, bytes + count);
  const std::string path = folder.Write("x.avi", whole.data(), whole.size());
  const bool unfinished = IsUnfinishedRecording(path);
  const auto mended = MendRecording(path);
  if (!mended) {
    fuzz::Require(mended.Kind() != Fault::None && !mended.Why().empty());
    fuzz::Require(ReadWholeFile(path) == whole);
    return 0;
  }
  fuzz::Require(unfinished && mended->pictures > 0 && mended->lost >= 0 && mended->rate > 0);
  fuzz::Require(!IsUnfinishedRecording(path) && !MendRecording(path));
  // An empty place behind each picture, all through, makes one frame with it; and behind heads that were damaged in
  // several places at once the reader may see fewer pictures than the index names, never more.
  const auto info = ReadVideoInfo(path);
  fuzz::Require(ownHead || (info && info->frameCount > 0 && info->frameCount <= mended->pictures + mended->lost));
  return 0;
}
