#include <fmt/format.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/files/TextEncoding.h"
#include "platform/files/Tr.h"
#include "platform/net/CurlSession.h"
#include "platform/net/IFileServer.h"
#include "platform/net/KnownHosts.h"
#include "platform/net/ListingReader.h"
#include "platform/net/NetWords.h"
#include "platform/net/ServerPath.h"
#include "platform/net/TransferFiles.h"

namespace kinalyx {
namespace {

constexpr std::int64_t kMostListing = 8 << 20;
/// A cancel is over within a second: so long for an upload to end in good order, and so long to clear up.
constexpr int kGraceMs = 400;
constexpr int kClearUpMs = 450;
constexpr int kClearUpAfterFailureMs = 5'000;

constexpr auto kIdle = std::chrono::seconds(20);

using Parts = std::vector<std::string>;

/// For what is done when nobody waits for it any more.
class BriefWatch final : public ITransferWatch {
 public:
  explicit BriefWatch(int milliseconds)
      : until_(std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds)) {}
  bool Cancelled() override { return std::chrono::steady_clock::now() > until_; }

 private:
  std::chrono::steady_clock::time_point until_;
};

/// libcurl 7.87 and 7.88 promise encryption on the data line in the active mode, and send plain bytes.
bool EncryptsActiveMode() {
  const unsigned version = curl_version_info(CURLVERSION_NOW)->version_num;
  return version < 0x075700 || version >= 0x080000;
}

bool HasText(std::string_view text, std::string_view word) { return FoldCase(text).find(word) != std::string::npos; }

class FileServer final : public IFileServer {
 public:
  FileServer(ServerLogin login, NetLimits limits, IDisk& disk)
      : login_(std::move(login)),
        limits_(std::move(limits)),
        disk_(disk),
        hosts_(limits_.knownHosts, login_.address.host, login_.address.port),
        form_(IsSftp() ? ListingForm::Long : ListingForm::Facts) {}

  Outcome Connect(ITransferWatch& watch) override {
    if (auto fit = Check(); !fit) return fit;
    curl_easy_setopt(Begin({}, true), CURLOPT_NOBODY, 1L);
    return Explained(Run(watch));
  }

  Result<std::vector<ServerEntry>> List(const std::string& folder, ITransferWatch& watch) override {
    const auto parts = Below(folder, watch);
    if (!parts) return parts.Failure();
    for (ListingForm form = form_;; form = static_cast<ListingForm>(static_cast<int>(form) + 1)) {
      const bool last = form == ListingForm::Names;
      TextSink sink(kMostListing);
      const CurlEnd end = AskListing(*parts, form, sink, watch);
      if (!end && !sink.TooLarge()) {
        if (IsEmptyFolder(end)) return std::vector<ServerEntry>();
        const bool unknown = end.reply >= 500 && end.reply <= 504 && end.command != "CWD";
        if (unknown && !last) continue;
        return Explained(end);
      }
      std::string text = sink.Text();
      if (sink.TooLarge()) text.resize(text.rfind('\n') + 1);  // the last line is not whole; npos + 1 is nothing
      Listing listing = ReadListing(form, text);
      if (!listing.understood && !last) continue;
      form_ = form;
      for (ServerEntry& entry : listing.entries) TakeRawName(entry);
      return std::move(listing.entries);
    }
  }

  Outcome Get(const std::string& path, const std::string& target, ITransferWatch& watch) override {
    const auto parts = BelowFile(path, watch);
    if (!parts) return parts.Failure();
    FileSink sink(disk_, target);
    if (auto opened = sink.Open(); !opened) return opened;
    sink.Attach(Begin(*parts, false));
    const CurlEnd end = Run(watch);
    if (!sink.Trouble()) return sink.Trouble();
    if (!end) return Explained(end);
    return sink.Keep();
  }

  Result<std::string> GetText(const std::string& path, std::int64_t most, ITransferWatch& watch) override {
    const auto parts = BelowFile(path, watch);
    if (!parts) return parts.Failure();
    TextSink sink(std::max<std::int64_t>(most, 0));
    sink.Attach(Begin(*parts, false));
    const CurlEnd end = Run(watch);
    if (sink.TooLarge()) return Outcome::Failed(Tr("\"{}\" is larger than it may be.", parts->back()));
    if (!end) return Explained(end);
    return sink.Text();
  }

