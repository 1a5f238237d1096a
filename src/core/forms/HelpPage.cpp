#include "core/forms/HelpPage.h"

#include <QBoxLayout>
#include <QDesktopServices>
#include <QEvent>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QTextBrowser>
#include <algorithm>
#include <string>

#include "core/Vocabulary.h"
#include "platform/files/Tr.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

constexpr int kReadingWidth = 760;  // as designed; longer lines tire the eye

}  // namespace

/// Shows pages in a column in the middle, with the user's word for "student".
class Reader : public QTextBrowser {
 public:
  using QTextBrowser::QTextBrowser;

  void SetupVocabulary(const Vocabulary& words) {
    const auto text = [](const std::string& word) { return Q(word).toHtmlEscaped(); };
    words_ = {{"Student", text(words.Noun())},
              {"student", text(words.noun())},
              {"students", text(words.nouns())},
              {"Students", text(words.Nouns())}};
    reload();
  }

 protected:
  QVariant loadResource(int type, const QUrl& name) override {
    const QVariant loaded = QTextBrowser::loadResource(type, name);
    if (type != QTextDocument::HtmlResource) return loaded;
    return InWords(QString::fromUtf8(loaded.toByteArray()));
  }

  void resizeEvent(QResizeEvent* event) override {
    PlaceColumn();
    QTextBrowser::resizeEvent(event);
  }

  void changeEvent(QEvent* event) override {
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::StyleChange) PlaceColumn();
  }

 private:
  void PlaceColumn() {
    const int side = std::max(28, (width() - Px(kReadingWidth)) / 2);
    if (viewportMargins().left() != side) setViewportMargins(side, 18, side, 18);
  }

  /// The page with the user's words in their places: "{student}", "{Students}" ...
  QString InWords(const QString& page) const {
    static const QRegularExpression kPlace("\\{([Ss]tudents?)\\}");
    QString result;
    qsizetype done = 0;
    for (auto found = kPlace.globalMatch(page); found.hasNext();) {
      const auto match = found.next();
      result += page.mid(done, match.capturedStart() - done) + words_.value(match.captured(1), match.captured(1));
      done = match.capturedEnd();
    }
    return result + page.mid(done);
  }

  QHash<QString, QString> words_;
};

HelpPage::HelpPage(const QString& folder, QWidget* parent) : PageWidget(parent), folder_(folder) {
  setObjectName("HelpPage");
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(14, 14, 14, 14);
  auto* panel = new Panel("HelpTitle", tr("Help Menu"));
  back_ = IconButton("HelpBackBtn", "chevron-left", tr("Back"), Look::Flat);
  forward_ = IconButton("HelpForwardBtn", "chevron-right", tr("Forward"), Look::Flat);
  Button* home = IconButton("HelpHomeBtn", "home", tr("First page"), Look::Flat);
  for (Button* button : {back_, forward_, home}) {
    FixIcon(button, 16);
    WearSheet(button, "QPushButton { min-height: @26-4; max-height: @26-4; min-width: @30-4; max-width: @30-4; }");
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
    panel->SetTitle(title.isEmpty() ? tr("Help Menu") : title);
  });
  back_->setEnabled(false);
  forward_->setEnabled(false);
  TakeTheme();
}

void HelpPage::Navigate(const QString& page) {
  QString file = folder_ + "/" + Q(Tr("en")) + "/" + page;
  if (!QFileInfo::exists(file)) file = folder_ + "/" + page;  // in English, in which all pages are
  if (!QFileInfo::exists(file)) {
    browser_->setPlainText(tr("The help pages are missing. They should lie in %1.").arg(folder_));
    return;
  }
  browser_->setSource(QUrl::fromLocalFile(file));
}

void HelpPage::SetupVocabulary(const Vocabulary& words) { browser_->SetupVocabulary(words); }

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
      WithSizes("body { font-size: @14; }"
                "h1 { color: %1; font-size: @24; font-weight: 600; margin-top: 18px; margin-bottom: 8px; }"
                "h2 { color: %1; font-size: @16; font-weight: 600; margin-top: 20px; margin-bottom: 4px; }"
                "a { color: %1; text-decoration: underline; }"
                "p, li { margin-bottom: 6px; line-height: 150%; }"
                "td { line-height: 125%; }"
                ".pic { margin-top: 8px; margin-bottom: 12px; }"  // a line of pictures is as high as they are
                ".nav { color: %2; font-size: @12; }"
                ".nav a { text-decoration: none; }")
          .arg(theme.heading.name(), theme.muted.name()));
}

}  // namespace kinalyx
