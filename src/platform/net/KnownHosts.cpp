#include "platform/net/KnownHosts.h"

#include <fmt/format.h>

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <utility>

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/files/Folders.h"

namespace kinalyx {
namespace {

constexpr int kUsualPort = 22;

std::string HomeFolder() {
  if (const char* home = std::getenv("HOME"); home && *home) return home;
  const passwd* user = ::getpwuid(::getuid());
  return user && user->pw_dir ? user->pw_dir : "";
}

std::string DataFolder() {
  const char* data = std::getenv("XDG_DATA_HOME");
  return data && *data == '/' ? data : JoinPath(HomeFolder(), ".local/share");
}

/// The kind of a key, with which its bytes begin.
std::string KindOf(const QByteArray& key) {
  constexpr int kLength = 4, kLongest = 64;
  if (key.size() < kLength) return {};
  int length = 0;
  for (int i = 0; i < kLength; ++i) length = length << 8 | static_cast<unsigned char>(key[i]);
  if (length < 1 || length > kLongest || length > key.size() - kLength) return {};
  return key.mid(kLength, length).toStdString();
}

}  // namespace

KnownHosts::KnownHosts(std::string file, std::string host, int port)
    : file_(std::move(file)), host_(std::move(host)), port_(port == 0 ? kUsualPort : port) {
  if (file_.empty()) file_ = JoinPath(DataFolder(), "kinalyx/known_hosts");
  if (host_.starts_with('[') && host_.ends_with(']')) host_ = host_.substr(1, host_.size() - 2);
  // As the library looks it up.
  if (const QByteArray plain = QUrl::toAce(QString::fromStdString(host_)); !plain.isEmpty())
    host_ = plain.toStdString();
}

void KnownHosts::Attach(CURL* handle) {
  curl_easy_setopt(handle, CURLOPT_SSH_KNOWNHOSTS, file_.c_str());
  curl_easy_setopt(handle, CURLOPT_SSH_KEYFUNCTION, &KnownHosts::OnKey);
  curl_easy_setopt(handle, CURLOPT_SSH_KEYDATA, this);
}

int KnownHosts::OnKey(CURL*, const curl_khkey*, const curl_khkey* found, curl_khmatch match, void* self) {
  auto& hosts = *static_cast<KnownHosts*>(self);
  if (match == CURLKHMATCH_OK) return CURLKHSTAT_FINE;
  // A key of another kind than the one that is remembered is another key.
  if (match == CURLKHMATCH_MISMATCH || !found || hosts.Knows()) {
    hosts.changed_ = true;
    return CURLKHSTAT_REJECT;
  }
  hosts.Remember(*found);
  return CURLKHSTAT_FINE;
}

std::string KnownHosts::Name() const { return port_ == kUsualPort ? host_ : fmt::format("[{}]:{}", host_, port_); }

bool KnownHosts::Knows() const {
  std::ifstream file(file_);
  const std::string begin = Name() + ' ';
  for (std::string line; std::getline(file, line);)
    if (line.starts_with(begin)) return true;
  return false;
}

void KnownHosts::Remember(const curl_khkey& key) const {
  const QByteArray bytes =
      key.len > 0 ? QByteArray(key.key, static_cast<qsizetype>(key.len)) : QByteArray::fromBase64(QByteArray(key.key));
  const std::string kind = KindOf(bytes);
  if (kind.empty()) return;
  // One line is added. The library would write the whole file anew, without the user's remarks and without what it
  // does not understand.
  std::string line = fmt::format("{} {} {}\n", Name(), kind, bytes.toBase64().toStdString());
  const std::string folder = FolderOf(file_);
  if (!dirExists(folder) && MakeFolder(folder)) ::chmod(folder.c_str(), S_IRWXU);
  const int file = ::open(file_.c_str(), O_RDWR | O_APPEND | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
  if (file < 0) return;  // then it is a first time again the next time
  char last = '\n';
  const off_t end = ::lseek(file, 0, SEEK_END);
  if (end > 0 && ::pread(file, &last, 1, end - 1) == 1 && last != '\n') line.insert(0, "\n");
  (void)!::write(file, line.data(), line.size());
  ::close(file);
}

}  // namespace kinalyx
