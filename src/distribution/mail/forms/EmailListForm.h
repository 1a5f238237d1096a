#pragma once

#include <QDialog>
#include <string>
#include <vector>

class QListWidget;

namespace kinalyx {

/// The addresses of a student, of which up to three are chosen.
class EmailListForm final : public QDialog {
  Q_OBJECT

 public:
  static constexpr int kMost = 3;

  /// @param chosen  those that are chosen already
  EmailListForm(const QString& student, const std::vector<std::string>& addresses,
                const std::vector<std::string>& chosen, QWidget* over);

  /// Once it was accepted.
  std::vector<std::string> Chosen() const;

 private:
  void LimitChoice();

  QListWidget* list_;
};

}  // namespace kinalyx
