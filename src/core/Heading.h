#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace kinalyx {

class Settings;

/// What stands over the main menu, printed pages and clips: five lines, and the company at the head of every page. The
/// settings hold what the user has typed, or what they start with, which is shown in the user's language.

constexpr std::size_t kHeadingLines = 5;
using HeadingLines = std::array<std::string, kHeadingLines>;

/// The lines that settings start with, as they are stored.
HeadingLines FirstHeading();
/// The lines as they are shown.
HeadingLines ShownHeading(const Settings& settings);

/// What the settings hold while nobody has given a company.
extern const char* const kNoCompany;
/// The company as it is shown.
std::string ShownCompany(const Settings& settings);

}  // namespace kinalyx
