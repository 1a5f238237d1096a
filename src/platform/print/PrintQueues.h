#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/files/Result.h"

class QTemporaryFile;

namespace kinalyx {

// The print queues of the machine and its network. A server that does not answer is not waited for longer than said.

/// White edges of a printer's paper, hundredths of a millimetre.
struct QueueMargins {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
};

/// The names of the queues, asked for in the background.
class QueueNames {
 public:
  /// What was answered last, the usual one first; nothing until there was an answer. Asks again where the last
  /// question is a while old.
  std::optional<std::vector<std::string>> Known();

 private:
  struct Search;
  using Clock = std::chrono::steady_clock;

  std::shared_ptr<Search> search_;  ///< its own worker holds it too
  Clock::time_point begun_;
  std::optional<std::vector<std::string>> known_;
};

/// What a printer leaves white on paper of this size, hundredths of a millimetre; nothing where it does not say.
std::optional<QueueMargins> MarginsOf(const std::string& queue, int width, int height);
/// Hands a PDF file, of paper of this size in hundredths of a millimetre, to a queue. One that does not answer may
/// still read the file later, which goes when nobody needs it any more.
Outcome SendToQueue(const std::string& queue, std::shared_ptr<QTemporaryFile> file, const std::string& title, int width,
                    int height, int copies);

}  // namespace kinalyx
