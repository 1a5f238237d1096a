#include "platform/net/CurlSession.h"

#include <algorithm>
#include <charconv>
#include <mutex>
#include <utility>

#include "platform/files/TextEncoding.h"

namespace kinalyx {
namespace {

using namespace std::chrono_literals;

constexpr int kPollMs = 50;
constexpr auto kLookEvery = 100ms;
/// Whoever was away for so long (a slow disk, a computer asleep) has heard nothing, which is not the server's fault.
constexpr auto kAway = 5s;
/// Longer than ours, which see more than the library does.
constexpr long kLibraryLimitMs = 3'600'000;
constexpr long kUploadBuffer = 512 * 1024;
constexpr std::size_t kMostWords = 300;
constexpr std::size_t kShortPassword = 4;
/// What was sent has been taken: nobody waits for long to hear the goodbye returned.
constexpr auto kGoodbye = 5s;
/// A mail server looks a message through before it takes it; who gives up too early sends it twice.
constexpr int kPatienceWithMail = 4;

void StartLibrary() {
  static std::once_flag once;
  std::call_once(once, [] { curl_global_init(CURL_GLOBAL_DEFAULT); });
}

}  // namespace

void CurlList::Add(const std::string& text) {
  if (curl_slist* longer = curl_slist_append(list_.get(), text.c_str())) {
    (void)list_.release();
    list_.reset(longer);
  }
}

CurlSession::CurlSession(const NetLimits& limits) : limits_(limits) {
  StartLibrary();
  multi_.reset(curl_multi_init());
  easy_.reset(curl_easy_init());
}

CurlSession::~CurlSession() {
  sockets_.StopListening();
  easy_.reset();
  multi_.reset();
}

CURL* CurlSession::Begin(const char* protocols, NetSecurity security, const std::string& caFile) {
  CURL* handle = easy_.get();
  curl_easy_reset(handle);
  curl_easy_setopt(handle, CURLOPT_PROTOCOLS_STR, protocols);
  curl_easy_setopt(handle, CURLOPT_NOSIGNAL, 1L);
  curl_easy_setopt(handle, CURLOPT_QUICK_EXIT, 1L);  // a name server that is silent holds nobody up
  curl_easy_setopt(handle, CURLOPT_PROXY, "");
  curl_easy_setopt(handle, CURLOPT_TCP_KEEPALIVE, 1L);  // a long transfer leaves the line of commands idle
  curl_easy_setopt(handle, CURLOPT_UPLOAD_BUFFERSIZE, kUploadBuffer);
  curl_easy_setopt(handle, CURLOPT_BUFFERSIZE, static_cast<long>(CURL_MAX_READ_SIZE));
  // Several addresses of one server share what is given here, the login included: the first may take half.
  curl_easy_setopt(handle, CURLOPT_CONNECTTIMEOUT_MS, static_cast<long>(limits_.connectMs) * 17 / 10);
  curl_easy_setopt(handle, CURLOPT_SERVER_RESPONSE_TIMEOUT, kLibraryLimitMs / 1000);
  curl_easy_setopt(handle, CURLOPT_ACCEPTTIMEOUT_MS, static_cast<long>(limits_.silenceMs));
  curl_easy_setopt(handle, CURLOPT_SSL_VERIFYPEER, 1L);
  curl_easy_setopt(handle, CURLOPT_SSL_VERIFYHOST, 2L);
  if (security != NetSecurity::None) curl_easy_setopt(handle, CURLOPT_USE_SSL, static_cast<long>(CURLUSESSL_ALL));
  if (!caFile.empty()) curl_easy_setopt(handle, CURLOPT_CAINFO, caFile.c_str());
  error_.fill(0);
  curl_easy_setopt(handle, CURLOPT_ERRORBUFFER, error_.data());
  curl_easy_setopt(handle, CURLOPT_NOPROGRESS, 0L);
  curl_easy_setopt(handle, CURLOPT_XFERINFOFUNCTION, &CurlSession::OnProgress);
  curl_easy_setopt(handle, CURLOPT_XFERINFODATA, this);
  curl_easy_setopt(handle, CURLOPT_VERBOSE, 1L);  // told to OnTalk alone
  curl_easy_setopt(handle, CURLOPT_DEBUGFUNCTION, &CurlSession::OnTalk);
  curl_easy_setopt(handle, CURLOPT_DEBUGDATA, this);
  sockets_.Attach(handle);
  return handle;
}

CurlEnd CurlSession::Perform(ITransferWatch& watch, std::int64_t total) {
  watch_ = &watch;
  end_ = {};
  end_.code = CURLE_FAILED_INIT;  // until the library says that it is done
  counted_ = 0;
  goodbye_ = false;
  goesOn_ = false;
  leaving_ = false;
  cancelled_ = false;
  total_ = total;
  traffic_ = sockets_.Traffic();
  begun_ = moved_ = Clock::now();
  looked_ = {};
  CURL* handle = easy_.get();
  curl_multi_add_handle(multi_.get(), handle);
  int running = 1;
  bool givenUp = false;
  while (!(givenUp = GivesUp())) {
    if (curl_multi_perform(multi_.get(), &running) != CURLM_OK || running == 0) break;
    curl_multi_poll(multi_.get(), nullptr, 0, kPollMs, nullptr);
  }
  int left = 0;
  while (const CURLMsg* message = curl_multi_info_read(multi_.get(), &left)) {
    if (message->msg != CURLMSG_DONE) continue;
    end_.code = message->data.result;
    // Whatever was given up then was only the goodbye.
    if (end_.code == CURLE_OK) end_.how = CurlEnd::How::Answered;
  }
  if (givenUp && running) sockets_.StopListening();
  if (!givenUp && end_.bytes > 0) Report(Clock::now());
  // A server that is full says so and hangs up: the library sees only that nothing more can be sent.
  if (end_.code == CURLE_SEND_ERROR) {
    for (const std::string& line : sockets_.LastLines()) HearReply(line);
  }
  curl_easy_getinfo(handle, CURLINFO_SSL_VERIFYRESULT, &end_.certificate);
  curl_multi_remove_handle(multi_.get(), handle);
  sockets_.CloseEnded();
  watch_ = nullptr;
  graceMs_ = 0;
  end_.error = error_.data();
  return std::exchange(end_, {});
}

bool CurlSession::CancelWanted() {
  GivesUp();
  return cancelled_;
}

int CurlSession::OnProgress(void* self, curl_off_t downTotal, curl_off_t down, curl_off_t upTotal, curl_off_t up) {
  auto& session = *static_cast<CurlSession*>(self);
  if (session.total_ == 0 && std::max(downTotal, upTotal) > 0) session.total_ = std::max(downTotal, upTotal);
  session.end_.bytes = std::max<std::int64_t>(down, up);
  return session.GivesUp() ? 1 : 0;
}

bool CurlSession::GivesUp() {
  const auto now = Clock::now();
  if (end_.how == CurlEnd::How::Answered && now - looked_ >= kLookEvery) Look(now);
  return end_.how != CurlEnd::How::Answered;
}

void CurlSession::Report(Clock::time_point now) {
  const double seconds = std::chrono::duration<double>(now - begun_).count();
  watch_->Progress(end_.bytes, total_, seconds > 0 ? static_cast<double>(end_.bytes) / seconds : 0);
}

void CurlSession::Look(Clock::time_point now) {
  if (!watch_) return;
  const bool away = looked_ != Clock::time_point() && now - looked_ > kAway;
  looked_ = now;
  if (end_.bytes > 0) Report(now);
  if (!cancelled_ && watch_->Cancelled()) {
    cancelled_ = true;
    cancelledAt_ = now;
  }
  if (cancelled_) {
    if (now - cancelledAt_ >= std::chrono::milliseconds(graceMs_)) end_.how = CurlEnd::How::Cancelled;
    return;
  }
  // The bytes count too: in the active mode the library keeps the socket of the data to itself.
  const std::uint64_t traffic = sockets_.Traffic();
  if (traffic != traffic_ || end_.bytes != counted_ || away) moved_ = now;
  traffic_ = traffic;
  counted_ = end_.bytes;
  if (!sockets_.Reached()) {
    if (now - std::max({begun_, moved_, sockets_.LastAttempt()}) > std::chrono::milliseconds(limits_.connectMs))
      end_.how = CurlEnd::How::Unreachable;
    return;
  }
  const bool mailIsOver = end_.command == "DATA" && end_.reply == 354;
  auto patience = std::chrono::milliseconds(limits_.silenceMs) * (mailIsOver ? kPatienceWithMail : 1);
  if (leaving_) patience = std::min<std::chrono::milliseconds>(patience, kGoodbye);
  if (now - moved_ > patience) end_.how = CurlEnd::How::Silent;
}

int CurlSession::OnTalk(CURL*, curl_infotype kind, char* bytes, std::size_t size, void* self) {
  auto& session = *static_cast<CurlSession*>(self);
  const std::string_view line(bytes, size);
  if (kind == CURLINFO_HEADER_IN) session.HearReply(line);
  if (kind == CURLINFO_HEADER_OUT) session.HearCommand(line);
  return 0;
}

void CurlSession::HearReply(std::string_view line) {
  int code = 0;
  if (line.size() < 4 || std::from_chars(line.data(), line.data() + 3, code).ptr != line.data() + 3 || code < 100)
    return;
  if (leaving_) {
    if (code == 221) goodbye_ = true;
    return;
  }
  end_.reply = code;
  // A reply of several lines is one.
  if (!goesOn_) end_.words.clear();
  else if (end_.words.size() < kMostWords) end_.words += ' ';
  goesOn_ = line[3] == '-';
  if (end_.words.size() < kMostWords) end_.words += Trimmed(line.substr(4), " \r\n\t");
}

void CurlSession::HearCommand(std::string_view line) {
  leaving_ = line.starts_with("QUIT");
  if (leaving_) return;
  // Passwords pass here: no more than the first word is kept, and of a reader his address.
  const std::size_t end = line.starts_with("RCPT") ? line.find_first_of("\r\n") : line.find_first_of(" \r\n");
  end_.command = line.substr(0, std::min(end, line.size()));
}

std::string CleanWords(std::string_view words, std::string_view password) {
  std::string clean = AsUtf8(words);
  // A very short one would blot out the words and give itself away by that.
  if (password.size() >= kShortPassword) {
    for (std::size_t at = clean.find(password); at != std::string::npos; at = clean.find(password, at + 1))
      clean.replace(at, password.size(), "*");
  }
  std::ranges::replace_if(
      clean, [](char c) { return static_cast<unsigned char>(c) < ' ' || c == 0x7f; }, ' ');
  return std::string(CutUtf8(Trimmed(clean, " "), kMostWords));
}

}  // namespace kinalyx
