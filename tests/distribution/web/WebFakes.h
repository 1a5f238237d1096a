#pragma once

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "distribution/web/SendJob.h"
#include "platform/files/FileStore.h"
#include "support/TempFolder.h"

namespace kinalyx::test {

/// A server of files and one for mail, in memory, that fail when they are told to.
struct FakeWebServers final : ISendServers {
  std::map<std::string, std::string> files;  ///< by path
  std::set<std::string> folders;
  std::vector<std::string> puts;    ///< paths, in their order, that arrived whole
  int putsLeft = -1;                ///< after so many puts the server has gone; -1 never
  std::string unreadable;           ///< a path that fails, though it is there
  std::function<void()> duringPut;  ///< what happens in the middle of one
  std::function<void()> duringMail;
  std::vector<MailMessage> mails;
  std::vector<std::string> bodies;  ///< bytes of the first file of each
  std::set<std::string> refused;    ///< readers
  bool closesBadly = false;

  std::unique_ptr<IFileServer> Files(const ServerLogin& login) override;
  std::unique_ptr<IMailSender> Mail() override;
};

class FakeWebSpace final : public IFileServer {
 public:
  explicit FakeWebSpace(FakeWebServers& all) : all_(all) {}

  Outcome Connect(ITransferWatch&) override { return {}; }
  Result<std::vector<ServerEntry>> List(const std::string& folder, ITransferWatch&) override {
    if (!all_.folders.contains(folder)) return Outcome(Fault::NotFound, "no folder");
    std::vector<ServerEntry> entries;
    for (const auto& [path, bytes] : all_.files)
      if (FolderOf(path) == folder) entries.push_back({LastName(path), false, static_cast<std::int64_t>(bytes.size())});
    return entries;
  }
  Outcome Get(const std::string&, const std::string&, ITransferWatch&) override { return Outcome::Failed("not here"); }
  Result<std::string> GetText(const std::string& path, std::int64_t most, ITransferWatch&) override {
    if (path == all_.unreadable) return Outcome::Failed("the server is busy");
    const auto found = all_.files.find(path);
    if (found == all_.files.end()) return Outcome(Fault::NotFound, "no such file");
    if (static_cast<std::int64_t>(found->second.size()) > most) return Outcome::Failed("too long");
    return found->second;
  }
  Outcome Put(const std::string& source, const std::string& path, ITransferWatch& watch) override {
    if (all_.duringPut) all_.duringPut();
    watch.Progress(1, 2, 2048);
    if (watch.Cancelled()) return {Fault::Cancelled, "cancelled"};
    if (all_.putsLeft == 0) return Outcome::Failed("The server has gone.");
    if (all_.putsLeft > 0) --all_.putsLeft;
    if (!all_.folders.contains(FolderOf(path))) return Outcome::Failed("no folder " + FolderOf(path));
    all_.files[path] = BytesOf(source);
    all_.puts.push_back(path);
    return {};
  }
  Outcome RemoveLeftovers(const std::string& path, std::span<const ServerEntry> entries, ITransferWatch&) override {
    for (const ServerEntry& entry : entries)
      if (entry.name.starts_with(LastName(path)) && entry.name.ends_with(".part"))
        all_.files.erase(FolderOf(path) + "/" + entry.name);
    return {};
  }
  Outcome MakeFolder(const std::string& folder, ITransferWatch&) override {
    for (std::string each = folder; each != "."; each = FolderOf(each)) all_.folders.insert(each);
    return {};
  }

 private:
  FakeWebServers& all_;
};

class FakeWebMail final : public IMailSender {
 public:
  explicit FakeWebMail(FakeWebServers& all) : all_(all) {}
  Outcome Send(const MailServer&, const MailMessage& message, ITransferWatch& watch, bool& closedCleanly) override {
    watch.Progress(1, 2, 2048);
    if (all_.duringMail) all_.duringMail();
    if (watch.Cancelled()) return {Fault::Cancelled, "cancelled"};
    if (all_.refused.contains(message.to.at(0))) return Outcome::Failed("No such mailbox.");
    all_.mails.push_back(message);
    all_.bodies.push_back(message.attachments.empty() ? "" : BytesOf(message.attachments[0].path));
    closedCleanly = !all_.closesBadly;
    return {};
  }

 private:
  FakeWebServers& all_;
};

inline std::unique_ptr<IFileServer> FakeWebServers::Files(const ServerLogin&) {
  return std::make_unique<FakeWebSpace>(*this);
}
inline std::unique_ptr<IMailSender> FakeWebServers::Mail() { return std::make_unique<FakeWebMail>(*this); }

/// An order that lacks nothing but its files.
inline SendOrder OrderFor(const std::string& student, const std::string& workFolder) {
  SendOrder order;
  order.coach = "Jo Coach";
  order.company = "Łódź Golf & Co";
  order.student = student;
  order.addresses = {"anna@example.org"};
  order.webAddress = "www.example.org";
  order.today = "2026-11-26";
  order.workFolder = workFolder;
  order.space.address.host = "ftp.example.org";
  order.mailServer.host = "mail.example.org";
  order.message.subject = "Video Analysis from Jo";
  return order;
}

}  // namespace kinalyx::test
