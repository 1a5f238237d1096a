#pragma once

#include "core/MailSettings.h"
#include "core/Settings.h"
#include "distribution/send/SendWish.h"
#include "distribution/web/SendPlan.h"

namespace kinalyx {

/// What a wish of the Send Lessons page means with these settings. Fails, in words for the user, where the address of
/// the web space cannot be read; what else is missing PlanSend tells.
Result<SendOrder> OrderOf(const SendWish& wish, const FilesToSend& files, const Settings& settings,
                          const MailSettings& mail);

}  // namespace kinalyx
