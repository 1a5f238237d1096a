#include "platform/host/EndSignals.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <csignal>
#include <string>
#include <vector>

namespace kinalyx::test {
namespace {

TEST(EndSignals, ASignalIsToldInTheEventLoopAndNotAfterwards) {
  int argc = 1;
  std::string name = "test";
  char* argv[2] = {name.data(), nullptr};
  const QApplication application(argc, argv);
  std::vector<EndSignals::Why> told;
  const auto pump = [&](std::size_t wanted) {
    QElapsedTimer clock;
    clock.start();
    while (told.size() < wanted && clock.elapsed() < 10'000) QApplication::processEvents(QEventLoop::AllEvents, 10);
  };
  {
    const EndSignals ending([&](EndSignals::Why why) { told.push_back(why); });
    ::raise(SIGTERM);
    EXPECT_TRUE(told.empty()) << "never in the middle of something";
    pump(1);
    ::raise(SIGHUP);
    pump(2);
  }
  EXPECT_EQ(told, (std::vector{EndSignals::Why::Told, EndSignals::Why::Told}));
  struct sigaction now {};
  ::sigaction(SIGTERM, nullptr, &now);
  EXPECT_EQ(now.sa_handler, SIG_DFL);
}

}  // namespace
}  // namespace kinalyx::test