  Outcome Put(const std::string& source, const std::string& path, ITransferWatch& watch) override {
    auto parts = BelowFile(path, watch);
    if (!parts) return parts.Failure();
    FileSource file(source);
    if (auto opened = file.Open(); !opened) return opened;
    const std::string name = parts->back();
    parts->pop_back();
    const std::string part = PartNameOnServer(name);
    Parts partPath = *parts;
    partPath.push_back(part);
    CURL* handle = Begin(partPath, false);
    file.Attach(handle, *session_);
    session_->GiveGrace(kGraceMs);
    const CurlEnd end = Run(watch, file.Size());
    if (end && file.Whole()) {
      const Outcome renamed = TakePlace(*parts, part, name);
      if (!renamed) ClearUp(*parts, part, renamed.Kind() == Fault::Cancelled);
      return renamed;
    }
    const bool cancelled = file.Cancelled() || end.how == CurlEnd::How::Cancelled;
    const Outcome why = cancelled ? Outcome(Fault::Cancelled, Tr("It was cancelled."))
                        : end     ? Outcome::Failed(Tr("The file became shorter while it was being sent."))
                                  : Explained(end);
    // A server that has just fallen silent is not asked for more.
    if (end.how == CurlEnd::How::Answered && end.code != CURLE_REMOTE_ACCESS_DENIED) ClearUp(*parts, part, cancelled);
    return why;
  }

  Outcome RemoveLeftovers(const std::string& path, std::span<const ServerEntry> entries,
                          ITransferWatch& watch) override {
    auto parts = BelowFile(path, watch);
    if (!parts) return parts.Failure();
    const std::string name = parts->back();
    parts->pop_back();
    for (const ServerEntry& entry : entries) {
      if (entry.folder || !IsPartNameOf(entry.name, name)) continue;
      if (const CurlEnd end = Remove(*parts, entry.name, watch); !end) return Explained(end);
    }
    return {};
  }

  Outcome MakeFolder(const std::string& folder, ITransferWatch& watch) override {
    const auto parts = Below(folder, watch);
    if (!parts) return parts.Failure();
    if (!IsSftp()) {
      CURL* handle = Begin(*parts, true);
      curl_easy_setopt(handle, CURLOPT_NOBODY, 1L);
      curl_easy_setopt(handle, CURLOPT_FTP_CREATE_MISSING_DIRS, static_cast<long>(CURLFTP_CREATE_DIR_RETRY));
      return Explained(Run(watch));
    }
    CurlList commands;
    Parts above;
    for (const std::string& part : *parts) {
      above.push_back(part);
      commands.Add("*mkdir " + Quoted(above));  // the star: it may be there
    }
    CURL* handle = Begin({}, true);
    curl_easy_setopt(handle, CURLOPT_NOBODY, 1L);
    curl_easy_setopt(handle, CURLOPT_QUOTE, commands.Get());
    if (auto made = Explained(Run(watch)); !made) return made;
    TextSink sink(kMostListing);
    const CurlEnd there = AskListing(*parts, ListingForm::Names, sink, watch);
    if (there.how == CurlEnd::How::Answered && there.code == CURLE_REMOTE_FILE_NOT_FOUND)
      return {Fault::Refused, Tr("The server does not let the folder \"{}\" be made.", folder)};
    return Explained(there);
  }

 private:
  bool IsSftp() const { return login_.address.kind == ServerAddress::Kind::Sftp; }

  Outcome Check() const {
    if (!IsHostName(login_.address.host))
      return Outcome::Failed(login_.address.host.empty()
                                 ? Tr("No server is set.")
                                 : Tr("The name of the server holds a letter that is in no name."));
    if (HasControls(login_.login) || HasControls(login_.password))
      return Outcome::Failed(Tr("Login or password hold a line end or another control character."));
    if (!IsSftp() && !login_.passive && login_.address.security != NetSecurity::None && !EncryptsActiveMode())
      return {Fault::Refused,
              Tr("Files cannot go encrypted in the active mode on this computer. Choose the passive mode.")};
    return {};
  }

