#include "platform/host/EndSignals.h"

#include <QGuiApplication>
#include <QObject>
#include <QSessionManager>
#include <QSocketNotifier>
#include <array>
#include <csignal>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace kinalyx {

namespace {

constexpr std::array kSignals{SIGTERM, SIGHUP, SIGINT};

/// A handler knows nothing but what is global.
volatile std::sig_atomic_t gWriteEnd = -1;

void Wake(int) {
  const char byte = 1;
  [[maybe_unused]] const ssize_t written = ::write(gWriteEnd, &byte, 1);
}

}  // namespace

struct EndSignals::State {
  std::function<void(Why)> ends;
  QObject scope;
  std::array<int, 2> pipe{-1, -1};
  std::array<struct sigaction, kSignals.size()> before{};
  std::unique_ptr<QSocketNotifier> notifier;
};

EndSignals::EndSignals(std::function<void(Why)> ends) : state_(std::make_unique<State>()) {
  State& state = *state_;
  state.ends = std::move(ends);
  if (auto* application = qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
    QObject::connect(
        application, &QGuiApplication::commitDataRequest, &state.scope, [&state] { state.ends(Why::SessionEnds); },
        Qt::DirectConnection);
  if (::pipe2(state.pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
  gWriteEnd = state.pipe[1];
  state.notifier = std::make_unique<QSocketNotifier>(state.pipe[0], QSocketNotifier::Read);
  QObject::connect(state.notifier.get(), &QSocketNotifier::activated, &state.scope, [&state] {
    std::array<char, 16> bytes{};
    while (::read(state.pipe[0], bytes.data(), bytes.size()) > 0) {
    }
    state.ends(Why::Told);
  });
  struct sigaction action {};
  action.sa_handler = Wake;
  action.sa_flags = SA_RESTART;
  for (std::size_t i = 0; i < kSignals.size(); ++i) ::sigaction(kSignals[i], &action, &state.before[i]);
}

EndSignals::~EndSignals() {
  if (state_->pipe[0] < 0) return;
  for (std::size_t i = 0; i < kSignals.size(); ++i) ::sigaction(kSignals[i], &state_->before[i], nullptr);
  gWriteEnd = -1;
  state_->notifier.reset();
  for (const int end : state_->pipe) ::close(end);
}

}  // namespace kinalyx
