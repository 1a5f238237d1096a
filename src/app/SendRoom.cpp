#include "app/SendRoom.h"

#include "distribution/disc/forms/DiscPanel.h"
#include "distribution/send/forms/SendPage.h"
#include "distribution/web/OrderOf.h"
#include "distribution/web/forms/FTPUploadForm.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"

namespace kinalyx {

SendRoom::SendRoom(Parts parts) : parts_(parts) {}

SendRoom::~SendRoom() = default;

SendPage* SendRoom::MakePage() {
  auto* page = new SendPage(parts_.host, parts_.settings, parts_.remembered, files_);
  QObject::connect(page, &SendPage::SendWanted, page, [this](const SendWish& wish) { Send(wish); });
  disc_ = new DiscPanel(parts_.host, parts_.settings, files_, drives_,
                        {.ViewerFolder = JoinPath(parts_.settings.AppPath, "Bin"),
                         .WorkFolder = JoinPath(parts_.settings.DataPath, "capture/DiscTemp")});
  page->SetDiscPanel(disc_);
  QObject::connect(page, &SendPage::FilesChanged, disc_, &DiscPanel::FilesChanged);
  return page;
}

void SendRoom::Send(const SendWish& wish) {
  auto order = OrderOf(wish, files_, parts_.settings, parts_.mail);
  if (!order) return parts_.host.Message(MessageKind::Information, "", order.Why());
  if (!form_) form_ = new FTPUploadForm(parts_.host, std::make_shared<ISendServers>(), &parts_.over);
  form_->Open(std::move(*order));
}

bool SendRoom::MayClose() {
  if (disc_ && !disc_->MayClose()) return false;
  return !form_ || !form_->Busy() ||
         parts_.host.Question("", Tr("Videos are still being sent. Do you want to give that up?"));
}

void SendRoom::Close() {
  if (form_) form_->GiveUp();
}

}  // namespace kinalyx
