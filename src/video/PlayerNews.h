#pragma once

#include <deque>

namespace kinalyx {

class AVIControl;

/// What players have to tell their owners. It is kept while a player is at work and told, in the order in
/// which it happened, when the outermost operation has returned: who is told may call any operation of any
/// player, and may destroy it.
class PlayerNews {
 public:
  enum class Kind { Signal, Notify, StrobeEnded };

  /// While one of these lives, nothing is told. The last one that goes tells all.
  class Hold {
   public:
    explicit Hold(PlayerNews& news) : news_(news) { ++news_.held_; }
    ~Hold() {
      if (--news_.held_ == 0) news_.TellAll();
    }
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;

   private:
    PlayerNews& news_;
  };

  /// Keeps a note for the player's sink; `frame` as the sink is to get it.
  void Post(AVIControl& player, Kind kind, int frame) { notes_.push_back({&player, kind, frame}); }
  /// The player goes, and what it had to tell with it.
  void Forget(const AVIControl& player) {
    std::erase_if(notes_, [&](const Note& note) { return note.player == &player; });
  }

 private:
  struct Note {
    AVIControl* player;
    Kind kind;
    int frame;
  };

  void TellAll();

  std::deque<Note> notes_;
  int held_ = 0;
};

}  // namespace kinalyx
