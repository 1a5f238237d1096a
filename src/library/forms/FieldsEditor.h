#pragma once

#include <QWidget>

#include "library/Profile.h"
#include "platform/host/Host.h"

namespace kinalyx {

class FieldBoxes;

/// The editor of the profile fields for the setup page: boxes `SPEdittext0` to `SPEdittext19`, each stored
/// when it is left.
class FieldsEditor : public QWidget {
  Q_OBJECT

 public:
  /// All that is passed outlives the editor.
  FieldsEditor(IHost& host, ProfileFields& fields, QWidget* parent = nullptr);

 signals:
  /// A caption has been stored; pages that show profiles read them again.
  void FieldsChanged();

 private:
  void Store(int field);

  IHost& host_;
  ProfileFields& fields_;
  FieldBoxes* boxes_;
};

}  // namespace kinalyx
