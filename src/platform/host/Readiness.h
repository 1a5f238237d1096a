#pragma once

namespace kinalyx {

/// Tells whoever has started the program that it can be worked with now, in the manner of services: "READY=1" to the
/// datagram socket that NOTIFY_SOCKET names. Nobody who listens, or a socket that is not there: nothing happens.
void TellReady();

}  // namespace kinalyx
