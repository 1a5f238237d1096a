#pragma once

#include <QWidget>

#include "core/Settings.h"
#include "platform/host/Host.h"

class QComboBox;

namespace kinalyx {

/// The choice of where videos go to, or come from, outside the library: the drives that come and go, or any
/// folder. What is chosen is kept as the `Exporter` of the settings.
class DriveChoice : public QWidget {
  Q_OBJECT

 public:
  /// @param name  of the list box; the button beside it is called the same with "Browse" at its end
  DriveChoice(const QString& name, IHost& host, Settings& settings, QWidget* parent = nullptr);

  /// Looks for drives again and shows what the settings hold.
  void Refresh();
  /// The chosen folder, "" for none. It may have been taken away.
  std::string Path() const;

 signals:
  /// The user has chosen another one.
  void Chosen();

 private:
  void Browse();
  void Store(const std::string& path);

  IHost& host_;
  Settings& settings_;
  QComboBox* list_;
};

}  // namespace kinalyx
