#include "core/forms/HelpPage.h"

#include <QBoxLayout>
#include <QDesktopServices>
#include <QEvent>
#include <QFileInfo>
#include <QTextBrowser>
#include <algorithm>

#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

constexpr int kReadingWidth = 760;  // logical pixels; longer lines tire the eye

/// The text column stands in the middle of a wide page.
class Reader : public QTextBrowser {
 public:
  using QTextBrowser::QTextBrowser;

 protected:
  void resizeEvent(QResizeEvent* event) override {
    const int side = std::max(28, (width() - kReadingWidth) / 2);
    if (viewportMargins().left() != side) setViewportMargins(side, 18, side, 18);
    QTextBrowser::resizeEvent(event);
  }
};

}  // namespace

HelpPage::HelpPage(const QString& folder, QWidget* parent) : QWidget(parent), folder_(folder) {
  setObjectName("HelpPage");
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(14, 14, 14, 14);
  auto* panel = new Panel("HelpTitle", "Help Menu");
  back_ = IconButton("HelpBackBtn", "chevron-left", "Back", Look::Flat);
  forward_ = IconButton("HelpForwardBtn", "chevron-right", "Forward", Look::Flat);
  Button* home = IconButton("HelpHomeBtn", "home", "First page", Look::Flat);
  for (Button* button : {back_, forward_, home}) {
    button->setIconSize(QSize(16, 16));
    button->setStyleSheet("QPushButton { min-height: 22px; max-height: 22px; min-width: 26px; max-width: 26px; }");
    panel->Head()->addWidget(button);
  }
  browser_ = new Reader;
  browser_->setObjectName("wcIE");
  browser_->setOpenLinks(false);
  panel->Body()->setContentsMargins(2, 0, 2, 8);  // clear of the rounded corners
  panel->Body()->addWidget(browser_);
  rows->addWidget(panel);

  connect(browser_, &QTextBrowser::anchorClicked, this, &HelpPage::Open);
  connect(browser_, &QTextBrowser::backwardAvailable, back_, &QWidget::setEnabled);
  connect(browser_, &QTextBrowser::forwardAvailable, forward_, &QWidget::setEnabled);
  connect(back_, &QPushButton::clicked, browser_, &QTextBrowser::backward);
  connect(forward_, &QPushButton::clicked, browser_, &QTextBrowser::forward);
  connect(home, &QPushButton::clicked, this, [this] { Navigate("index.htm"); });
  connect(browser_, &QTextBrowser::sourceChanged, this, [this, panel] {
    const QString title = browser_->documentTitle();
    panel->SetTitle(title.isEmpty() ? QString("Help Menu") : title);
  });
  back_->setEnabled(false);
  forward_->setEnabled(false);
  TakeTheme();
}

void HelpPage::Navigate(const QString& page) {
  const QString file = folder_ + "/" + page;
  if (!QFileInfo::exists(file)) {
    browser_->setPlainText("The help pages are missing. They should lie in " + folder_ + ".");
    return;
  }
  browser_->setSource(QUrl::fromLocalFile(file));
}

void HelpPage::Open(const QUrl& link) {
  if (link.isRelative() || link.isLocalFile()) {
    browser_->setSource(link);
  } else {
    QDesktopServices::openUrl(link);
  }
}

void HelpPage::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::StyleChange || !browser_) return;
  TakeTheme();
  browser_->reload();
}

void HelpPage::TakeTheme() {
  const Theme theme = CurrentTheme();
  browser_->document()->setDefaultStyleSheet(
      QString("body { font-size: 14px; line-height: 150%; }"
              "h1 { color: %1; font-size: 24px; font-weight: 600; margin-top: 18px; margin-bottom: 8px; }"
              "h2 { color: %1; font-size: 16px; font-weight: 600; margin-top: 20px; margin-bottom: 4px; }"
              "a { color: %1; text-decoration: none; }"
              "p, li { margin-bottom: 6px; }"
              ".nav { color: %2; font-size: 12px; }")
          .arg(theme.heading.name(), theme.muted.name()));
}

}  // namespace kinalyx
