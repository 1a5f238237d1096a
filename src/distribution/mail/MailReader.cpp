#include "distribution/mail/MailReader.h"

#include <algorithm>

#include "platform/files/Folders.h"
#include "platform/host/DriveWatch.h"
#include "platform/net/IMailSender.h"

namespace kinalyx {
namespace {

void AddTo(std::vector<std::string>& addresses, std::string_view text) {
  for (std::string& address : AddressesIn(text))
    if (std::ranges::find(addresses, address) == addresses.end()) addresses.push_back(std::move(address));
}

/// Of a video among a student's, or among what the student takes home.
std::string StudentFolderOf(const LibraryTree& tree, const std::string& video) {
  std::string folder = video.empty() ? std::string() : FolderOf(video);
  if (SameName(LastName(folder), "Lessons")) folder = FolderOf(folder);
  const bool students = !folder.empty() && folder == tree.StudentFolder(LastName(FolderOf(folder)), LastName(folder));
  return students ? folder : std::string();
}

}  // namespace

std::vector<std::string> AddressesIn(std::string_view text) {
  constexpr std::string_view kBetween = " \t\r\n,;";
  std::vector<std::string> addresses;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of(kBetween), text.size());
    std::string_view word = text.substr(0, end);
    if (word.starts_with('<') && word.ends_with('>')) word = word.substr(1, word.size() - 2);
    if (IsMailAddress(std::string(word))) addresses.emplace_back(word);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return addresses;
}

MailReader ReaderOf(IHost& host, const Settings& settings, const ProfileFields& fields, const std::string& video,
                    const LastStudentInfo& remembered) {
  const LibraryTree tree(settings);
  std::string folder = StudentFolderOf(tree, video);
  if (folder.empty() && !remembered[1].empty()) folder = tree.StudentFolder(remembered[0], remembered[1]);
  if (folder.empty()) return {};
  MailReader reader{.student = LastName(folder), .addresses = {}};
  const auto texts = host.Drives().Ask(tree.Root(), [folder, fields] {
    // The one that the field is for; then a parent's or a club's, wherever it was noted.
    std::vector<std::string> found = {GetEmailAddress(folder).value_or("")};
    // A value that fills its place was cut, and what it ends with may be no more than half an address.
    for (std::string& value : ReadFields(folder, fields))
      if (value.size() < static_cast<std::size_t>(kMaxFieldText)) found.push_back(std::move(value));
    return found;
  });
  if (texts)
    for (const std::string& text : *texts) AddTo(reader.addresses, text);
  return reader;
}

}  // namespace kinalyx
