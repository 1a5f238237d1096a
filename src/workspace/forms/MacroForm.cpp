#include "workspace/forms/MacroForm.h"

#include <QBoxLayout>
#include <QEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"
#include "workspace/forms/StageLook.h"
#include "workspace/forms/StageParts.h"

namespace kinalyx {
namespace {

constexpr const char* kListSheet =
    "QListWidget { background: @ground; color: @ink; border: 1px solid @outline; border-radius: 6px; outline: none; }"
    "QListWidget:focus { border-color: @accent; }"
    "QListWidget::item { padding: 0 8px; height: @28; border: none; background: transparent; }"
    "QListWidget::item:hover { background: @hover; }"
    "QListWidget::item:selected { background: @accentFill; color: @ink; }";

}  // namespace

void ShowDrawing(SurfaceView& view, const ShapeList& drawing, const ShapeLook& look) {
  const qreal ratio = view.devicePixelRatioF();
  // Small lines are thickened, and the ground lets dark and light ones be seen; nothing is nothing but dark.
  const double light = drawing.NumShapes > 0 ? 0.42 : 0;
  const ShapeLook bold{2 * look.CadWidth, look.CadOutline, look.PathHighlight};
  view.Show(PaintMacro(drawing, qRound(view.width() * ratio), qRound(view.height() * ratio),
                       FromQColor(Mix(StageLook::Current().ground, Qt::white, light)), bold));
}

MacroForm::MacroForm(DrawingEdits& edits, QWidget* stage)
    : FloatCard("MacroForm", tr("Insert Drawing Macro"), stage), edits_(edits) {
  content_ = new QWidget(this);
  auto* columns = new QHBoxLayout(content_);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->setSpacing(10);
  lstMacro_ = new QListWidget(content_);
  lstMacro_->setObjectName("lstMacro");
  lstMacro_->setAccessibleName(tr("Macros"));
  FixSize(lstMacro_, {190, 240});
  lstMacro_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  lstMacro_->setTextElideMode(Qt::ElideRight);
  lstMacro_->setUniformItemSizes(true);
  auto* overList = new QVBoxLayout(lstMacro_->viewport());
  none_ =
      MakeLabel("NoMacros", tr("No macros yet. Draw something, then choose Save Drawing Macro."), nullptr, lstMacro_);
  none_->setProperty("muted", true);
  none_->setWordWrap(true);
  none_->setAttribute(Qt::WA_TransparentForMouseEvents);
  overList->addWidget(none_, 0, Qt::AlignTop);
  columns->addWidget(lstMacro_);

  auto* right = new QVBoxLayout;
  right->setSpacing(10);
  picture_ = new SurfaceView("MacroPic", content_);
  FixSize(picture_, {264, 198});
  picture_->show();
  right->addWidget(picture_);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(6);
  const auto add = [&](const char* name, const QString& caption, const QString& tip) {
    auto* button = new QPushButton(caption, content_);
    button->setObjectName(name);
    button->setToolTip(tip);
    button->setFocusPolicy(Qt::TabFocus);
    button->setAutoDefault(true);  // Return presses the one that has the keys
    buttons->addWidget(button, 1);
    return button;
  };
  MacroBtn_ = add("MacroBtn", tr("Insert"), {});
  MacroBtn_->setProperty("main", true);
  cmdInfo_ = add("cmdInfo", tr("Info"), tr("What the macro is made of"));
  remove_ = add("SSCommand1", tr("Remove"), tr("Removes the macro from the list"));
  right->addLayout(buttons);
  columns->addLayout(right);
  Body()->addWidget(content_);

  connect(lstMacro_, &QListWidget::currentRowChanged, this, [this] { lstMacro_Click(); });
  connect(lstMacro_, &QListWidget::itemActivated, this, [this] { edits_.InsertMacro(lstMacro_->currentRow()); });
  connect(MacroBtn_, &QPushButton::clicked, this, [this] { edits_.InsertMacro(lstMacro_->currentRow()); });
  connect(cmdInfo_, &QPushButton::clicked, this, [this] { edits_.ShowMacroInfo(lstMacro_->currentRow()); });
  connect(remove_, &QPushButton::clicked, this, [this] { edits_.DeleteMacro(lstMacro_->currentRow()); });
  connect(this, &FloatCard::CloseWanted, this, [this] { edits_.ToggleMacroForm(); });
  FirstDress();
  lstMacro_Click();
}

void MacroForm::ClearMList() {
  lstMacro_->clear();
  none_->show();
  lstMacro_Click();
}

void MacroForm::AddMacro(const QString& Name) {
  auto* item = new QListWidgetItem(Name, lstMacro_);  // the list owns it
  item->setToolTip(Name);
  none_->hide();
}

void MacroForm::Choose(int row) {
  lstMacro_->setCurrentRow(row);
  lstMacro_Click();
}

void MacroForm::lstMacro_Click() {
  const int row = lstMacro_->currentRow();
  const bool any = row >= 0 && row < edits_.MacroList().NumMacros();
  ShowDrawing(*picture_, any ? edits_.MacroList().Macro(row) : ShapeList{}, edits_.Look());
  cmdInfo_->setEnabled(any);
  remove_->setEnabled(any);
  Update();
}

void MacroForm::Update() {
  const bool any = lstMacro_->currentRow() >= 0;
  MacroBtn_->setEnabled(any && edits_.HasVideo());
  MacroBtn_->setToolTip(!any ? tr("There are no macros yet; save a drawing as one first")
                        : edits_.HasVideo()
                            ? tr("Lays the drawing over the current video in place of what is drawn there")
                            : tr("Open a video first"));
}

void MacroForm::Dress() {
  FloatCard::Dress();
  WearStageSheet(content_, kListSheet);
}

}  // namespace kinalyx
