#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/Settings.h"
#include "library/LibraryTree.h"
#include "library/Profile.h"
#include "platform/host/Host.h"

namespace kinalyx {

/// Who gets the pictures.
struct MailReader {
  std::string student;                 ///< empty: nobody is known
  std::vector<std::string> addresses;  ///< of the profile, that for mail first
};

/// The addresses in a text of several, divided by blanks, commas or semicolons.
std::vector<std::string> AddressesIn(std::string_view text);

/// Whose video it is, and else who is selected in the library. A drive that does not answer gives no addresses.
/// @param video  path; empty for none
MailReader ReaderOf(IHost& host, const Settings& settings, const ProfileFields& fields, const std::string& video,
                    const LastStudentInfo& remembered);

}  // namespace kinalyx
