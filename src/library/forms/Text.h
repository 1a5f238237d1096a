#pragma once

#include <QString>
#include <QStringList>
#include <string>
#include <vector>

namespace kinalyx {

/// UTF-8 on the logic's side, QString on the window's.
inline QString Q(const std::string& text) { return QString::fromStdString(text); }
inline std::string Std(const QString& text) { return text.toStdString(); }

inline QStringList Q(const std::vector<std::string>& texts) {
  QStringList list;
  list.reserve(static_cast<qsizetype>(texts.size()));
  for (const std::string& text : texts) list << Q(text);
  return list;
}

}  // namespace kinalyx
