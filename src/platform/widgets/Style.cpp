#include "platform/widgets/Style.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QPainter>
#include <QPainterPath>
#include <QApplication>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTreeView>

#include "platform/widgets/Icons.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

constexpr int kIndicator = 18;

/// What check marks, radio dots and combo boxes are drawn with.
struct ControlInks {
  QColor field;
  QColor idle;  ///< fill of what is disabled
  QColor outline;
  QColor idleLine;
  QColor active;  ///< outline under the mouse and with the keys, fill of what is on
  QColor mark;    ///< on `active`
  QColor sign;    ///< the arrow
  QColor faint;
};

/// A control whose words are light stands on the dark stage.
ControlInks InksFor(const QStyleOption& option) {
  const Theme t = CurrentTheme();
  if (qGray(option.palette.color(QPalette::Active, QPalette::WindowText).rgb()) < 128)
    return {t.field, t.idle, t.outline, t.line, t.accent, t.accentText, t.heading, t.faint};
  return {t.stage, t.stage, t.stageOutline, t.stageLine, t.stageFrame, t.stage, t.stageText, t.stageOutline};
}

/// Qt's own dialog opens with columns that are too narrow for a size and a date.
void FitFileDialog(QFileDialog& dialog) {
  dialog.setMinimumSize(Px(820), Px(480));
  auto* files = dialog.findChild<QTreeView*>("treeView");
  if (!files) return;
  for (int column = 1; column < files->header()->count(); ++column)
    files->header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
  files->header()->setSectionResizeMode(0, QHeaderView::Stretch);
}

constexpr const char* kStill = "kinalyxStill";

class Style : public QProxyStyle {
 public:
  Style() : QProxyStyle(QStyleFactory::create("Fusion")) {}

