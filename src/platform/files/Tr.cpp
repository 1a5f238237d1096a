#include "platform/files/Tr.h"

#include <QCoreApplication>

namespace kinalyx {

std::string Tr(const char* english) {
  return *english ? QCoreApplication::translate("Kinalyx", english).toStdString() : std::string();
}

std::string TrWith(const char* english, fmt::format_args values) {
  try {
    return fmt::vformat(Tr(english), values);
  } catch (const fmt::format_error&) {
    return fmt::vformat(english, values);
  }
}

}  // namespace kinalyx
