#include "core/forms/SetupPage.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QStackedWidget>
#include <utility>

#include "core/ColorSchemes.h"
#include "core/Heading.h"
#include "core/Settings.h"
#include "core/Vocabulary.h"
#include "core/forms/AnalysisSection.h"
#include "core/forms/GeneralSection.h"
#include "core/forms/MenuSection.h"
#include "platform/files/Tr.h"
#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

namespace {

struct SectionButton {
  const char* caption;
  const char* icon;
};

constexpr SectionButton kSections[] = {
    {TrLater("Main Menu"), "home"},   {TrLater("Profiles"), "students"}, {TrLater("Capture"), "camera"},
    {TrLater("Analysis"), "analyze"}, {TrLater("General"), "setup"},     {TrLater("Internet"), "network"},
};

}  // namespace

SetupPage::SetupPage(IHost& host, Settings& settings, ColorSchemes& schemes, QWidget* parent)
    : PageWidget(parent), host_(host), settings_(settings), schemes_(schemes) {
  setObjectName("SetupPage");
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(14, 14, 14, 14);
  row->setSpacing(kGap);
  row->addWidget(MakeSections());
  stack_ = new QStackedWidget;
  row->addWidget(stack_, 1);

  menu_ = new MenuSection(host, settings);
  analysis_ = new AnalysisSection(settings);
  general_ = new GeneralSection(host, settings, schemes);
  pages_[kMainMenu] = menu_;
  pages_[kAnalysis] = analysis_;
  pages_[kGeneral] = general_;
  for (QWidget* page : pages_) {
    if (page) stack_->addWidget(page);
  }
  connect(menu_, &MenuSection::MenuChanged, this, &SetupPage::MenuChanged);
  connect(analysis_, &AnalysisSection::AnalysisChanged, this, &SetupPage::AnalysisChanged);
  connect(general_, &GeneralSection::DesignChanged, this, &SetupPage::DesignChanged);
  connect(general_, &GeneralSection::CompanyChanged, this, &SetupPage::CompanyChanged);
  connect(general_, &GeneralSection::LibraryChanged, this, &SetupPage::LibraryChanged);
  connect(general_, &GeneralSection::VocabularyChanged, this, [this] {
    SetupVocabulary();
    emit VocabularyChanged();
  });
  connect(general_, &GeneralSection::RestartWanted, this,
          [this] { RestartTimer_ = HostTimer(host_, 0, false, [this] { RestartTimer_Timer(); }); });

  SetupProgram();
  SetupVocabulary();
  PSCmd_Click(kGeneral);
}

QWidget* SetupPage::MakeSections() {
  auto* panel = new Panel("SetupSections", tr("Program Setup"));
  FixWidth(panel, 184);
  auto* rows = new QVBoxLayout;
  rows->setContentsMargins(8, 8, 8, 8);
  rows->setSpacing(4);
  panel->Body()->addLayout(rows);
  buttons_ = new QButtonGroup(this);
  int index = 0;
  for (const SectionButton& section : kSections) {
    auto* button = new Button(QString("PSCmd%1").arg(index), tr(section.caption), section.icon, Look::Section);
    button->setCheckable(true);
    buttons_->addButton(button, index);
    rows->addWidget(button);
    if (index == kCapture || index == kInternet || index == kProfiles) SetComing(button);
    ++index;
  }
  rows->addStretch(1);
  connect(buttons_, &QButtonGroup::idClicked, this, &SetupPage::PSCmd_Click);
  return panel;
}

void SetupPage::SetupProgram() {
  const bool before = std::exchange(settings_.Loading, true);
  menu_->SetupProgram();
  analysis_->SetupProgram();
  general_->SetupProgram();
  settings_.Loading = before;
}

void SetupPage::Open() {
  const bool before = std::exchange(settings_.Loading, true);
  analysis_->SetupProgram();
  settings_.Loading = before;
}

void SetupPage::SetupVocabulary() { buttons_->button(kProfiles)->setText(Q(Vocabulary(settings_).Profiles())); }

bool SetupPage::PSCmd_Click(int index) {
  if (index < 0 || index >= static_cast<int>(pages_.size()) || !pages_[static_cast<std::size_t>(index)]) return false;
  current_ = index;
  buttons_->button(index)->setChecked(true);
  stack_->setCurrentWidget(pages_[static_cast<std::size_t>(index)]);
  return true;
}

void SetupPage::AddToGeneral(QWidget* panel) { general_->AddGroup(panel); }

void SetupPage::SetSection(Section section, QWidget* page) {
  QWidget*& place = pages_[section];
  if (place) {
    stack_->removeWidget(place);
    delete place;
  }
  place = page;
  stack_->addWidget(page);
  SetComing(buttons_->button(section), false);
}

void SetupPage::TakeReloaded() {
  schemes_.ApplyDesign(settings_.Design);
  SetupProgram();
  SetupVocabulary();
  emit DesignChanged();
  emit VocabularyChanged();
  emit CompanyChanged(Q(ShownCompany(settings_)));
  emit MenuChanged();
  emit LibraryChanged();
  emit AnalysisChanged();
}

void SetupPage::RestartTimer_Timer() { emit RestartWanted(); }

}  // namespace kinalyx
