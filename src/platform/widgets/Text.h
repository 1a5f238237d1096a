#pragma once

#include <QString>
#include <QStringList>
#include <string>
#include <string_view>
#include <vector>

namespace kinalyx {

/// UTF-8 on the logic's side, QString on the window's.
inline QString Q(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }
inline std::string Std(const QString& text) { return text.toStdString(); }

inline QStringList Q(const std::vector<std::string>& texts) {
  QStringList list;
  list.reserve(static_cast<qsizetype>(texts.size()));
  for (const std::string& text : texts) list << Q(text);
  return list;
}

}  // namespace kinalyx
