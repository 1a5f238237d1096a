#include "core/forms/SetupSection.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QWheelEvent>

#include "platform/widgets/Figures.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {
constexpr int kWidestSection = 1400;  // as designed
}

SettlingSlider::SettlingSlider(const QString& name) : QSlider(Qt::Horizontal) {
  setObjectName(name);
  connect(this, &QSlider::valueChanged, this, [this](int number) {
    if (!isSliderDown()) emit Settled(number);
  });
  connect(this, &QSlider::sliderReleased, this, [this] { emit Settled(value()); });
}

SetupSection::SetupSection(const QString& name, Settings& settings, QWidget* parent)
    : QScrollArea(parent), settings_(settings) {
  setObjectName(name);
  setFrameShape(QFrame::NoFrame);
  setWidgetResizable(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFocusPolicy(Qt::NoFocus);
  auto* ground = new QWidget;
  ground->setProperty("look", "clear");
  auto* row = new QHBoxLayout(ground);
  row->setContentsMargins(0, 0, 6, 0);
  row->setSpacing(0);
  auto* content = new QWidget;
  MostWidth(content, kWidestSection);
  auto* columns = new QHBoxLayout(content);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->setSpacing(kGap);
  for (auto& column : columns_) {
    column = new QVBoxLayout;
    column->setSpacing(kGap);
    columns->addLayout(column, 1);
  }
  row->addWidget(content, 1000);
  row->addStretch(1);  // on a very wide page the columns stay beside the sections
  setWidget(ground);
  viewport()->setAutoFillBackground(false);
}

QVBoxLayout* SetupSection::AddPanel(int column, const QString& title) {
  auto* panel = new kinalyx::Panel({}, title);  // QFrame has a Panel of its own
  LeastWidth(panel, 300);
  auto* rows = new QVBoxLayout;
  rows->setContentsMargins(kGap, 10, kGap, 14);
  rows->setSpacing(6);
  panel->Body()->addLayout(rows);
  columns_[column]->addWidget(panel);
  return rows;
}

void SetupSection::Finish() {
  for (auto* column : columns_) column->addStretch(1);
  GuardWheel(*widget());
}

void SetupSection::AddGuest(int column, QWidget* panel) {
  columns_[column]->insertWidget(columns_[column]->count() - 1, panel);
  GuardWheel(*panel);
}

void SetupSection::GuardWheel(QWidget& part) {
  const auto guard = [this](QWidget* control) {
    control->setFocusPolicy(Qt::StrongFocus);
    control->installEventFilter(this);
  };
  for (auto* list : part.findChildren<QComboBox*>()) guard(list);
  for (auto* slider : part.findChildren<QSlider*>()) guard(slider);
}

bool SetupSection::eventFilter(QObject* watched, QEvent* event) {
  // The wheel turns the page and never a control of it. The base watches others: through the bar it turns the page.
  const bool guarded = qobject_cast<QComboBox*>(watched) || qobject_cast<QSlider*>(watched);
  if (event->type() == QEvent::Wheel && guarded) {
    const auto& wheel = *static_cast<QWheelEvent*>(event);
    QWheelEvent onPage(viewport()->mapFromGlobal(wheel.globalPosition()), wheel.globalPosition(), wheel.pixelDelta(),
                       wheel.angleDelta(), wheel.buttons(), wheel.modifiers(), wheel.phase(), wheel.inverted(),
                       wheel.source(), wheel.pointingDevice());
    QCoreApplication::sendEvent(viewport(), &onPage);
    return true;
  }
  return QScrollArea::eventFilter(watched, event);
}

QLineEdit* SetupSection::AddText(QVBoxLayout& rows, const QString& name, const QString& caption) {
  QLabel* label = MakeLabel({}, caption, "caption");
  auto* box = new QLineEdit;
  box->setObjectName(name);
  box->setMaxLength(149);  // what is read back
  label->setBuddy(box);
  rows.addWidget(label);
  rows.addWidget(box);
  return box;
}

SettlingSlider* SetupSection::AddSlider(QVBoxLayout& rows, const QString& name, const QString& caption, int low,
                                        int high, const QString& unit) {
  rows.addWidget(MakeLabel({}, caption, "caption"));
  auto* slider = new SettlingSlider(name);
  slider->setAccessibleName(caption);
  slider->setRange(low, high);
  auto* value = new FigureLabel(name + "Lbl");
  LeastWidth(value, 52);
  value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  auto* row = new QHBoxLayout;
  row->addWidget(slider, 1);
  row->addWidget(value);
  rows.addLayout(row);
  const auto show = [value, unit](int number) { value->setText(QString::number(number) + unit); };
  show(slider->value());
  connect(slider, &QSlider::valueChanged, value, show);
  return slider;
}

QButtonGroup* SetupSection::AddRadios(QVBoxLayout& rows, const QString& name,
                                      std::initializer_list<const char*> captions) {
  QButtonGroup* group = nullptr;
  int index = 0;
  for (const char* caption : captions) {
    auto* radio = new QRadioButton(tr(caption));
    radio->setObjectName(name + QString::number(index));
    if (!group) group = new QButtonGroup(radio);
    group->addButton(radio, index++);
    rows.addWidget(radio);
  }
  return group;
}

}  // namespace kinalyx
