#include "TestServers.h"

#include <charconv>
#include <chrono>

namespace kinalyx::test {
namespace {

constexpr int kStartSeconds = 60;

/// Reads lines until one is enough, or the program is over.
template <typename Enough>
void Listen(ChildProcess& process, Enough enough) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(kStartSeconds);
  bool heard = false;
  const auto line = [&](std::string_view text) { heard = heard || enough(text); };
  while (!heard && std::chrono::steady_clock::now() < end && process.Poll(50, line)) {
  }
}

}  // namespace

TestServer::TestServer(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), KINALYX_TEST_SERVERS);
  auto started = ChildProcess::Start("/usr/bin/python3", arguments);
  if (!started) {
    missing_ = "missing python3";
    return;
  }
  process_ = std::move(*started);
  Listen(*process_, [this](std::string_view line) {
    constexpr std::string_view kPort = "port ", kMissing = "missing ";
    if (line.starts_with(kPort)) std::from_chars(line.data() + kPort.size(), line.data() + line.size(), port_);
    if (line.starts_with(kMissing)) missing_ = line;
    return line.starts_with(kPort) || line.starts_with(kMissing);
  });
  if (port_ == 0 && missing_.empty()) trouble_ = process_->Errors();
}

TestCertificate::TestCertificate(std::string_view name) {
  const std::string host(name);
  auto made = ChildProcess::Start(
      "/usr/bin/openssl",
      {"req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes", "-days", "2", "-subj",
       "/CN=" + host, "-addext", "subjectAltName=DNS:" + host, "-keyout", Key(), "-out", Certificate()});
  if (!made) return;
  Listen(**made, [](std::string_view) { return false; });
  made_ = (*made)->ExitCode() == 0;
}

}  // namespace kinalyx::test
