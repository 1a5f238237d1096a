#pragma once

#include <turbojpeg.h>

#include <algorithm>
#include <cstring>
#include <deque>
#include <filesystem>
#include <fstream>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "capture/Fakes.h"
#include "platform/graph/IGraph.h"

namespace kinalyx::test {

inline constexpr std::int64_t kMs = 1'000'000;
inline constexpr std::int64_t kSecond = 1000 * kMs;

/// A picture that tells its number by how bright it is, 0 to 249.
inline PackedPicture NumberedPicture(int number, std::int64_t ns) {
  constexpr int kWidth = 64, kHeight = 48;
  const std::vector<unsigned char> pixels(static_cast<std::size_t>(kWidth * kHeight * 4),
                                          static_cast<unsigned char>(number % 250));
  unsigned char* made = nullptr;
  unsigned long size = 0;
  void* packer = tjInitCompress();
  tjCompress2(packer, pixels.data(), kWidth, 0, kHeight, TJPF_BGRX, &made, &size, TJSAMP_420, 95, 0);
  const std::shared_ptr<std::byte[]> bytes(new std::byte[size]);
  std::memcpy(bytes.get(), made, size);
  tjFree(made);
  tjDestroy(packer);
  PackedPicture picture;
  picture.format.width = kWidth;
  picture.format.height = kHeight;
  picture.ns = ns;
  picture.bytes = std::shared_ptr<const std::byte>(bytes, bytes.get());
  picture.size = size;
  return picture;
}

inline int NumberOf(const LivePicture& picture) {
  return picture.pixels ? picture.pixels.get()[picture.stride * (picture.height / 2) + picture.width / 2 * 4] : -1;
}

/// A recorder whose camera is the test.
class FakeRecorder final : public IBlockRecordingFilter {
 public:
  struct Writer final : IBlockWriter {
    std::vector<WrittenBlock> blocks;
    bool slow = false;  ///< the disk is still at it
    bool Writing() const override { return slow; }
    std::vector<WrittenBlock> TakeWritten() override {
      return slow ? std::vector<WrittenBlock>() : std::exchange(blocks, {});
    }
  };

  std::deque<PackedPicture> pictures;
  double remembered = 0;
  std::int64_t bound = 0;
  std::string base;                                ///< of the files of its blocks
  std::vector<std::vector<std::int64_t>> written;  ///< the stamps of each block
  std::shared_ptr<Writer> writer = std::make_shared<Writer>();
  std::string fault;    ///< of the disk
  bool cutOff = false;  ///< and the file has its first pictures all the same

  void BlockRecordingSetStart(double) override {}
  void BlockRecordingSetEnd(double) override {}
  double EndOffset() const override { return 0; }
  std::shared_ptr<IBlockWriter> Blocks() const override { return writer; }
  void Remember(double seconds) override { remembered = seconds; }
  void SetBound(std::int64_t bytes) override { bound = bytes; }
  RingTally Ring() const override {
    RingTally tally;
    if (!pictures.empty()) tally.seconds = static_cast<double>(pictures.back().ns - pictures.front().ns) / 1e9;
    for (const PackedPicture& picture : pictures) tally.bytes += static_cast<std::int64_t>(picture.size);
    tally.bound = bound;
    return tally;
  }
  std::optional<PackedPicture> PictureAt(std::int64_t ns) const override {
    const auto after = std::ranges::upper_bound(pictures, ns, {}, &PackedPicture::ns);
    if (after == pictures.begin()) return std::nullopt;
    return *std::prev(after);
  }
  std::vector<PackedPicture> Pictures(std::int64_t from, std::int64_t to) const override {
    return {std::ranges::lower_bound(pictures, from, {}, &PackedPicture::ns),
            std::ranges::upper_bound(pictures, to, {}, &PackedPicture::ns)};
  }
  void WritePictures(std::vector<PackedPicture> given) override {
    std::vector<std::int64_t>& stamps = written.emplace_back();
    for (const PackedPicture& picture : given) stamps.push_back(picture.ns);
    WrittenBlock block;
    block.shot = static_cast<int>(written.size());
    block.path = BlockPath(base, block.shot);
    block.tally.pictures = static_cast<std::int64_t>(given.size());
    block.tally.fault = fault;
    if (fault.empty() || cutOff) {
      std::filesystem::create_directories(std::filesystem::path(block.path).parent_path());
      std::ofstream(block.path) << "pictures";
    }
    writer->blocks.push_back(block);
  }
};

/// A graph with two recorders, which outlives its owner's calls in what it was told.
class FakeMirrorGraph final : public IGraph {
 public:
  struct Told {
    std::string loaded;
    std::array<std::string, 2> devices;
    int runs = 0;
    bool running = false;
    std::array<FakeRecorder, 2> recorders;
  };
  explicit FakeMirrorGraph(std::shared_ptr<Told> told) : told_(std::move(told)) { *told_ = {}; }
  ~FakeMirrorGraph() override { told_->running = false; }

  Outcome GraphXmlLoad(std::string_view text) override {
    told_->loaded = text;
    for (FakeRecorder& recorder : told_->recorders) recorder = {};
    return {};
  }
  Outcome GraphSetDevice(std::string_view label, std::string_view device) override {
    told_->devices[label.ends_with('2')] = device;
    return {};
  }
  Outcome GraphSetVideoFormat(std::string_view, int, int, std::string_view) override { return {}; }
  Outcome GraphSetFrameTime(std::string_view, double) override { return {}; }
  Outcome GraphSetAudioPin(int) override { return {}; }
  Outcome GraphSetFileSource(std::string_view, std::string_view) override { return {}; }
  Outcome GraphSetFileSink(std::string_view label, std::string_view path) override {
    told_->recorders[label.ends_with('2')].base = path;
    return {};
  }
  Outcome GraphRun() override {
    ++told_->runs;
    told_->running = true;
    for (FakeRecorder& recorder : told_->recorders) recorder.pictures.clear();
    return {};
  }
  Outcome GraphStop() override {
    told_->running = false;
    return {};
  }
  void GraphClear() override {}

 protected:
  IGraphFilter* Filter(std::string_view label) override {
    return label.starts_with("MV Block") ? &told_->recorders[label.ends_with('2')] : nullptr;
  }

 private:
  std::shared_ptr<Told> told_;
};

}  // namespace kinalyx::test
