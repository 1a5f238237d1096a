#include "video/PlayerNews.h"

#include "video/AVIControl.h"

namespace kinalyx {

void PlayerNews::TellAll() {
  // What is told may move players, which tell the rest of the list, and their own news behind it, before
  // they return here.
  while (!notes_.empty()) {
    const Note note = notes_.front();
    notes_.pop_front();
    note.player->Tell(note.kind, note.frame);
  }
}

}  // namespace kinalyx
