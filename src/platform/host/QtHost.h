#pragma once

#include <memory>

#include "platform/host/Host.h"

namespace kinalyx {

/// The host of the running program, over Qt's event loop and dialogs. Make it after the
/// application object and let it go before that.
std::unique_ptr<IHost> MakeQtHost();

}  // namespace kinalyx
