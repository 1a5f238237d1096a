#pragma once

#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <thread>
#include <utility>

#include "platform/media/BudgetShare.h"
#include "platform/media/PassTurn.h"
#include "platform/media/PictureDecoder.h"
#include "platform/media/StandInCoder.h"
#include "platform/media/StandInShelf.h"

namespace kinalyx {

/// Reads a video once in the background and puts a stand-in of every picture on a shelf, so that afterwards
/// any picture can be seen at once. It begins with the key pictures around where the user is, goes on from
/// there, and gives way to everything that somebody waits for.
class StandInPass {
 public:
  /// False for a video of which any picture is decoded as fast as a stand-in.
  static bool IsWorthIt(const Demuxer& source);

  /// `video` is the state of the file, for what is kept on the disk; with null nothing is.
  StandInPass(std::unique_ptr<Demuxer> source, std::unique_ptr<const FileStamp> video, std::string path);
  ~StandInPass();

  /// The user is at this picture.
  void MoveTo(int picture);
  /// Makes the stand-in of a picture that somebody else has decoded. From any thread.
  void Keep(int picture, const AVFrame& frame);
  /// The pixels of the picture on the screen.
  void SetShownSize(int width, int height);
  bool Has(int picture) const { return shelf_.Has(picture); }
  int Nearest(int picture) const { return shelf_.Nearest(picture); }
  /// Null when it is not, or no longer, there.
  StandInShelf::Bytes Get(int picture);
  /// True when nothing is left to be made.
  bool Done() const;

 private:
  /// What is to be done next.
  struct Job {
    bool key = false;  ///< the key picture of the chunk alone
    int chunk = 0;
    int picture = 0;  ///< the first one missing
  };

  void Work();
  std::optional<Job> Choose();
  std::optional<Job> ChooseKey();
  std::optional<Job> JobIn(int chunk);
  int EndOfChunk(int chunk) const;
  void Do(const Job& job);
  void DoKey(int chunk);
  void HandOver(int picture, FrameHandle frame);
  void PackAll();
  void Rest();
  bool VideoIsTheSame() const;

  const PictureIndex& index_;
  const std::string path_;
  const std::unique_ptr<const FileStamp> video_;
  const int pictures_;
  const int videoLongSide_;
  StandInShelf shelf_;
  PassTurn turn_;

  mutable std::mutex mutex_;
  std::condition_variable wake_;
  int focus_ = 0;
  int longSide_;
  bool goingBack_ = false;
  bool done_ = false;
  bool stop_ = false;

  // Decoding goes on while pictures are packed.
  std::deque<std::pair<int, FrameHandle>> toPack_;  ///< the first one is in the packer's hands
  std::set<int> handedOver_;                        ///< those, and what could not be packed
  std::condition_variable handed_;
  std::condition_variable packed_;

  std::mutex keepMutex_;  ///< for who puts something on the shelf
  StandInCoder coder_;

  // The thread's own.
  std::unique_ptr<Demuxer> source_;  ///< until there is a decoder
  std::unique_ptr<PictureDecoder> decoder_;
  bool decoding_ = false;  ///< the decoder holds memory
  std::set<int> lost_;
  std::set<int> keysTried_;
  bool keysAreQuick_ = false;  ///< whoever needs one has it at once
  int chunk_ = -1;             ///< of the job before
  bool changed_ = false;       ///< the file is another one, or cannot be decoded: nothing more is made of it

  BudgetShare share_;
  std::thread packer_;  ///< these two last: they use all the rest
  std::thread thread_;
};

}  // namespace kinalyx