  using QProxyStyle::polish;
  void polish(QWidget* widget) override {
    QProxyStyle::polish(widget);
    if (widget->isWindow()) WearTheme(*widget);
    if (auto* dialog = qobject_cast<QFileDialog*>(widget)) FitFileDialog(*dialog);
  }

  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
    switch (metric) {
      case PM_IndicatorWidth:
      case PM_IndicatorHeight:
      case PM_ExclusiveIndicatorWidth:
      case PM_ExclusiveIndicatorHeight: return Px(kIndicator);
      case PM_CheckBoxLabelSpacing:
      case PM_RadioButtonLabelSpacing: return 8;
      case PM_LayoutHorizontalSpacing:
      case PM_LayoutVerticalSpacing: return kGap;
      case PM_SmallIconSize:
      case PM_ButtonIconSize: return Px(20);
      case PM_MessageBoxIconSize: return Px(36);
      default: return QProxyStyle::pixelMetric(metric, option, widget);
    }
  }

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    switch (hint) {
      case SH_ComboBox_Popup: return 0;
      case SH_Slider_AbsoluteSetButtons: return Qt::LeftButton;
      case SH_ToolTip_WakeUpDelay: return 500;
      case SH_DialogButtonBox_ButtonsHaveIcons: return 0;
      case SH_EtchDisabledText: return 0;
      case SH_Widget_Animate:
      case SH_Widget_Animation_Duration:
        return qApp->property(kStill).toBool() ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
      default: return QProxyStyle::styleHint(hint, option, widget, data);
    }
  }

  QIcon standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const override {
    const char* name = NameOf(which);
    // In the file dialog the chosen place has the ground of the accent.
    return name ? Icon(name, CurrentTheme().heading, {}, {}, CurrentTheme().accentText)
                : QProxyStyle::standardIcon(which, option, widget);
  }

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    switch (element) {
      case PE_IndicatorCheckBox:
      case PE_IndicatorItemViewItemCheck: DrawIndicator(*option, *painter, false); return;
      case PE_IndicatorRadioButton: DrawIndicator(*option, *painter, true); return;
      case PE_FrameFocusRect: return;
      case PE_PanelLineEdit:
        // The box round it paints the ground.
        if (widget && qobject_cast<QComboBox*>(widget->parentWidget())) return;
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
      default: QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
  }

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override {
    if (control == CC_ComboBox) {
      DrawCombo(*option, *painter);
    } else {
      QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
  }

  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override {
    if (control == CC_ComboBox && part == SC_ComboBoxEditField) return option->rect.adjusted(10, 1, -28, -1);
    return QProxyStyle::subControlRect(control, option, part, widget);
  }

  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override {
    QSize result = QProxyStyle::sizeFromContents(type, option, size, widget);
    if (type == CT_ComboBox) result = QSize(result.width() + 16, Px(kButtonHeight));
    if (type == CT_CheckBox || type == CT_RadioButton) result.setHeight(qMax(result.height(), Px(26)));
    return result;
  }

 private:
  /// The icon of our family for a sign in the toolkit's own dialogs.
  static const char* NameOf(StandardPixmap which) {
    switch (which) {
      case SP_MessageBoxInformation: return "info";
      case SP_MessageBoxQuestion: return "question";
      case SP_MessageBoxWarning: return "warning";
      case SP_MessageBoxCritical: return "error";
      case SP_FileDialogBack:
      case SP_ArrowBack:
      case SP_ArrowLeft: return "chevron-left";
      case SP_ArrowForward:
      case SP_ArrowRight: return "chevron-right";
      case SP_FileDialogToParent: return "folder-up";
      case SP_FileDialogNewFolder: return "add";
      case SP_FileDialogListView: return "quad";
      case SP_FileDialogDetailedView: return "notes";
      case SP_DirIcon:
      case SP_DirClosedIcon:
      case SP_DirOpenIcon:
      case SP_DirLinkIcon:
      case SP_DirLinkOpenIcon: return "open";
      case SP_DirHomeIcon: return "home";
      case SP_FileIcon:
      case SP_FileLinkIcon: return "notes";
      case SP_ComputerIcon:
      case SP_DriveNetIcon: return "network";
      case SP_DriveHDIcon:
      case SP_DriveCDIcon:
      case SP_DriveDVDIcon: return "disc";
      default: return nullptr;
    }
  }

  static void DrawIndicator(const QStyleOption& option, QPainter& painter, bool round) {
    const ControlInks inks = InksFor(option);
    const bool on = option.state & State_On;
    const bool enabled = option.state & State_Enabled;
    const QRectF box = QRectF(option.rect).adjusted(1, 1, -1, -1);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor filled = enabled ? inks.active : inks.faint;
    QColor border = on ? filled : enabled ? inks.outline : inks.idleLine;
    if (option.state & State_MouseOver && enabled) border = inks.active;
    painter.setPen(QPen(border, 1.4));
    painter.setBrush(on ? filled : enabled ? inks.field : inks.idle);
    if (round) {
      painter.drawEllipse(box);
    } else {
      painter.drawRoundedRect(box, 4, 4);
    }
    if (on && round) {
      painter.setPen(Qt::NoPen);
      painter.setBrush(enabled ? inks.mark : inks.field);
      painter.drawEllipse(box.center(), 3.4, 3.4);
    } else if (on) {
      QPainterPath mark;
      mark.moveTo(box.left() + box.width() * 0.24, box.top() + box.height() * 0.53);
      mark.lineTo(box.left() + box.width() * 0.43, box.top() + box.height() * 0.72);
      mark.lineTo(box.left() + box.width() * 0.77, box.top() + box.height() * 0.31);
      painter.setBrush(Qt::NoBrush);
      painter.setPen(QPen(enabled ? inks.mark : inks.field, 1.9, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
      painter.drawPath(mark);
    }
    if (option.state & State_HasFocus && option.state & State_KeyboardFocusChange) {
      painter.setBrush(Qt::NoBrush);
      painter.setPen(QPen(inks.active, 1.2));
      const QRectF ring = box.adjusted(-2, -2, 2, 2);
      round ? painter.drawEllipse(ring) : painter.drawRoundedRect(ring, 6, 6);
    }
    painter.restore();
  }

  static void DrawCombo(const QStyleOptionComplex& option, QPainter& painter) {
    const ControlInks inks = InksFor(option);
    const bool enabled = option.state & State_Enabled;
    const bool focus = option.state & State_HasFocus;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const double width = focus ? 2 : 1;
    const QRectF box = QRectF(option.rect).adjusted(width / 2, width / 2, -width / 2, -width / 2);
    const bool hover = option.state & State_MouseOver && enabled;
    painter.setPen(QPen(focus || hover ? inks.active : enabled ? inks.outline : inks.idleLine, width));
    painter.setBrush(enabled ? inks.field : inks.idle);
    painter.drawRoundedRect(box, 6, 6);
    const QPointF middle(option.rect.right() - 15, option.rect.center().y() + 1.0);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(enabled ? inks.sign : inks.faint, 1.7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(
        QPolygonF{middle + QPointF(-4.5, -2.2), middle + QPointF(0, 2.3), middle + QPointF(4.5, -2.2)});
    painter.restore();
  }
};

}  // namespace

QStyle* MakeStyle() { return new Style; }

void SetStill(QApplication& application, bool still) { application.setProperty(kStill, still); }

}  // namespace kinalyx
