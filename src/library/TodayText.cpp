#include "library/TodayText.h"

#include <fmt/format.h>
#include <langinfo.h>
#include <locale.h>

#include <ctime>

namespace kinalyx {

namespace {

/// The short date format of the user's language, "%m/%d/%y" form. Asked for afresh, as the program itself
/// may run in another locale.
std::string ShortDateFormat() {
  const locale_t locale = newlocale(LC_TIME_MASK, "", nullptr);
  if (!locale) return {};
  std::string format = nl_langinfo_l(D_FMT, locale);
  freelocale(locale);
  return format;
}

}  // namespace

std::string ChangeDateFormat() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  const std::chrono::year_month_day today(std::chrono::year(local.tm_year + 1900),
                                          std::chrono::month(static_cast<unsigned>(local.tm_mon + 1)),
                                          std::chrono::day(static_cast<unsigned>(local.tm_mday)));
  return DateText(today, ShortDateFormat());
}

std::string DateText(std::chrono::year_month_day day, std::string_view shortDateFormat) {
  const unsigned month = static_cast<unsigned>(day.month());
  const unsigned date = static_cast<unsigned>(day.day());
  const int year = static_cast<int>(day.year());
  if (shortDateFormat == "%m/%d/%Y") return fmt::format("{:02}/{:02}/{:04}", month, date, year);
  return fmt::format("{:02}/{:02}/{:02}", month, date, year % 100);
}

}  // namespace kinalyx
