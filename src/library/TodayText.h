#pragma once

#include <chrono>
#include <string>
#include <string_view>

namespace kinalyx {

/// Today's date as capture names use it, always month first: MM/dd/yyyy where that is the user's short
/// date format, MM/dd/yy for every other.
std::string ChangeDateFormat();

/// The same for a given day and short date format ("%m/%d/%Y" form).
std::string DateText(std::chrono::year_month_day day, std::string_view shortDateFormat);

}  // namespace kinalyx
