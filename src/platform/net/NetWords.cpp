#include "platform/net/NetWords.h"

#include <fmt/format.h>

#include <algorithm>

#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

/// What OpenSSL says of certificates.
constexpr long kNotYetValid = 9, kExpired = 10, kSelfSigned = 18, kSelfSignedInChain = 19, kNoIssuer = 20,
               kNoFirst = 21, kOtherHost = 62, kOtherAddress = 64;

Outcome ExplainCertificate(const CurlEnd& end, const NetParty& party) {
  std::string why;
  switch (end.certificate) {
    case kExpired:
      why = Tr("has run out. Either the server has forgotten to renew it, or the clock of this computer is wrong");
      break;
    case kNotYetValid: why = Tr("is not valid yet. The clock of this computer may be wrong"); break;
    case kSelfSigned:
    case kSelfSignedInChain:
    case kNoIssuer:
    case kNoFirst: why = Tr("is signed by nobody whom this computer trusts"); break;
    default: {
      const bool other = end.certificate == kOtherHost || end.certificate == kOtherAddress ||
                         end.error.find("does not match") != std::string::npos ||
                         end.error.find("no alternative certificate") != std::string::npos;
      why =
          other
              ? Tr("belongs to a server of another name. Compare the name in the settings with what your provider says")
              : Tr("cannot be checked");
      break;
    }
  }
  return {Fault::Refused,
          Tr("The certificate with which \"{}\" proves who it is {}. Somebody else may be in between, so "
             "nothing was sent, and no password.",
             party.host, why)};
}

std::string ExplainSilence(const NetParty& party) {
  const std::string hint =
      party.security == NetSecurity::None
          ? Tr(" Some servers wait for encryption from the first byte: see whether port and encryption in "
               "the settings are as your provider says.")
          : "";
  return Tr("The {} \"{}\" has stopped answering.{}", party.kind, party.host, hint);
}

}  // namespace

std::string SaidBy(const CurlEnd& end, const NetParty& party) {
  const std::string words = CleanWords(end.words, party.password);
  if (end.reply == 0 || words.empty()) return {};
  return Tr(" The server says: \"{} {}\"", end.reply, words);
}

Outcome ExplainEnd(const CurlEnd& end, const NetParty& party) {
  const auto failed = [&](std::string_view pattern) {
    return Outcome::Failed(fmt::format(fmt::runtime(pattern), party.kind, party.host));
  };
  switch (end.how) {
    case CurlEnd::How::Cancelled: return {Fault::Cancelled, Tr("It was cancelled.")};
    case CurlEnd::How::Unreachable:
      return failed(Tr("The {} \"{}\" does not answer. Is this computer connected to the Internet?"));
    case CurlEnd::How::Silent: return Outcome::Failed(ExplainSilence(party));
    case CurlEnd::How::Answered: break;
  }
  if (end.reply == 421)
    return Outcome::Failed(Tr("The {} \"{}\" is busy and has hung up.{}", party.kind, party.host, SaidBy(end, party)));
  switch (end.code) {
    case CURLE_COULDNT_RESOLVE_HOST:
      return failed(Tr("There is no {} of the name \"{}\", or this computer is not connected to the Internet."));
    case CURLE_COULDNT_CONNECT: return failed(Tr("The {} \"{}\" takes no calls at this port."));
    case CURLE_OPERATION_TIMEDOUT: return Outcome::Failed(ExplainSilence(party));
    case CURLE_LOGIN_DENIED:
      return {Fault::Refused, Tr("The {} \"{}\" does not accept the login or the password.{}", party.kind, party.host,
                                 SaidBy(end, party))};
    case CURLE_PEER_FAILED_VERIFICATION:
    case CURLE_SSL_ISSUER_ERROR: return ExplainCertificate(end, party);
    case CURLE_SSL_CACERT_BADFILE:
      return failed(Tr("The certificates by which the {} \"{}\" is checked cannot be read."));
    case CURLE_SSL_CONNECT_ERROR:
      return failed(
          Tr("The {} \"{}\" does not speak the encryption that the settings want at this port. See whether port and "
             "encryption are as your provider says."));
    case CURLE_USE_SSL_FAILED:
      return {Fault::Refused,
              Tr("The {} \"{}\" offers no encryption, so nothing was sent, and no password.", party.kind, party.host)};
    case CURLE_WEIRD_SERVER_REPLY:
    case CURLE_FTP_WEIRD_PASS_REPLY:
      return failed(Tr("What answers is no {}. See whether name and port of \"{}\" are right."));
    case CURLE_SEND_ERROR:
    case CURLE_RECV_ERROR:
    case CURLE_GOT_NOTHING:
    case CURLE_PARTIAL_FILE:
      if (end.reply >= 400)
        return Outcome::Failed(Tr("The {} \"{}\" has refused it.{}", party.kind, party.host, SaidBy(end, party)));
      return failed(Tr("The connection to the {} \"{}\" broke off."));
    default: break;
  }
  const std::string own = CleanWords(end.error.empty() ? curl_easy_strerror(end.code) : end.error, party.password);
  return Outcome::Failed(Tr("The {} \"{}\" did not do it: {}.{}", party.kind, party.host, own, SaidBy(end, party)));
}

bool HasControls(const std::string& text) {
  return std::ranges::any_of(text, [](char c) { return static_cast<unsigned char>(c) < ' ' || c == 0x7f; });
}

bool IsHostName(const std::string& host) {
  if (host.empty()) return false;
  const bool numbers = host.starts_with('[') && host.ends_with(']');
  const std::string inner = numbers ? host.substr(1, host.size() - 2) : host;
  return !inner.empty() && std::ranges::all_of(inner, [numbers](char c) {
    const bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
    return letter || c == '.' || (numbers ? c == ':' : c == '-' || c == '_' || static_cast<unsigned char>(c) >= 0x80);
  });
}

}  // namespace kinalyx
