#pragma once

#include <QWidget>
#include <array>
#include <vector>

#include "library/Profile.h"

class QLabel;

namespace kinalyx {

/// One line of text that ends in an ellipsis when it doesn't fit; its tip then shows all of it.
class ValueLabel;

/// Captions with values beneath them, in as many columns as the width has room for, ruled like a form:
/// `ProFieldLbl0` to `ProFieldLbl19` and `ProInfoLbl0` to `ProInfoLbl19`.
class FieldGrid : public QWidget {
  Q_OBJECT

 public:
  explicit FieldGrid(QWidget* parent = nullptr);

  void SetCaptions(const FieldTexts& captions);
  void SetValue(int field, const QString& value);
  void SetValues(const FieldTexts& values);
  /// The fields that are shown, in their order.
  void ShowFields(std::vector<int> fields);

  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent*) override;
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent*) override;

 private:
  int ColumnsFor(int width) const;
  QRect CellRect(int place) const;
  void Place();

  std::array<QLabel*, kProfileFields> captions_{};
  std::array<ValueLabel*, kProfileFields> values_{};
  std::vector<int> fields_;
};

}  // namespace kinalyx
