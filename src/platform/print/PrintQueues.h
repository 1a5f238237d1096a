#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/files/Result.h"

namespace kinalyx {

// The print queues of the machine and its network. A server that does not answer is not waited for longer than said.

/// White edges of a printer's paper, hundredths of a millimetre.
struct QueueMargins {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
};

/// The usual one first.
std::vector<std::string> QueueNames();
/// What a printer leaves white on paper of this size, hundredths of a millimetre; nothing where it does not say.
std::optional<QueueMargins> MarginsOf(const std::string& queue, int width, int height);
/// Hands a PDF file, of paper of this size in hundredths of a millimetre, to a queue.
Outcome SendToQueue(const std::string& queue, const std::string& file, const std::string& title, int width, int height,
                    int copies);

}  // namespace kinalyx
