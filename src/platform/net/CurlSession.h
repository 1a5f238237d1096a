#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <curl/curl.h>

#include "platform/net/ITransferWatch.h"
#include "platform/net/NetLimits.h"
#include "platform/net/ServerAddress.h"
#include "platform/net/SocketWatch.h"

namespace kinalyx {

/// How a request ended.
struct CurlEnd {
  enum class How {
    Answered,     ///< by the library: `code` says how
    Cancelled,    ///< by the user
    Unreachable,  ///< nobody has answered the knock
    Silent,       ///< the server has stopped answering
  } how = How::Answered;
  CURLcode code = CURLE_OK;
  std::string error;       ///< the library's own words
  int reply = 0;           ///< code of the server's last reply; 0 none, or a server that has none
  std::string words;       ///< and its text
  std::string command;     ///< what was sent last: the first word, and for a reader of mail his address
  long certificate = 0;    ///< what OpenSSL found wrong with the certificate
  std::int64_t bytes = 0;  ///< of the transfer

  explicit operator bool() const { return how == How::Answered && code == CURLE_OK; }
};

/// A list of texts as the library wants it.
class CurlList {
 public:
  void Add(const std::string& text);
  curl_slist* Get() const { return list_.get(); }

 private:
  struct Free {
    void operator()(curl_slist* list) const { curl_slist_free_all(list); }
  };
  std::unique_ptr<curl_slist, Free> list_;
};

/// One connection and what it is asked for, one request after the other. A request can be given up at any moment, also
/// where the server says nothing, and gives up by itself where the limits say so. After a request that failed the
/// session is spent: make a new one.
class CurlSession {
 public:
  explicit CurlSession(const NetLimits& limits);
  CurlSession(const CurlSession&) = delete;
  CurlSession& operator=(const CurlSession&) = delete;
  /// Says goodbye and waits for no answer.
  ~CurlSession();

  /// A handle with nothing but what all requests have in common.
  /// @param protocols  those that may be spoken, as in "ftp,ftps"
  /// @param caFile     see ServerLogin
  CURL* Begin(const char* protocols, NetSecurity security, const std::string& caFile);
  CURL* Handle() const { return easy_.get(); }
  /// Does what the handle has been set up for.
  /// @param total  bytes that the transfer will have, where the caller knows better than the library; else 0
  CurlEnd Perform(ITransferWatch& watch, std::int64_t total = 0);
  /// Whether the server has answered a goodbye in the last request.
  bool SaidGoodbye() const { return goodbye_; }
  /// From within a request: whether the user has cancelled it.
  bool CancelWanted();
  /// A request that is cancelled goes on for this long, for who ends it in good order.
  void GiveGrace(int milliseconds) { graceMs_ = milliseconds; }

 private:
  using Clock = std::chrono::steady_clock;

  static int OnProgress(void* self, curl_off_t downTotal, curl_off_t down, curl_off_t upTotal, curl_off_t up);
  static int OnTalk(CURL*, curl_infotype kind, char* bytes, std::size_t size, void* self);
  void HearReply(std::string_view line);
  void HearCommand(std::string_view line);
  bool GivesUp();
  void Look(Clock::time_point now);
  void Report(Clock::time_point now);

  struct FreeEasy {
    void operator()(CURL* handle) const { curl_easy_cleanup(handle); }
  };
  struct FreeMulti {
    void operator()(CURLM* handle) const { curl_multi_cleanup(handle); }
  };

  NetLimits limits_;
  SocketWatch sockets_;  // outlives both handles, which close their sockets through it
  std::unique_ptr<CURLM, FreeMulti> multi_;
  std::unique_ptr<CURL, FreeEasy> easy_;
  std::array<char, CURL_ERROR_SIZE> error_{};

  ITransferWatch* watch_ = nullptr;  ///< while a request is under way
  CurlEnd end_;
  bool goodbye_ = false;
  bool leaving_ = false;  ///< the goodbye has been said
  bool goesOn_ = false;   ///< the last line of a reply is still to come
  int graceMs_ = 0;
  std::int64_t total_ = 0;
  std::uint64_t traffic_ = 0;
  std::int64_t counted_ = 0;  ///< of end_.bytes, when it was looked at last
  Clock::time_point begun_, looked_, moved_, cancelledAt_;
  bool cancelled_ = false;
};

/// The words of a server, fit for a message: one line, not too long, and without the password should it repeat it.
std::string CleanWords(std::string_view words, std::string_view password);

}  // namespace kinalyx
