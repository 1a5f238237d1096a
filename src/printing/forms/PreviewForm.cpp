#include "printing/forms/PreviewForm.h"

#include <QApplication>
#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/host/DriveWatch.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

constexpr int kSideWidth = 236;
constexpr int kSheetGap = 16;
constexpr int kScrollBar = 18;  // that the pages leave free at their right
constexpr int kInch = 96;       // pixels at 100 %
constexpr int kLeastDots = 24;
constexpr int kMostDots = 300;
constexpr QSize kWanted(980, 760);
constexpr int kMostCopies = 99;
constexpr int kMostSheets = 40;  // more of them at 200 % would fill the memory
constexpr int kLookMs = 200;
constexpr int kPatientLooks = 15;
constexpr int kRestMs = 150;

/// Below 0: what fits, else percent.
enum Zoom { kWholePage = -2, kPageWidth = -1 };
constexpr int kZooms[] = {kWholePage, kPageWidth, 75, 100, 150, 200};

double PaperWidthOf(Paper paper) { return paper == Paper::A4 ? 8.27 : kPaperWidth; }
double PaperHeightOf(Paper paper) { return paper == Paper::A4 ? 11.69 : kPaperHeight; }

QLabel* MakeSheet(const Surface& page, qreal ratio, int number, int count) {
  QImage image(page.Row(0), page.Width(), page.Height(), page.Stride(), QImage::Format_RGB32);
  QPixmap pixmap = QPixmap::fromImage(image.copy());  // the page goes
  pixmap.setDevicePixelRatio(ratio);
  auto* sheet = new QLabel;
  sheet->setObjectName(QString("Sheet%1").arg(number));
  sheet->setAccessibleName(QObject::tr("Page %1 of %2").arg(number).arg(count));
  sheet->setPixmap(pixmap);
  sheet->setFixedSize(pixmap.deviceIndependentSize().toSize());
  return sheet;
}

}  // namespace

PreviewForm::PreviewForm(IHost& host, IPrinter& printer, const IPrintout& printout, PrintChoice& choice,
                         QWidget* parent)
    : QDialog(parent), host_(host), printer_(printer), printout_(printout), choice_(choice) {
  setObjectName("PreviewForm");
  setWindowTitle(tr("Print Preview - %1").arg(Q(printout.Title())));
  auto* columns = new QHBoxLayout(this);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->setSpacing(0);
  area_ = new QScrollArea(this);
  area_->setObjectName("Pages");
  area_->setAccessibleName(tr("Pages"));
  area_->setFrameShape(QFrame::NoFrame);
  area_->setWidgetResizable(true);
  area_->viewport()->installEventFilter(this);
  QFrame* desk = MakeFrame("stage");
  sheets_ = new QVBoxLayout(desk);
  sheets_->setContentsMargins(kSheetGap, kSheetGap, kSheetGap, kSheetGap);
  sheets_->setSpacing(kSheetGap);
  area_->setWidget(desk);
  columns->addWidget(area_, 1);
  columns->addWidget(MakeSide());
  connect(&look_, &QTimer::timeout, this, &PreviewForm::ListPrinters);
  rest_.setSingleShot(true);
  rest_.setInterval(kRestMs);
  connect(&rest_, &QTimer::timeout, this, &PreviewForm::ShowPages);
  const QRect screen = (parent ? parent->screen() : QApplication::primaryScreen())->availableGeometry();
  resize(QSize(Px(kWanted.width()), Px(kWanted.height())).boundedTo(screen.size() - QSize(40, 60)));
  if (parent) {
    const QRect over = parent->window()->frameGeometry();
    move(std::max(screen.left(), over.center().x() - width() / 2),
         std::max(screen.top(), over.center().y() - height() / 2));
  }
}

QWidget* PreviewForm::MakeSide() {
  auto* side = new QWidget(this);
  FixWidth(side, kSideWidth);
  auto* rows = new QVBoxLayout(side);
  rows->setContentsMargins(kGap, kGap, kGap, kGap);
  rows->setSpacing(6);
  const auto box = [&](const char* name, const QString& caption) {
    rows->addWidget(MakeLabel(QString(name) + "Label", caption, "caption", side));
    auto* made = new QComboBox(side);
    made->setObjectName(name);
    made->setAccessibleName(caption);
    // A long name of a printer must not make the panel wider.
    made->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    rows->addWidget(made);
    rows->addSpacing(6);
    return made;
  };
  printers_ = box("PrinterBox", tr("Printer"));
  printers_->addItem(tr("Looking for printers..."));
  printers_->setEnabled(false);
  paper_ = box("PaperBox", tr("Paper"));
  paper_->addItem(tr("Letter"), static_cast<int>(Paper::Letter));
  paper_->addItem(tr("A4"), static_cast<int>(Paper::A4));
  paper_->setCurrentIndex(paper_->findData(static_cast<int>(choice_.Paper)));
  connect(paper_, &QComboBox::currentIndexChanged, this, [this] {
    choice_.Paper = static_cast<Paper>(paper_->currentData().toInt());
    shownAt_ = 0;
    ShowPages();
  });
  rows->addWidget(MakeLabel("CopiesLabel", tr("Copies"), "caption", side));
  copies_ = new QSpinBox(side);
  copies_->setObjectName("CopiesBox");
  copies_->setAccessibleName(tr("Copies"));
  copies_->setRange(1, kMostCopies);
  rows->addWidget(copies_);
  rows->addSpacing(6);
  zoom_ = box("ZoomBox", tr("Shown"));
  for (const int zoom : kZooms)
    zoom_->addItem(zoom == kWholePage   ? tr("Whole page")
                   : zoom == kPageWidth ? tr("Page width")
                                        : tr("%1 %").arg(zoom),
                   zoom);
  connect(zoom_, &QComboBox::currentIndexChanged, this, [this] { ShowPages(); });
  count_ = MakeLabel("PageCount", {}, "muted", side);
  rows->addWidget(count_);
  rows->addStretch(1);
  const auto button = [&](const char* name, const QString& caption, const char* icon, Look look) {
    auto* made = new Button(name, caption, icon, look, side);
    made->setAutoDefault(false);
    rows->addWidget(made);
    return made;
  };
  print_ = button("PrintBtn", tr("Print"), "print", Look::Filled);
  print_->setEnabled(false);
  connect(print_, &QPushButton::clicked, this, &PreviewForm::Print);
  connect(button("PdfBtn", tr("Save as PDF..."), "save", Look::Filled), &QPushButton::clicked, this,
          &PreviewForm::SavePdf);
  connect(button("CloseBtn", tr("Close"), "", Look::Quiet), &QPushButton::clicked, this, &QDialog::reject);
  return side;
}

