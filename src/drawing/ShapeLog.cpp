#include "drawing/ShapeLog.h"

#include <ctime>
#include <fstream>

namespace kinalyx {

void ShapeLog::WriteLog(const std::string& Text) const {
  if (!LogEnabled) return;
  const std::time_t moment = std::time(nullptr);
  std::tm local{};
  if (!localtime_r(&moment, &local)) return;
  std::ofstream file(path, std::ios::app);
  file << fmt::format("{:02}:{:02}:{:02} - {:02}/{:02}/{:04} - {}\n", local.tm_hour, local.tm_min, local.tm_sec,
                      local.tm_mday, local.tm_mon + 1, local.tm_year + 1900, Text);
}

}  // namespace kinalyx