  /// The whole way to what the caller means.
  Result<Parts> Below(const std::string& path, ITransferWatch& watch) {
    if (auto fit = Check(); !fit) return fit;
    const auto parts = PartsOf(path);
    if (!parts) return parts.Failure();
    if (!base_) {
      if (auto found = FindBase(watch); !found) return found;
    }
    Parts whole = *base_;
    for (const std::string& part : *parts) {
      const auto raw = rawNames_.find(part);
      whole.push_back(raw == rawNames_.end() ? part : raw->second);
    }
    return whole;
  }

  Result<Parts> BelowFile(const std::string& path, ITransferWatch& watch) {
    if (path.empty()) return Outcome(Fault::Refused, Tr("The name of the file is empty."));
    return Below(path, watch);
  }

  /// The folder of the address counts from where the login leads. With SFTP that is the user's home, and many mean a
  /// place of the whole server: what is not there below the home is looked for above.
  Outcome FindBase(ITransferWatch& watch) {
    auto parts = PartsOf(login_.address.folder);
    if (!parts) return parts.Failure();
    if (IsSftp() && !parts->empty() && parts->front() == "~") parts->erase(parts->begin());
    else if (IsSftp() && !parts->empty()) {
      const auto missing = [&]() -> Result<bool> {
        TextSink sink(kMostListing);
        const CurlEnd end = AskListing(*parts, ListingForm::Names, sink, watch);
        if (end || sink.TooLarge()) return false;
        if (end.how == CurlEnd::How::Answered && end.code == CURLE_REMOTE_FILE_NOT_FOUND) return true;
        return Explained(end);
      };
      const auto atHome = missing();
      if (!atHome) return atHome.Failure();
      if (*atHome) {
        fromRoot_ = true;
        const auto atRoot = missing();
        if (!atRoot) return atRoot.Failure();
        fromRoot_ = !*atRoot;
      }
    }
    base_ = std::move(*parts);
    return {};
  }

  CURL* Begin(const Parts& parts, bool folder) {
    LeaveIdleSession();
    const bool fresh = !session_;
    if (fresh) session_ = std::make_unique<CurlSession>(limits_);
    CURL* handle = session_->Begin(IsSftp() ? "sftp" : "ftp,ftps", login_.address.security, login_.caFile);
    curl_easy_setopt(handle, CURLOPT_URL, Url(handle, parts, folder).c_str());
    if (!login_.login.empty()) {
      curl_easy_setopt(handle, CURLOPT_USERNAME, login_.login.c_str());
      curl_easy_setopt(handle, CURLOPT_PASSWORD, login_.password.c_str());
    }
    if (IsSftp()) {
      const long ways = login_.password.empty() ? CURLSSH_AUTH_PUBLICKEY | CURLSSH_AUTH_AGENT
                                                : CURLSSH_AUTH_PASSWORD | CURLSSH_AUTH_KEYBOARD;
      curl_easy_setopt(handle, CURLOPT_SSH_AUTH_TYPES, ways);
      hosts_.Attach(handle);
      return handle;
    }
    if (!login_.passive) curl_easy_setopt(handle, CURLOPT_FTPPORT, "-");
    // Servers of old talk in their own letters until they are asked; others do not know the question.
    if (fresh) {
      opening_ = {};
      opening_.Add("*OPTS UTF8 ON");
      curl_easy_setopt(handle, CURLOPT_QUOTE, opening_.Get());
    }
    return handle;
  }

  /// A server that nobody has spoken to for a while has hung up, and the library would call again without our question.
  void LeaveIdleSession() {
    const auto now = std::chrono::steady_clock::now();
    if (now - used_ > kIdle) session_.reset();
    used_ = now;
  }

  std::string Url(CURL* handle, const Parts& parts, bool folder) const {
    const ServerAddress& address = login_.address;
    std::string url = IsSftp() ? "sftp://" : address.security == NetSecurity::Tls ? "ftps://" : "ftp://";
    url += address.host;
    if (address.port > 0) url += fmt::format(":{}", address.port);
    url += IsSftp() && !fromRoot_ ? "/~/" : "/";
    for (std::size_t i = 0; i < parts.size(); ++i) {
      const std::unique_ptr<char, void (*)(void*)> escaped(
          curl_easy_escape(handle, parts[i].data(), static_cast<int>(parts[i].size())), &curl_free);
      url += escaped ? escaped.get() : "";
      if (folder || i + 1 < parts.size()) url += '/';
    }
    return url;
  }

