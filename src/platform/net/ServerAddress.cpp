#include "platform/net/ServerAddress.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <utility>

#include "platform/files/TextEncoding.h"
#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

constexpr int kMostPort = 65535;

bool IsPlain(char letter) { return static_cast<unsigned char>(letter) > ' ' && letter != 0x7f; }

/// Takes the way off that a text begins with.
ServerAddress TakeScheme(std::string_view& text) {
  struct Scheme {
    std::string_view name;
    ServerAddress::Kind kind;
    NetSecurity security;
  };
  constexpr Scheme kSchemes[] = {
      {"ftp://", ServerAddress::Kind::Ftp, NetSecurity::None},
      {"ftps://", ServerAddress::Kind::Ftp, NetSecurity::Tls},
      {"ftpes://", ServerAddress::Kind::Ftp, NetSecurity::StartTls},
      {"sftp://", ServerAddress::Kind::Sftp, NetSecurity::None},
  };
  ServerAddress address;
  for (const Scheme& scheme : kSchemes) {
    if (!FoldCase(text.substr(0, scheme.name.size())).starts_with(scheme.name)) continue;
    text.remove_prefix(scheme.name.size());
    address.kind = scheme.kind;
    address.security = scheme.security;
    break;
  }
  return address;
}

}  // namespace

Result<ServerAddress> ReadServerAddress(std::string_view text) {
  while (text.starts_with(' ')) text.remove_prefix(1);
  while (text.ends_with(' ')) text.remove_suffix(1);
  if (!std::ranges::all_of(text, IsPlain)) return Outcome::Failed(Tr("The address of the server holds a blank."));
  ServerAddress address = TakeScheme(text);
  if (text.find("://") != std::string_view::npos)
    return Outcome::Failed(Tr("The address must begin with ftp://, ftps://, ftpes:// or sftp://."));
  const std::size_t slash = std::min(text.find('/'), text.size());
  std::string_view server = text.substr(0, slash), folder = text.substr(slash);
  while (folder.starts_with('/')) folder.remove_prefix(1);
  while (folder.ends_with('/')) folder.remove_suffix(1);
  address.folder = folder;
  if (server.find('@') != std::string_view::npos)
    return Outcome::Failed(Tr("Name and password have fields of their own: they do not belong into the address."));
  // An address of numbers stands in brackets.
  const std::size_t colon = server.starts_with('[') ? server.find("]:") : server.find(':');
  if (colon != std::string_view::npos) {
    const std::string_view digits = server.substr(server.find(':', colon) + 1);
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), address.port);
    if (error != std::errc() || end != digits.data() + digits.size() || address.port < 1 || address.port > kMostPort)
      return Outcome::Failed(Tr("\"{}\" is no port.", digits));
    server = server.substr(0, server.starts_with('[') ? colon + 1 : colon);
  }
  if (server.empty()) return Outcome::Failed(Tr("The address of the server is empty."));
  address.host = server;
  return address;
}

}  // namespace kinalyx
