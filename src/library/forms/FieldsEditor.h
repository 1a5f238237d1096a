#pragma once

#include <QWidget>
#include <array>
#include <functional>

#include "library/Profile.h"
#include "platform/host/Host.h"

class QLineEdit;

namespace kinalyx {

/// The editor of the profile fields for the setup page: boxes `SPEdittext0` to `SPEdittext19`, each stored
/// when it is left.
class FieldsEditor : public QWidget {
  Q_OBJECT

 public:
  /// @param changed  called after a caption has been stored; pages that show profiles read them again
  FieldsEditor(IHost& host, ProfileFields& fields, std::function<void()> changed, QWidget* parent = nullptr);

  /// Shows the captions as they are now.
  void ShowCaptions();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void Store(int field);
  void Arrange();

  IHost& host_;
  ProfileFields& fields_;
  std::function<void()> changed_;
  class QGridLayout* grid_ = nullptr;
  int columns_ = 0;
  std::array<QWidget*, kProfileFields> cells_{};
  std::array<QLineEdit*, kProfileFields> boxes_{};
};

}  // namespace kinalyx
