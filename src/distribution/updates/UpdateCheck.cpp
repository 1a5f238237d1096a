#include "distribution/updates/UpdateCheck.h"

#include <fmt/chrono.h>
#include <fmt/format.h>

#include <ctime>
#include <utility>

#include "distribution/updates/VersionsReader.h"
#include "platform/files/FileStore.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

constexpr const char* kVersions = "versions.txt";
constexpr const char* kRecord = "junk.txt";
constexpr std::int64_t kMostVersions = 256 * 1024;
constexpr const char* kUnable = TrLater("Unable to connect to server to check for updates.");

/// The line that goes to the server of a user who has agreed to that: the day, and how the check was begun.
std::string RecordLine(bool silent) {
  return fmt::format("{:%Y-%m-%d},KXP{}\r\n", fmt::localtime(std::time(nullptr)), silent ? "A" : "M");
}

}  // namespace

struct UpdateCheck::Reply {
  bool connected = false;
  std::string versions;
};

UpdateCheck::UpdateCheck(Parts parts) : parts_(std::move(parts)), desk_(parts_.host, *this, parts_.on) {}

void UpdateCheck::CheckAtStart() {
  if (parts_.settings.UpdateCheck == "1") CheckForUpdates(true);
}

void UpdateCheck::CheckForUpdates(bool Silent) {
  // Who asks while one is under way hears of its end.
  silent_ = Busy() ? silent_ && Silent : Silent;
  if (Busy()) return;
  if (parts_.mail.UpdateServer.empty())
    return Tell(
        Tr("No server for updates is set. Type the address that you were given into \"Server for updates\" first."));
  auto address = ReadServerAddress(parts_.mail.UpdateServer);
  if (!address) return Tell(address.Why());
  reply_ = std::make_shared<Reply>();
  std::string record;
  if (parts_.mail.UsageRecord) record = JoinPath(parts_.settings.DataPath, kRecord);
  desk_.Start(
      [server = std::shared_ptr(parts_.makeServer({.address = std::move(*address), .login = {}, .password = {}})),
       reply = reply_, record, silent = silent_](ITransferWatch& watch) -> Outcome {
        if (auto connected = server->Connect(watch); !connected) return connected;
        reply->connected = true;
        auto text = server->GetText(kVersions, kMostVersions, watch);
        if (!text) return text.Failure();
        reply->versions = std::move(*text);
        if (reply->versions.empty() || record.empty()) return {};
        // Whether the line arrives is of no concern to the user.
        if (WriteWholeFile(record, RecordLine(silent))) (void)server->Put(record, kRecord, watch);
        KillFile(record);
        return {};
      });
  parts_.changed();
}

void UpdateCheck::Tell(const std::string& text) {
  if (!silent_) parts_.host.Message(MessageKind::Information, "", text);
}

void UpdateCheck::ServerOver(const Outcome& outcome) {
  parts_.changed();
  const auto answer = std::exchange(reply_, nullptr);
  if (outcome.Kind() == Fault::Cancelled) return;  // a worker that hangs may still write there
  const Reply& reply = *answer;
  if (!outcome && !reply.connected) return Tell(fmt::format("{}\n\n{}", Tr(kUnable), outcome.Why()));
  if (!outcome) return Tell(Tr("{} Err 4\n\n{}", Tr(kUnable), outcome.Why()));
  if (reply.versions.empty()) return Tell(Tr("{} Err 3", Tr(kUnable)));
  const auto there = ReadVersions(reply.versions);
  const auto own = ReadVersion(parts_.ownVersion, '.');
  if (!there || !own) return Tell(Tr("{} Err 4", Tr(kUnable)));
  if (*there <= *own) return Tell(Tr("You are running the latest version of the software."));
  Offer(there->Text());
}

void UpdateCheck::Offer(const std::string& version) {
  const auto own = ReadVersion(parts_.ownVersion, '.');
  constexpr const char* kTitle = TrLater("New Kinalyx Update Available!");
  if (parts_.mail.UpdatePage.empty())
    return parts_.host.Message(
        MessageKind::Information, Tr(kTitle),
        Tr("You are currently running version {} and the latest version is {}. Ask who gave you the address of "
           "the server for it: no page from which it could be fetched is set.",
           own->Text(), version));
  const bool now = parts_.host.Question(
      Tr(kTitle), Tr("You are currently running version {} and the latest version is {}. Would you like to close "
                     "Kinalyx and update now? If you choose not to update now, you can update later by going to "
                     "\"Program Setup\" and clicking the \"General\" tab.",
                     own->Text(), version));
  if (!now) return;
  if (!parts_.host.StartDetached("xdg-open", {parts_.mail.UpdatePage}))
    return parts_.host.Message(MessageKind::Warning, Tr(kTitle),
                               Tr("The page cannot be opened on this computer: {}", parts_.mail.UpdatePage));
  parts_.close();
}

}  // namespace kinalyx
