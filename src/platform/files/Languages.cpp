#include "platform/files/Languages.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <algorithm>

namespace kinalyx {

namespace {

constexpr const char* kOurs = "kinalyx_";
constexpr const char* kToolkit = "qtbase_";
constexpr const char* kEnglish = "en";

/// One list of words for all forms and all logic: whoever asks, the same text has the same words.
class Words final : public QTranslator {
 public:
  using QTranslator::QTranslator;
  QString translate(const char*, const char* text, const char* disambiguation, int n) const override {
    return QTranslator::translate("Kinalyx", text, disambiguation, n);
  }
};

QString LanguageOf(const QString& locale) { return locale.section('-', 0, 0); }

std::string NameOf(const QString& code) {
  QString name = QLocale(code).nativeLanguageName();
  if (!name.isEmpty()) name[0] = name[0].toUpper();
  return name.toStdString();
}

/// The language that is spoken, or empty for English.
QString Choose(const std::string& folder, const std::string& code) {
  const std::vector<Language> there = LanguagesIn(folder);
  const auto has = [&](const QString& wanted) {
    return std::any_of(there.begin(), there.end(),
                       [&](const Language& language) { return language.code == wanted.toStdString(); });
  };
  QStringList wanted;
  if (!code.empty()) wanted << QString::fromStdString(code);
  for (const QString& locale : QLocale::system().uiLanguages()) wanted << LanguageOf(locale);
  for (const QString& language : wanted) {
    if (language == kEnglish || language == "C") return {};
    if (has(language)) return language;
  }
  return {};
}

}  // namespace

std::vector<Language> LanguagesIn(const std::string& folder) {
  std::vector<Language> languages{{kEnglish, "English"}};
  const QString prefix = kOurs;
  for (const QString& file : QDir(QString::fromStdString(folder)).entryList({prefix + "*.qm"}, QDir::Files)) {
    const QString code = file.mid(prefix.size()).section('.', 0, 0);
    languages.push_back({code.toStdString(), NameOf(code)});
  }
  std::sort(languages.begin(), languages.end(), [](const Language& a, const Language& b) { return a.name < b.name; });
  return languages;
}

void SpeakLanguage(QCoreApplication& application, const std::string& folder, const std::string& code) {
  for (QTranslator* before : application.findChildren<QTranslator*>(QString(), Qt::FindDirectChildrenOnly)) {
    QCoreApplication::removeTranslator(before);
    delete before;
  }
  const QString language = Choose(folder, code);
  if (language.isEmpty()) return;
  auto* toolkit = new QTranslator(&application);
  if (toolkit->load(kToolkit + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QCoreApplication::installTranslator(toolkit);
  auto* words = new Words(&application);
  if (words->load(kOurs + language, QString::fromStdString(folder))) QCoreApplication::installTranslator(words);
}

}  // namespace kinalyx