  /// A path as the commands of SFTP want it.
  std::string Quoted(const Parts& parts) const {
    std::string quoted = fromRoot_ ? "\"/" : "\"";
    for (std::size_t i = 0; i < parts.size(); ++i) {
      if (i > 0) quoted += '/';
      for (const char letter : parts[i]) {
        if (letter == '"' || letter == '\\') quoted += '\\';
        quoted += letter;
      }
    }
    return quoted + '"';
  }

  CurlEnd Run(ITransferWatch& watch, std::int64_t total = 0) {
    CurlEnd end = session_->Perform(watch, total);
    used_ = std::chrono::steady_clock::now();
    // A plain "no" leaves the connection as it was.
    const bool stays = end || (end.how == CurlEnd::How::Answered &&
                               (end.code == CURLE_REMOTE_FILE_NOT_FOUND || end.code == CURLE_REMOTE_ACCESS_DENIED ||
                                end.code == CURLE_QUOTE_ERROR || end.code == CURLE_FTP_COULDNT_RETR_FILE));
    if (!stays) session_.reset();
    return end;
  }

  CurlEnd AskListing(const Parts& parts, ListingForm form, TextSink& sink, ITransferWatch& watch) {
    CURL* handle = Begin(parts, true);
    sink.Attach(handle);
    if (!IsSftp() && form == ListingForm::Facts) curl_easy_setopt(handle, CURLOPT_CUSTOMREQUEST, "MLSD");
    if (form == ListingForm::Names) curl_easy_setopt(handle, CURLOPT_DIRLISTONLY, 1L);
    return Run(watch);
  }

  /// Some servers call it a failure that there is nothing to list.
  static bool IsEmptyFolder(const CurlEnd& end) {
    return end.how == CurlEnd::How::Answered && (end.reply == 550 || end.reply == 450) &&
           (end.command == "LIST" || end.command == "NLST") &&
           (HasText(end.words, "no file") || HasText(end.words, "no such file") || HasText(end.words, "not found"));
  }

  /// Inside all names are UTF-8; a server that has others still gets its own back.
  void TakeRawName(ServerEntry& entry) {
    if (IsValidUtf8(entry.name)) return;
    std::string name = AsUtf8(entry.name);
    rawNames_[name] = std::exchange(entry.name, name);
  }

  struct Move {
    std::string from, to;
  };
  CurlEnd Rename(const Parts& folder, const Move& move, ITransferWatch& watch) {
    CurlList commands;
    if (IsSftp()) {
      commands.Add("rename " + QuotedIn(folder, move.from) + ' ' + QuotedIn(folder, move.to));
    } else {
      commands.Add("RNFR " + move.from);
      commands.Add("RNTO " + move.to);
    }
    return Command(folder, commands, watch);
  }

  CurlEnd Remove(const Parts& folder, const std::string& name, ITransferWatch& watch) {
    CurlList commands;
    commands.Add(IsSftp() ? "rm " + QuotedIn(folder, name) : "DELE " + name);
    return Command(folder, commands, watch);
  }

  CurlEnd Command(const Parts& folder, const CurlList& commands, ITransferWatch& watch) {
    CURL* handle = IsSftp() ? Begin({}, true) : Begin(folder, true);
    curl_easy_setopt(handle, CURLOPT_NOBODY, 1L);
    // With FTP when the folder has been entered.
    curl_easy_setopt(handle, IsSftp() ? CURLOPT_QUOTE : CURLOPT_PREQUOTE, commands.Get());
    return Run(watch);
  }

  std::string QuotedIn(Parts folder, const std::string& name) const {
    folder.push_back(name);
    return Quoted(folder);
  }

