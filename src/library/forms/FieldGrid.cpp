#include "library/forms/FieldGrid.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>

#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

constexpr int kCellHeight = 46;
constexpr int kLeastCell = 172;
constexpr int kMostColumns = 5;

}  // namespace

class ValueLabel final : public QLabel {
 public:
  explicit ValueLabel(const QString& name) {
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::NoTextInteraction);
  }
  void SetValue(const QString& value) {
    setText(value);
    UpdateTip();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter, Cut());
  }
  void resizeEvent(QResizeEvent*) override { UpdateTip(); }

 private:
  QString Cut() const { return fontMetrics().elidedText(text(), Qt::ElideRight, width()); }
  void UpdateTip() { setToolTip(Cut() == text() ? QString() : text()); }
};

FieldGrid::FieldGrid(QWidget* parent) : QWidget(parent) {
  QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
  for (int field = 0; field < kProfileFields; ++field) {
    const auto at = static_cast<std::size_t>(field);
    captions_[at] = MakeLabel(QString("ProFieldLbl%1").arg(field), {}, "caption", this);
    values_[at] = new ValueLabel(QString("ProInfoLbl%1").arg(field));
    values_[at]->setParent(this);
    fields_.push_back(field);
  }
}

void FieldGrid::SetCaptions(const FieldTexts& captions) {
  for (std::size_t field = 0; field < captions.size(); ++field) {
    captions_[field]->setText(Q(captions[field]));
    values_[field]->setAccessibleName(Q(captions[field]));
  }
}

void FieldGrid::SetValue(int field, const QString& value) { values_[static_cast<std::size_t>(field)]->SetValue(value); }

void FieldGrid::SetValues(const FieldTexts& values) {
  for (int field = 0; field < kProfileFields; ++field) SetValue(field, Q(values[static_cast<std::size_t>(field)]));
}

void FieldGrid::ShowFields(std::vector<int> fields) {
  fields_ = std::move(fields);
  updateGeometry();
  Place();
  update();
}

int FieldGrid::ColumnsFor(int width) const {
  const int most = std::min<int>(kMostColumns, static_cast<int>(fields_.size()));
  int columns = std::clamp(width / Px(kLeastCell), 1, std::max(1, most));
  // No ragged last row where one column less fills all rows: 4 rather than 5 for eight fields.
  const int count = static_cast<int>(fields_.size());
  if (columns > 2 && count % columns != 0 && count % (columns - 1) == 0) --columns;
  return columns;
}

int FieldGrid::heightForWidth(int width) const {
  const int columns = ColumnsFor(width);
  return (static_cast<int>(fields_.size()) + columns - 1) / columns * Px(kCellHeight);
}

QSize FieldGrid::sizeHint() const { return {4 * Px(kLeastCell), heightForWidth(width())}; }

QSize FieldGrid::minimumSizeHint() const { return {Px(kLeastCell), heightForWidth(width())}; }

QRect FieldGrid::CellRect(int place) const {
  const int columns = ColumnsFor(width());
  const int column = place % columns;
  const int left = column * width() / columns;
  return {left, place / columns * Px(kCellHeight), (column + 1) * width() / columns - left, Px(kCellHeight)};
}

void FieldGrid::Place() {
  for (QLabel* label : captions_) label->hide();
  for (ValueLabel* label : values_) label->hide();
  for (std::size_t place = 0; place < fields_.size(); ++place) {
    const auto field = static_cast<std::size_t>(fields_[place]);
    const QRect cell = CellRect(static_cast<int>(place)).adjusted(kGap, 0, -8, 0);
    captions_[field]->setGeometry(cell.left(), cell.top() + Px(6), cell.width(), Px(16));
    values_[field]->setGeometry(cell.left(), cell.top() + Px(22), cell.width(), Px(18));
    captions_[field]->show();
    values_[field]->show();
  }
}

void FieldGrid::resizeEvent(QResizeEvent*) {
  Place();
  updateGeometry();
}

/// Other letters take other rooms.
void FieldGrid::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::StyleChange) return;
  Place();
  updateGeometry();
}

void FieldGrid::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(CurrentTheme().line);
  for (std::size_t place = 0; place < fields_.size(); ++place) {
    const QRect cell = CellRect(static_cast<int>(place));
    if (cell.left() > 0) painter.drawLine(cell.left(), cell.top(), cell.left(), cell.bottom());
    if (cell.top() > 0) painter.drawLine(cell.left(), cell.top(), cell.right(), cell.top());
  }
}

}  // namespace kinalyx
