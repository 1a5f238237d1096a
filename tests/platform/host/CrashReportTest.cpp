#include "platform/host/CrashReport.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <string>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/TempFolder.h"

namespace kinalyx::test {
namespace {

namespace fs = std::filesystem;

/// Crashes a process of its own; the signal by which it died.
int Crash(const std::string& folder, const std::function<void()>& crash) {
  const pid_t child = ::fork();
  if (child == 0) {
    const rlimit none{0, 0};
    ::setrlimit(RLIMIT_CORE, &none);
    ::close(STDERR_FILENO);
    ReportCrashes(folder, "Kinalyx 1.2.3");
    crash();
    ::_exit(0);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
}

TEST(CrashReport, ACrashLeavesAReportThatTheNextStartTellsOfOnce) {
  TempFolder temp;
  const std::string folder = temp.Path() + "/crashes";
  EXPECT_FALSE(TakeCrashReport(folder));
  EXPECT_EQ(Crash(folder, [] {}), 0);
  EXPECT_FALSE(fs::exists(folder)) << "nothing went wrong";

  EXPECT_EQ(Crash(folder, [] { ::raise(SIGSEGV); }), SIGSEGV);
  const auto report = TakeCrashReport(folder);
  ASSERT_TRUE(report);
  const std::string text = BytesOf(*report);
  EXPECT_NE(text.find("Program: Kinalyx 1.2.3\nSystem: "), std::string::npos) << text;
  EXPECT_NE(text.find("Signal: 11\n"), std::string::npos) << text;
  EXPECT_NE(text.find("test_platform_host+0x"), std::string::npos) << "the stack: " << text;
  EXPECT_EQ(text.find(temp.Path()), std::string::npos) << "no folder of the user: " << text;
  EXPECT_FALSE(TakeCrashReport(folder)) << "told once";
}

TEST(CrashReport, AnExceptionSaysWhatItWasWithoutNamingFiles) {
  TempFolder temp;
  const std::string folder = temp.Path() + "/crashes";
  const std::function<void()> fails = [] { throw std::runtime_error("no frame in '/home/anna/Jan Nowak.avi' today"); };
  EXPECT_EQ(Crash(folder, [&]() noexcept { fails(); }), SIGABRT);
  const auto report = TakeCrashReport(folder);
  ASSERT_TRUE(report);
  EXPECT_NE(BytesOf(*report).find("Exception: no frame in '...' today\n"), std::string::npos) << BytesOf(*report);
}

TEST(CrashReport, OnlyTheNewestReportsAreKept) {
  TempFolder temp;
  for (int day = 10; day < 25; ++day)
    std::ofstream(temp.Path() + "/crash-202611" + std::to_string(day) + "-120000.txt") << "report";
  EXPECT_EQ(TakeCrashReport(temp.Path()), temp.Path() + "/crash-20261124-120000.txt");
  EXPECT_FALSE(fs::exists(temp.Path() + "/crash-20261114-120000.txt"));
  EXPECT_TRUE(fs::exists(temp.Path() + "/crash-20261115-120000.txt"));
}

}  // namespace
}  // namespace kinalyx::test