  /// The part takes the place of the old file. A server that does not rename over a file has the old one step aside,
  /// and take its place again should that fail. All bytes are there: nobody cancels in between.
  Outcome TakePlace(const Parts& folder, const std::string& part, const std::string& name) {
    ITransferWatch patient;
    const CurlEnd direct = Rename(folder, {part, name}, patient);
    if (direct) return {};
    if (direct.how != CurlEnd::How::Answered || direct.code != CURLE_QUOTE_ERROR) return Explained(direct);
    const std::string aside = PartNameOnServer(name);
    const CurlEnd first = Rename(folder, {name, aside}, patient);
    const bool refused = first.how == CurlEnd::How::Answered && first.code == CURLE_QUOTE_ERROR;
    if (!first && refused) return Explained(direct);
    const CurlEnd second = first ? Rename(folder, {part, name}, patient) : first;
    BriefWatch brief(kClearUpAfterFailureMs);
    if (second) {
      (void)Remove(folder, aside, brief);
      return {};
    }
    // Where the line broke nobody knows what the server has done of it.
    const CurlEnd back = Rename(folder, {aside, name}, brief);
    const Outcome why = Explained(second);
    if (back || (!first && back.code == CURLE_QUOTE_ERROR)) return why;
    return {why.Kind(), Tr("{} The old file may lie there under the name \"{}\".", why.Why(), aside)};
  }

  void ClearUp(const Parts& folder, const std::string& part, bool cancelled) {
    BriefWatch brief(cancelled ? kClearUpMs : kClearUpAfterFailureMs);
    (void)Remove(folder, part, brief);
  }

  Outcome Explained(const CurlEnd& end) const {
    if (end) return {};
    const NetParty party{.host = login_.address.host,
                         .kind = Tr("server"),
                         .password = login_.password,
                         .security = IsSftp() ? NetSecurity::Tls : login_.address.security};
    if (end.how != CurlEnd::How::Answered) return ExplainEnd(end, party);
    const std::string said = SaidBy(end, party);
    if (hosts_.Changed())
      return {Fault::Refused,
              Tr("The server \"{}\" shows another key than the one that this computer remembers. Either it was "
                 "set up anew, or somebody else is in between: nothing was sent, and no password. If your "
                 "provider confirms the new key, remove the old one's line from the file \"{}\".",
                 party.host, hosts_.File())};
    if (end.reply == 552 || end.reply == 452 || end.code == CURLE_REMOTE_DISK_FULL)
      return Outcome::Failed(Tr("The server is full.{}", said));
    switch (end.code) {
      case CURLE_REMOTE_ACCESS_DENIED:
        if (end.command == "CWD") return {Fault::NotFound, Tr("The server has no such folder.{}", said)};
        return {Fault::Refused, Tr("The server does not allow it.{}", said)};
      case CURLE_REMOTE_FILE_NOT_FOUND: return {Fault::NotFound, Tr("The server has no such file or folder.{}", said)};
      case CURLE_QUOTE_ERROR:
      case CURLE_UPLOAD_FAILED:
      case CURLE_FTP_COULDNT_RETR_FILE: return {Fault::Refused, Tr("The server does not allow it.{}", said)};
      case CURLE_FTP_ACCEPT_FAILED:
      case CURLE_FTP_ACCEPT_TIMEOUT:
      case CURLE_FTP_PORT_FAILED:
        return Outcome::Failed(
            Tr("The server cannot call this computer back, as it must in the active mode. Choose the passive mode.{}",
               said));
      case CURLE_FTP_WEIRD_PASV_REPLY:
      case CURLE_FTP_WEIRD_227_FORMAT:
      case CURLE_FTP_CANT_GET_HOST:
        return Outcome::Failed(Tr("The server does not know the passive mode. Choose the active mode.{}", said));
      default: return ExplainEnd(end, party);
    }
  }

  ServerLogin login_;
  NetLimits limits_;
  IDisk& disk_;
  KnownHosts hosts_;
  CurlList opening_;
  std::chrono::steady_clock::time_point used_;  // when the session was last at work
  std::unique_ptr<CurlSession> session_;        // null until the first request, and after one that failed
  std::optional<Parts> base_;                   // what all paths begin with, once it is known
  bool fromRoot_ = false;
  ListingForm form_;  // that the server is known to speak, or that is tried first
  std::map<std::string, std::string> rawNames_;
};

}  // namespace

std::unique_ptr<IFileServer> MakeFileServer(ServerLogin login, NetLimits limits, IDisk& disk) {
  return std::make_unique<FileServer>(std::move(login), std::move(limits), disk);
}

}  // namespace kinalyx