void PreviewForm::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (event->spontaneous()) return;
  ShowPages();
  ListPrinters();
  look_.start(kLookMs);
}

void PreviewForm::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  if (isVisible()) rest_.start();
}

/// Ctrl and the wheel zoom.
bool PreviewForm::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Wheel && static_cast<QWheelEvent*>(event)->modifiers() & Qt::ControlModifier) {
    Zoom(static_cast<QWheelEvent*>(event)->angleDelta().y() > 0 ? 1 : -1);
    return true;
  }
  return QDialog::eventFilter(watched, event);
}

void PreviewForm::Zoom(int steps) {
  zoom_->setCurrentIndex(std::clamp(zoom_->currentIndex() + steps, 0, zoom_->count() - 1));
}

/// A server that takes long is given time, but the coach is told that there is no printer yet.
void PreviewForm::ListPrinters() {
  auto names = printer_.Printers();
  if (!names && ++looks_ >= kPatientLooks) names.emplace();
  if (!names || names == listed_) return;
  ShowPrinters(*names);
  listed_ = std::move(names);
}

/// What is chosen stays chosen.
void PreviewForm::ShowPrinters(const std::vector<std::string>& names) {
  const QString chosen = listed_ && !listed_->empty() ? printers_->currentText() : Q(choice_.printer);
  printers_->clear();
  for (const std::string& name : names) printers_->addItem(Q(name));
  if (const int known = printers_->findText(chosen); known >= 0) printers_->setCurrentIndex(known);
  if (names.empty()) printers_->addItem(tr("No printer"));
  printers_->setEnabled(!names.empty());
  print_->setEnabled(!names.empty());
  print_->setToolTip(names.empty() ? tr("No printer is set up on this machine, or none answers. The pages can be kept "
                                        "as a PDF file.")
                                   : QString());
}

int PreviewForm::DotsPerInch() const {
  const int zoom = zoom_->currentData().toInt();
  const QSize room = area_->size() - QSize(2 * kSheetGap + kScrollBar, 2 * kSheetGap);
  const double width = room.width() / PaperWidthOf(choice_.Paper);
  const double height = room.height() / PaperHeightOf(choice_.Paper);
  const double dots = zoom == kWholePage ? std::min(width, height) : zoom == kPageWidth ? width : zoom * kInch / 100.0;
  return std::clamp(static_cast<int>(dots), kLeastDots, kMostDots);
}

void PreviewForm::ShowPages() {
  const int dots = DotsPerInch();
  if (dots == shownAt_) return;
  shownAt_ = dots;
  while (QLayoutItem* item = sheets_->takeAt(0)) {
    delete item->widget();
    delete item;
  }
  const qreal ratio = devicePixelRatioF();
  int count = 0;
  const auto pages =
      PicturesOf(printout_, choice_.Paper, static_cast<int>(std::lround(dots * ratio)), kMostSheets, &count);
  const int shown = static_cast<int>(pages.size());
  for (int page = 0; page < shown; ++page)
    sheets_->addWidget(MakeSheet(pages[static_cast<std::size_t>(page)], ratio, page + 1, count), 0, Qt::AlignHCenter);
  sheets_->addStretch(1);
  count_->setText(count == 1      ? tr("1 page")
                  : count > shown ? tr("The first %1 of %2 pages").arg(shown).arg(count)
                                  : tr("%1 pages").arg(count));
}

void PreviewForm::Print() {
  choice_.printer = Std(printers_->currentText());
  choice_.copies = copies_->value();
  print_->setEnabled(false);
  emit PrintingBegins();
  QApplication::setOverrideCursor(Qt::WaitCursor);
  const Outcome printed = printer_.Print(printout_, choice_);
  QApplication::restoreOverrideCursor();
  emit PrintingEnds(static_cast<bool>(printed));
  print_->setEnabled(true);
  printed_ = static_cast<bool>(printed);
  if (printed) accept();
  else Tell(printed);
}

void PreviewForm::SavePdf() {
  const auto chosen =
      host_.PickNewFile({tr("Save as PDF").toStdString(), printout_.Title() + ".pdf", "PDF (*.pdf)|*.pdf"});
  if (!chosen) return;
  if (!host_.Drives().Answers(FolderOf(*chosen))) return Tell(Outcome::Failed(Tr("The drive does not answer.")));
  emit PrintingBegins();
  const Outcome saved = PrintToPdf(printout_, choice_.Paper, *chosen);
  emit PrintingEnds(static_cast<bool>(saved));
  if (saved) accept();
  else Tell(saved);
}

void PreviewForm::Tell(const Outcome& failed) {
  if (failed.Kind() != Fault::Cancelled) host_.Message(MessageKind::Warning, "", failed.Why());
}

}  // namespace kinalyx
