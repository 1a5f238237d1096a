#include "platform/print/PrintQueues.h"

#include <cups/cups.h>
#include <fmt/format.h>

#include <QEventLoop>
#include <QTemporaryFile>
#include <QTimer>
#include <algorithm>
#include <atomic>
#include <memory>
#include <thread>
#include <utility>

#include "platform/files/Tr.h"

namespace kinalyx {

namespace {

constexpr std::chrono::seconds kAskAgain{5};
constexpr int kMarginsMs = 3000;
constexpr int kSendMs = 20'000;
constexpr int kLookMs = 5;

/// What `work` gives, or nothing when that takes too long: then it is left to itself, with all that it uses. Windows
/// are painted meanwhile, but take no clicks.
template <typename Work>
auto Within(int milliseconds, Work work) -> std::optional<decltype(work())> {
  struct Shared {
    std::optional<decltype(work())> found;
    std::atomic<bool> over = false;
  };
  const auto shared = std::make_shared<Shared>();
  std::thread([shared, work = std::move(work)] {
    shared->found = work();
    shared->over = true;
  }).detach();
  QEventLoop loop;
  QTimer look, patience;
  QObject::connect(&look, &QTimer::timeout, &loop, [&] {
    if (shared->over) loop.quit();
  });
  QObject::connect(&patience, &QTimer::timeout, &loop, &QEventLoop::quit);
  look.start(kLookMs);
  patience.start(milliseconds);
  loop.exec(QEventLoop::ExcludeUserInputEvents);
  if (!shared->over) return std::nullopt;
  return std::move(shared->found);
}

struct Queues {
  cups_dest_t* list = nullptr;
  int count = 0;

  Queues() { count = cupsGetDests2(CUPS_HTTP_DEFAULT, &list); }
  ~Queues() { cupsFreeDests(count, list); }
  Queues(const Queues&) = delete;
  Queues& operator=(const Queues&) = delete;
};

std::optional<QueueMargins> AskMargins(const std::string& name, int width, int height) {
  const Queues queues;
  cups_dest_t* queue = cupsGetDest(name.c_str(), nullptr, queues.count, queues.list);
  cups_dinfo_t* info = queue ? cupsCopyDestInfo(CUPS_HTTP_DEFAULT, queue) : nullptr;
  if (!info) return std::nullopt;
  cups_size_t size{};
  const bool known = cupsGetDestMediaBySize(CUPS_HTTP_DEFAULT, queue, info, width, height, 0, &size) != 0;
  cupsFreeDestInfo(info);
  if (!known) return std::nullopt;
  return QueueMargins{size.left, size.top, size.right, size.bottom};
}

std::vector<std::string> AskNames() {
  const Queues queues;
  std::vector<std::string> names;
  for (int i = 0; i < queues.count; ++i) {
    const cups_dest_t& queue = queues.list[i];
    if (queue.instance) continue;
    names.insert(queue.is_default ? names.begin() : names.end(), queue.name);
  }
  return names;
}

Outcome Send(const std::string& queue, const std::string& file, const std::string& title,
             const std::vector<std::pair<std::string, std::string>>& wanted) {
  cups_option_t* options = nullptr;
  int count = 0;
  for (const auto& [name, value] : wanted) count = cupsAddOption(name.c_str(), value.c_str(), count, &options);
  const int job = cupsPrintFile2(CUPS_HTTP_DEFAULT, queue.c_str(), file.c_str(), title.c_str(), count, options);
  cupsFreeOptions(count, options);
  if (job != 0) return {};
  return Outcome::Failed(
      Tr("Nothing was printed. The printer \"{}\" does not take the pages: {}", queue, cupsLastErrorString()));
}

}  // namespace

/// `over` is set last, by the worker; what was found is read after it.
struct QueueNames::Search {
  std::vector<std::string> found;
  std::atomic<bool> over = false;
};

std::optional<std::vector<std::string>> QueueNames::Known() {
  if (search_ && search_->over) known_ = std::exchange(search_, nullptr)->found;
  // A server that hangs holds one worker, not one for every question.
  if (!search_ && (!known_ || Clock::now() - begun_ > kAskAgain)) {
    begun_ = Clock::now();
    search_ = std::make_shared<Search>();
    std::thread([search = search_] {
      search->found = AskNames();
      search->over = true;
    }).detach();
  }
  return known_;
}

std::optional<QueueMargins> MarginsOf(const std::string& queue, int width, int height) {
  return Within(kMarginsMs, [=] { return AskMargins(queue, width, height); }).value_or(std::nullopt);
}

Outcome SendToQueue(const std::string& queue, std::shared_ptr<QTemporaryFile> file, const std::string& title, int width,
                    int height, int copies) {
  const std::string media = fmt::format("Custom.{}x{}mm", width / 100.0, height / 100.0);
  const std::vector<std::pair<std::string, std::string>> options{
      {"copies", std::to_string(copies)},
      {"media", width == 21000   ? "A4"
                : width == 21590 ? "Letter"
                                 : media},
      {"print-scaling", "none"},  // the page lies where it belongs already
  };
  const std::string path = file->fileName().toStdString();
  const auto sent = Within(kSendMs, [=, file = std::move(file)] { return Send(queue, path, title, options); });
  return sent ? *sent : Outcome::Failed(Tr("The printer has not answered yet; the pages may still come out."));
}

}  // namespace kinalyx
