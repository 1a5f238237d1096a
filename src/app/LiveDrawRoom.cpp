#include "app/LiveDrawRoom.h"

namespace kinalyx {

LiveDrawRoom::LiveDrawRoom(Parts parts) : parts_(parts) {}
LiveDrawRoom::~LiveDrawRoom() = default;

void LiveDrawRoom::Show() {
  if (!form_) {
    session_ = std::make_unique<LiveDrawSession>(
        LiveDrawSession::Parts{.host = parts_.host,
                               .settings = parts_.settings,
                               .setup = parts_.capture.Setup(),
                               .sounds = parts_.capture.Sounds(),
                               .makeGraph = [this](IGraphEvents& events) { return parts_.capture.MakeGraph(events); }});
    session_->Camera().GiveAway(away_);
    form_ = std::make_unique<LiveDrawForm>(LiveDrawForm::Parts{.host = parts_.host,
                                                               .settings = parts_.settings,
                                                               .setup = parts_.capture.Setup(),
                                                               .session = *session_,
                                                               .ways = parts_.ways});
  }
  if (form_->isMinimized()) form_->showNormal();
  form_->show();
  form_->raise();
  form_->activateWindow();
}

void LiveDrawRoom::GiveCameraAway(bool away) {
  away_ = away;
  if (session_) session_->Camera().GiveAway(away);
}

void LiveDrawRoom::Close() {
  if (form_) form_->close();
}

}  // namespace kinalyx
