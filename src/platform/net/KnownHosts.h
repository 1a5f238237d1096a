#pragma once

#include <string>

#include <curl/curl.h>

namespace kinalyx {

/// Keys of SFTP servers. Who is met for the first time is believed and remembered; who later shows another key is not.
class KnownHosts {
 public:
  /// @param file  empty: "kinalyx/known_hosts" among the user's data. That of the user's ssh is not read: names may be
  ///              scrambled there, and then the library settles for keys of the wrong kind, or notices no change.
  KnownHosts(std::string file, std::string host, int port);

  /// Has a handle ask here.
  void Attach(CURL* handle);
  /// A server has shown another key than the one that is remembered.
  bool Changed() const { return changed_; }
  const std::string& File() const { return file_; }

 private:
  static int OnKey(CURL*, const curl_khkey* known, const curl_khkey* found, curl_khmatch match, void* self);
  void Remember(const curl_khkey& key) const;
  bool Knows() const;
  std::string Name() const;

  std::string file_, host_;
  int port_;
  bool changed_ = false;
};

}  // namespace kinalyx
