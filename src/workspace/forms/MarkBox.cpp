#include "workspace/forms/MarkBox.h"

#include <QCursor>
#include <QMenu>
#include <algorithm>

#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "workspace/forms/NameForm.h"
#include "workspace/forms/StageLook.h"

namespace kinalyx {
namespace {

constexpr int kGap = 3;
constexpr int kCardEdge = 6;
constexpr int kHeight = 22;
constexpr int kLongestName = 40;  // characters

}  // namespace

MarkBox::MarkBox(QWidget* parent) : QFrame(parent) {
  setObjectName("MarkBox");
  for (int i = 0; i < static_cast<int>(marks_.size()); ++i) {
    auto* mark = new QToolButton(this);
    mark->setObjectName(QString("Mark%1").arg(i));
    mark->setFocusPolicy(Qt::NoFocus);
    mark->setToolTip(tr("Go to this mark"));
    mark->hide();
    mark->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(mark, &QToolButton::clicked, this, [this, i] { emit Chosen(i); });
    connect(mark, &QWidget::customContextMenuRequested, this, [this, i] { ShowMenu(i); });
    marks_[static_cast<std::size_t>(i)] = mark;
  }
  hide();
}

void MarkBox::Dress() {
  WearStageSheet(this,
                 card_ ? "#MarkBox { background: @card; border: 1px solid @cardLine; border-radius: 8px; }"
                         "#MarkBox QToolButton { border: none; border-radius: 6px; background: @hover; color: @mark;"
                         "  padding: 0 6px; font-size: @11; }"
                         "#MarkBox QToolButton:hover, #MarkBox QToolButton:pressed { background: @accentFill; }"
                       : "#MarkBox { background: transparent; border: none; }"
                         "#MarkBox QToolButton { border: none; border-radius: 6px; background: @card; color: @mark;"
                         "  padding: 0 6px; font-size: @11; }"
                         "#MarkBox QToolButton:hover { background: @hover; }"
                         "#MarkBox QToolButton:pressed { background: @accentFill; }");
}

void MarkBox::ShowMenu(int mark) {
  QMenu menu(this);
  menu.setObjectName("MarkMenu");
  // One text: the address before a swing and that of a person are two words in most languages.
  const QStringList usual = tr("Address, Top, Impact, Finish").split(", ");
  const auto offer = [&](const QString& name) {
    // An ampersand in a name is no key.
    menu.addAction(QString(name).replace("&", "&&"), this, [this, mark, name] { emit Named(mark, name); });
  };
  for (const QString& name : usual) offer(name);
  menu.addSeparator();
  for (const QString& name : names_)
    if (!usual.contains(name, Qt::CaseInsensitive)) offer(name);
  menu.addAction(tr("Other Name..."), this, [this, mark] {
    NameForm form("MarkName", tr("Name of the mark"), tr("What is seen here?"), kLongestName, window());
    form.BeginWith(present_.value(mark));
    if (form.exec() == QDialog::Accepted) emit Named(mark, form.Name());
  });
  menu.addSeparator();
  menu.addAction(tr("No Name"), this, [this, mark] { emit Named(mark, {}); });
  menu.addAction(tr("Remove Mark"), this, [this, mark] { emit Removed(mark); });
  menu.exec(QCursor::pos());
}

void MarkBox::SetMarks(const std::vector<ShownMark>& marks, const QStringList& names) {
  present_.clear();
  for (const ShownMark& mark : marks) present_ << Q(mark.name);
  names_ = names;
  count_ = static_cast<int>(std::min(marks.size(), marks_.size()));
  for (std::size_t i = 0; i < marks_.size(); ++i) {
    const bool used = static_cast<int>(i) < count_;
    if (used) {
      const QString name = Q(marks[i].name);
      marks_[i]->setText(name.isEmpty() ? QString::number(marks[i].position) : name);
      marks_[i]->setToolTip(name.isEmpty() ? tr("Go to this mark. A right click names it.")
                                           : tr("Go to \"%1\", picture %2").arg(name).arg(marks[i].position));
    }
    marks_[i]->setVisible(used);
  }
}

int MarkBox::ButtonWidth() const {
  int widest = 0;
  for (int i = 0; i < count_; ++i) widest = std::max(widest, marks_[static_cast<std::size_t>(i)]->sizeHint().width());
  return widest;
}

int MarkBox::RowWidth() const { return count_ == 0 ? 0 : count_ * (ButtonWidth() + kGap) - kGap; }

void MarkBox::Lay(int columns, int edge) {
  const QSize each(ButtonWidth(), Px(kHeight));
  for (int i = 0; i < count_; ++i)
    marks_[static_cast<std::size_t>(i)]->setGeometry(
        {{edge + i % columns * (each.width() + kGap), edge + i / columns * (each.height() + kGap)}, each});
  const int rows = (count_ + columns - 1) / columns;
  resize(2 * edge + columns * (each.width() + kGap) - kGap, 2 * edge + rows * (each.height() + kGap) - kGap);
}

void MarkBox::ShowRow(QWidget* bar, const QPoint& at) {
  if (parentWidget() != bar) setParent(bar);
  card_ = false;
  Dress();
  Lay(std::max(1, count_), 0);
  move(at);
  show();
}

void MarkBox::ShowCard(QWidget* stage, int widest) {
  const bool comes = isHidden() || parentWidget() != stage;
  if (parentWidget() != stage) setParent(stage);
  card_ = true;
  Dress();
  const int fit = std::max(1, (widest - 2 * kCardEdge + kGap) / (ButtonWidth() + kGap));
  // Two equal rows look calmer than nine and one.
  const int rows = (count_ + fit - 1) / fit;
  Lay((count_ + rows - 1) / rows, kCardEdge);
  if (!comes) return;
  show();
  raise();
}

}  // namespace kinalyx
