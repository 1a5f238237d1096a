#include "distribution/web/OrderOf.h"

#include <fmt/format.h>

#include <chrono>
#include <ctime>

#include "core/Vocabulary.h"
#include "distribution/mail/Accounts.h"
#include "platform/files/Folders.h"

namespace kinalyx {
namespace {

/// By the calendar of this place.
std::string Today() {
  const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
  std::tm local{};
  localtime_r(&now, &local);
  return fmt::format("{:04}-{:02}-{:02}", local.tm_year + 1900, local.tm_mon + 1, local.tm_mday);
}

}  // namespace

Result<SendOrder> OrderOf(const SendWish& wish, const FilesToSend& files, const Settings& settings,
                          const MailSettings& mail) {
  SendOrder order;
  order.mode = wish.mode == SendMode::Web ? SendOrder::Mode::Web : SendOrder::Mode::Email;
  order.files = files.Files();
  order.coach = settings.UserName;
  order.company = settings.CompanyName;
  order.student = wish.student;
  order.noun = Vocabulary(settings).noun();
  order.addresses = wish.addresses;
  order.webAddress = mail.WebAddress;
  if (settings.Logo) order.logo = settings.LogoName;
  order.today = Today();
  order.workFolder = JoinPath(settings.DataPath, "capture/WMVTemp");
  if (const Outcome ready = ReadyToSend(mail); !ready) order.mailMissing = ready.Why();
  order.mailServer = OutgoingServer(mail);
  order.message = NewMessage(mail);
  if (order.mode == SendOrder::Mode::Web && mail.WebConfigured()) {
    auto space = WebSpace(mail);
    if (!space) return space.Failure();
    order.space = *space;
  }
  return order;
}

}  // namespace kinalyx
