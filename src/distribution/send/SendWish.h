#pragma once

#include <string>
#include <vector>

#include "distribution/send/FilesToSend.h"

namespace kinalyx {

/// What the Send Lessons page is asked for; the index of its buttons `SSCommand4`.
enum class SendMode { Email, Web, Disc };

/// The words of the page in a mode.
const char* TitleOf(SendMode mode);
const char* ButtonOf(SendMode mode);

/// To whom the listed files go, by mail or as a page.
struct SendWish {
  SendMode mode = SendMode::Email;
  std::string student;  ///< empty: none is selected
  std::vector<std::string> addresses;
};

/// What is missing to a wish, in words for the user; empty where nothing is.
/// @param addresses  as they were typed; blank ones do not count, and the wish gets the others without blanks
/// @param noun       the user's word for the student
std::string CheckWish(SendWish& wish, const FilesToSend& files, const std::vector<std::string>& addresses,
                      const std::string& noun);

}  // namespace kinalyx
