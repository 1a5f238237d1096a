#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <stdexcept>
#include <string>

#include "platform/widgets/NameList.h"

namespace kinalyx::test {

/// Does what a user does to a form, through the names of its controls.
class FormDriver {
 public:
  virtual ~FormDriver() = default;

  template <typename Widget>
  Widget* Find(const char* name) {
    auto* widget = Form().template findChild<Widget*>(name);
    if (!widget) throw std::runtime_error(std::string("no control ") + name);
    return widget;
  }
  NameList* List(const char* name) { return Find<NameList>(name); }
  QStringList Rows(const char* list) {
    QStringList rows;
    for (int row = 0; row < List(list)->count(); ++row) rows << List(list)->item(row)->text();
    return rows;
  }
  void Choose(const char* list, const QString& entry) { List(list)->setCurrentRow(int(Rows(list).indexOf(entry))); }
  QString Text(const char* label) { return Find<QLabel>(label)->text(); }
  void Press(const char* button) { Find<QAbstractButton>(button)->click(); }
  void Type(const char* box, const QString& text) { Find<QLineEdit>(box)->setText(text); }

 private:
  virtual QWidget& Form() = 0;
};

}  // namespace kinalyx::test
