#include "workspace/forms/MultiPicturePanel.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QEvent>
#include <QIntValidator>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>

#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "workspace/forms/StageLook.h"
#include "workspace/forms/StageParts.h"

namespace kinalyx {
namespace {

constexpr int kControls = 246;  // width of the buttons beside the strip
constexpr int kMargin = 8;
constexpr int kSkips[] = {1, 2, 3, 4, 5, 6, 8, 10, 15, 20, 30};

}  // namespace

/// `MFPanel`: the pictures scaled to the height of the strip, the newest to the right and framed.
class FilmStrip : public QWidget {
 public:
  explicit FilmStrip(QWidget* parent) : QWidget(parent) {
    setObjectName("MFPanel");
    setFixedHeight(MultiPicture::kStripPixels);
    setAttribute(Qt::WA_OpaquePaintEvent);
  }

  void Show(const Surface& strip, int pictures) {
    pictures_ = pictures;
    if (strip.Empty() || pictures < 1) {
      shown_ = Surface();
      update();
      return;
    }
    const int height = qRound(MultiPicture::kStripPixels * devicePixelRatioF());
    const int picture = std::max(1, strip.Width() / pictures * height / strip.Height());
    if (shown_.Width() != picture * pictures || shown_.Height() != height) shown_ = Surface(picture * pictures, height);
    StretchRows(RowsOf(strip), shown_, scratch_);
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    const StageLook look = StageLook::Current();
    QPainter painter(this);
    painter.fillRect(rect(), look.ground);
    if (shown_.Empty()) return;
    const qreal ratio = devicePixelRatioF();
    QImage image(shown_.Row(0), shown_.Width(), shown_.Height(), shown_.Stride(), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    const double width = shown_.Width() / ratio;
    const double left = std::max(0.0, (this->width() - width) / 2);
    painter.drawImage(QPointF(left, 0), image);
    const double picture = width / pictures_;
    painter.setPen(QPen(look.ground, 2));
    for (int k = 1; k < pictures_; ++k)
      painter.drawLine(QPointF(left + k * picture, 0), QPointF(left + k * picture, height()));
    painter.setPen(QPen(look.accent, 2));
    painter.drawRect(QRectF(left + (pictures_ - 1) * picture + 1, 1, picture - 2, height() - 2));
  }

 private:
  Surface shown_;
  ScaleScratch scratch_;
  int pictures_ = 0;
};

MultiPicturePanel::MultiPicturePanel(MultiPicture& strip, QWidget* parent)
    : StagePanel("MultiPicturePanel", parent), strip_(strip) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(kMargin, 6, kMargin, 6);
  row->setSpacing(kMargin);
  MFPanel_ = new FilmStrip(this);
  row->addWidget(MFPanel_, 1);

  auto* controls = new QWidget(this);
  controls->setObjectName("New Carve");
  FixWidth(controls, kControls);
  auto* column = new QVBoxLayout(controls);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(4);
  auto* skip = new QHBoxLayout;
  skip->addWidget(MakeLabel("SkipLabel", tr("Sequence of Frames every"), nullptr, controls), 1);
  SkipBox_ = new QComboBox(controls);
  SkipBox_->setObjectName("SkipBox");
  SkipBox_->setEditable(true);
  SkipBox_->setInsertPolicy(QComboBox::NoInsert);
  SkipBox_->setValidator(new QIntValidator(1, 999, SkipBox_));
  SkipBox_->setToolTip(tr("Frames from one picture to the next"));
  SkipBox_->setAccessibleName(tr("Sequence of Frames every"));
  FixWidth(SkipBox_, 64);
  for (const int frames : kSkips) SkipBox_->addItem(QString::number(frames));
  SkipBox_->setCurrentText(QString::number(strip.Skip()));
  connect(SkipBox_, &QComboBox::currentTextChanged, this, [this](const QString& text) {
    if (!text.isEmpty()) strip_.setSkipBox(text.toStdString());
  });
  connect(SkipBox_->lineEdit(), &QLineEdit::returnPressed, this, [this] { SkipBox_->clearFocus(); });
  skip->addWidget(SkipBox_);
  column->addLayout(skip);
  const auto add = [&](const char* name, const QString& caption, const QString& tip) {
    auto* button = new QPushButton(caption, controls);
    button->setObjectName(name);
    button->setToolTip(tip);
    button->setFocusPolicy(Qt::TabFocus);
    column->addWidget(button);
    return button;
  };
  connect(add("MPicBtn0", tr("Carve new MultiPicture"), tr("Draw a square round what the pictures shall show")),
          &QPushButton::clicked, this, [this] { strip_.CarveNew(); });
  connect(add("SaveStripBtn", tr("Save Picture..."), tr("Keeps the strip as a PNG or JPEG picture")),
          &QPushButton::clicked, this, &MultiPicturePanel::SaveWanted);
  connect(add("MPicBtn1", tr("Close MultiPicture"), tr("Back to the windows (Esc)")), &QPushButton::clicked, this,
          [this] { strip_.LeaveStrip(); });
  column->addStretch(1);
  row->addWidget(controls);
  hide();
  FirstDress();
}

int MultiPicturePanel::StripWidth(int stageWidth) { return std::max(0, stageWidth - Px(kControls) - 3 * kMargin); }

void MultiPicturePanel::Show(const Surface& strip, int pictures) { MFPanel_->Show(strip, pictures); }

void MultiPicturePanel::Dress() {
  WearStageSheet(this,
                 (QByteArray(kCompareSheet) + "#MultiPicturePanel { background: @ground; border: none; }").constData());
}

}  // namespace kinalyx
