#include "app/MirrorRoom.h"

#include <chrono>
#include <utility>

#include "app/CaptureRoom.h"
#include "capture/mirror/forms/MirrorForm.h"
#include "platform/files/Tr.h"

namespace kinalyx {

MirrorRoom::MirrorRoom(Parts parts) : parts_(std::move(parts)) {}
MirrorRoom::~MirrorRoom() = default;

void MirrorRoom::Open() {
  if (!form_) {
    form_ = std::make_unique<MirrorForm>(MirrorForm::Parts{
        .host = parts_.host,
        .settings = parts_.settings,
        .setup = parts_.capture.Setup(),
        .naming = parts_.capture.Naming(),
        .remembered = parts_.remembered,
        .post = parts_.capture.Post(),
        .now = [] { return std::chrono::steady_clock::now().time_since_epoch() / std::chrono::nanoseconds(1); },
        .makeGraph = [this](IGraphEvents& events) { return parts_.capture.MakeGraph(events); }});
    QObject::connect(form_.get(), &MirrorForm::OpenChanged, form_.get(), [this](bool open) {
      if (!open) parts_.closed();
    });
    form_->Session().Lend(lent_);
  }
  form_->Open();
}

bool MirrorRoom::IsOpen() const { return form_ && form_->Session().IsOpen(); }

void MirrorRoom::Lend(bool lent) {
  lent_ = lent;
  if (form_) form_->Session().Lend(lent);
}

bool MirrorRoom::MayClose() {
  if (!form_ || !form_->Session().Keeping()) return true;
  return parts_.host.Question("", Tr("The last video is still being saved. Do you want to go on all the same?"));
}

void MirrorRoom::Close() {
  if (form_) form_->close();
}

}  // namespace kinalyx
