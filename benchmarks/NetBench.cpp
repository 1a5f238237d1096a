// What it costs to send a large file and a mail full of pictures, against curl's own tool and the same servers.

#include <fmt/format.h>

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "Bench.h"
#include "platform/host/ChildProcess.h"
#include "platform/net/IFileServer.h"
#include "platform/net/IMailSender.h"
#include "support/TestServers.h"

namespace kinalyx::bench {
namespace {

namespace fs = std::filesystem;

constexpr int kRounds = 9;
constexpr int kPatienceMs = 5;
constexpr std::size_t kUploadBytes = 100'000'000;
constexpr int kPictures = 10;
constexpr std::size_t kPictureBytes = 1'000'000;

void WriteNoise(const std::string& path, std::size_t bytes) {
  std::mt19937_64 dice(bytes);
  std::vector<std::uint64_t> noise(bytes / sizeof(std::uint64_t));
  for (std::uint64_t& value : noise) value = dice();
  std::ofstream(path, std::ios::binary)
      .write(reinterpret_cast<const char*>(noise.data()), static_cast<std::streamsize>(bytes));
}

void ByTool(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), {"curl", "--silent", "--show-error"});
  auto tool = ChildProcess::Start("/usr/bin/env", arguments);
  if (!tool) throw std::runtime_error(tool.Why());
  while ((*tool)->Poll(kPatienceMs, {})) {
  }
  if ((*tool)->ExitCode() != 0) throw std::runtime_error("curl: " + (*tool)->Errors());
}

int PortOf(const test::TestServer& server) {
  if (server.Port() == 0) throw std::runtime_error("the server did not start: " + server.Missing() + server.Trouble());
  return server.Port();
}

void MustGo(const Outcome& went) {
  if (!went) throw std::runtime_error(went.Why());
}

std::string Account() { return fmt::format("{}:{}", test::kTestLogin, test::kTestPassword); }

/// The same work by turns, so that both meet the same machine.
Figure ByTurns(const std::function<void()>& ours, const std::function<void()>& theirs) {
  std::vector<double> our;
  std::vector<double> their;
  for (int round = 0; round < kRounds; ++round) {
    their.push_back(MeasureMs(theirs));
    our.push_back(MeasureMs(ours));
  }
  return {Median(our), "ms", Median(their)};
}

const Register kFtpUpload(
    {"ftp_upload", {Target::Of::Ratio, 1.2, 1.0}, [] {
       const std::string folder = ScratchFolder() + "/ftp";
       const std::string source = ScratchFolder() + "/upload.bin";
       fs::create_directories(folder);
       WriteNoise(source, kUploadBytes);
       const test::TestServer server({"ftp", folder});
       const int port = PortOf(server);
       const auto ours = [&] {
         ServerLogin login{.address = {}, .login = test::kTestLogin, .password = test::kTestPassword};
         login.address = {.kind = ServerAddress::Kind::Ftp, .host = "127.0.0.1", .port = port, .folder = ""};
         ITransferWatch watch;
         MustGo(MakeFileServer(login)->Put(source, "ours.bin", watch));
       };
       const auto theirs = [&] {
         ByTool({"--user", Account(), "--upload-file", source, fmt::format("ftp://127.0.0.1:{}/theirs.bin", port)});
       };
       const Figure figure = ByTurns(ours, theirs);
       if (fs::file_size(folder + "/ours.bin") != kUploadBytes) throw std::runtime_error("the upload is not whole");
       fs::remove_all(folder);
       fs::remove(source);
       return figure;
     }});

const Register kMailTenPictures({"mail_10_pictures", {Target::Of::Ratio, 1.5, 1.0}, [] {
                                   const std::string folder = ScratchFolder() + "/mail";
                                   fs::create_directories(folder);
                                   MailMessage message;
                                   message.fromAddress = "coach@club.example";
                                   message.to = {"anna@home.example"};
                                   message.subject = "Pictures";
                                   message.body = "Ten pictures of your swing.";
                                   for (int n = 1; n <= kPictures; ++n) {
                                     message.attachments.push_back({fmt::format("{}/email{}.jpg", folder, n), ""});
                                     WriteNoise(message.attachments.back().path, kPictureBytes);
                                   }
                                   const test::TestServer server({"bad", "sink", folder});
                                   MailServer account;
                                   account.host = "127.0.0.1";
                                   account.port = PortOf(server);
                                   const auto ours = [&] {
                                     ITransferWatch watch;
                                     bool closed = false;
                                     MustGo(MakeMailSender()->Send(account, message, watch, closed));
                                   };
                                   // The tool sends the very bytes that we have sent, so what it needs to read and to
                                   // pack is done already.
                                   ours();
                                   const std::string bytes = folder + "/again";
                                   fs::rename(folder + "/raw", bytes);
                                   if (fs::file_size(bytes) < kPictures * kPictureBytes)
                                     throw std::runtime_error("the mail is not whole");
                                   const auto theirs = [&] {
                                     ByTool({"--mail-from", message.fromAddress, "--mail-rcpt", message.to[0],
                                             "--upload-file", bytes,
                                             fmt::format("smtp://127.0.0.1:{}/bench", account.port)});
                                   };
                                   const Figure figure = ByTurns(ours, theirs);
                                   fs::remove_all(folder);
                                   return figure;
                                 }});

}  // namespace
}  // namespace kinalyx::bench
