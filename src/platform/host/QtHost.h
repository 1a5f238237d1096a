#pragma once

#include <memory>

#include "platform/host/Host.h"

namespace kinalyx {

class Log;

/// The host of the running program, over Qt's event loop and dialogs. Make it after the
/// application object and let it go before that.
/// @param log  takes what is noted, and Qt's own warnings, which go to the console as well; it outlives the host
std::unique_ptr<IHost> MakeQtHost(Log& log);

}  // namespace kinalyx
