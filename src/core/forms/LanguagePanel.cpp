#include "core/forms/LanguagePanel.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>
#include <algorithm>

#include "core/WindowModes.h"
#include "platform/widgets/Text.h"

namespace kinalyx {

LanguagePanel::LanguagePanel(Settings& settings, const std::vector<Language>& languages, QWidget* parent)
    : Panel("LanguageTitle", tr("Language"), parent) {
  auto* body = new QWidget;
  auto* rows = new QVBoxLayout(body);
  rows->setContentsMargins(12, 10, 12, 12);
  rows->setSpacing(6);
  auto* choice = new QComboBox;
  choice->setObjectName("LanguageBox");
  choice->setAccessibleName(tr("Language"));
  choice->addItem(tr("As the desktop"), QString());
  for (const Language& language : languages) choice->addItem(Q(language.name), Q(language.code));
  choice->setCurrentIndex(std::max(0, choice->findData(Q(settings.Language))));
  rows->addWidget(choice);
  QLabel* note = MakeLabel({}, tr("Kinalyx starts anew to change its language."), "caption");
  note->setWordWrap(true);
  rows->addWidget(note);
  connect(choice, &QComboBox::activated, this, [this, choice, &settings](int row) {
    if (ChooseLanguage(settings, Std(choice->itemData(row).toString()))) emit RestartWanted();
  });
  Body()->addWidget(body);
}

}  // namespace kinalyx
