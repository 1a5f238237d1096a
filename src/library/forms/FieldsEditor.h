#pragma once

#include <QWidget>
#include <functional>

#include "library/Profile.h"
#include "platform/host/Host.h"

namespace kinalyx {

class FieldBoxes;

/// The editor of the profile fields for the setup page: boxes `SPEdittext0` to `SPEdittext19`, each stored
/// when it is left.
class FieldsEditor : public QWidget {
  Q_OBJECT

 public:
  /// @param changed  called after a caption has been stored; pages that show profiles read them again
  FieldsEditor(IHost& host, ProfileFields& fields, std::function<void()> changed, QWidget* parent = nullptr);

 private:
  void Store(int field);

  IHost& host_;
  ProfileFields& fields_;
  std::function<void()> changed_;
  FieldBoxes* boxes_;
};

}  // namespace kinalyx
