#include "core/Vocabulary.h"

#include "platform/files/TextEncoding.h"
#include "platform/files/Tr.h"

namespace kinalyx {

namespace {

constexpr const char* kUsualNoun = "Student";

/// The language that is spoken, for the rules by which a word takes its plural.
std::string SpokenLanguage() { return Tr("en"); }

std::string GermanPlural(const std::string& noun) {
  for (const char* same : {"er", "el", "en", "chen", "lein"})
    if (noun.ends_with(same)) return noun;
  if (noun.ends_with("in")) return noun + "nen";
  if (noun.ends_with('e')) return noun + "n";
  for (const char* foreign : {"ent", "ant", "ist", "at", "et"})
    if (noun.ends_with(foreign)) return noun + "en";
  for (const char* vowel : {"a", "i", "o", "u", "y"})
    if (noun.ends_with(vowel)) return noun + "s";
  return noun + "e";
}

std::string SpanishPlural(const std::string& noun) {
  if (noun.ends_with('z')) return noun.substr(0, noun.size() - 1) + "ces";
  for (const char* vowel : {"a", "e", "i", "o", "u", "á", "é", "ó"})
    if (noun.ends_with(vowel)) return noun + "s";
  return noun + "es";
}

}  // namespace

bool Vocabulary::IsUsual() const { return settings_.PrimaryName[0] == kUsualNoun; }

std::string Vocabulary::Noun() const { return IsUsual() ? Tr("Student") : settings_.PrimaryName[0]; }

std::string Vocabulary::noun() const {
  if (IsUsual()) return Tr("student");
  // German writes its nouns with a capital everywhere.
  return SpokenLanguage() == "de" ? settings_.PrimaryName[0] : settings_.PrimaryName[1];
}

std::string Vocabulary::nouns() const {
  if (IsUsual()) return Tr("students");
  const std::string language = SpokenLanguage();
  return language == "de" ? GermanPlural(noun()) : language == "es" ? SpanishPlural(noun()) : settings_.PrimaryName[2];
}

std::string Vocabulary::Nouns() const {
  if (IsUsual()) return Tr("Students");
  const std::string language = SpokenLanguage();
  return language == "de" ? GermanPlural(Noun()) : language == "es" ? SpanishPlural(Noun()) : Noun() + "s";
}

std::string Vocabulary::Profiles() const { return Tr("{} Profiles", Noun()); }
std::string Vocabulary::Profile() const { return Tr("{} Profile", Noun()); }
std::string Vocabulary::Notes() const { return Tr("{} Notes", Noun()); }
std::string Vocabulary::Name() const { return Tr("{} Name", Noun()); }
std::string Vocabulary::Select() const { return Tr("Select {}", Noun()); }
std::string Vocabulary::AddNew() const { return Tr("Add New {}", Noun()); }
std::string Vocabulary::Rename() const { return Tr("Rename {}", Noun()); }
std::string Vocabulary::MoveThis() const { return Tr("Move this {}", noun()); }
std::string Vocabulary::DeleteThis() const { return Tr("Delete this {}", noun()); }
std::string Vocabulary::ProfilesEditUtility() const { return Tr("{} Profiles Edit Utility", Noun()); }
std::string Vocabulary::MustSelect() const { return Tr("You must select a {} first.", noun()); }

std::string Vocabulary::PageButton(int index) const {
  switch (index) {
    case 1: return Profiles();
    case 2: return Tr("Capture Videos");
    case 3: return Tr("Analyze Videos");
    case 4: return Tr("Send Lesson");
    case 5: return Tr("Import/Export");
    case 6: return Tr("Program Setup");
    case 7: return Tr("Help and Demos");
    case 8: return Tr("To Main Menu");
    default: return {};
  }
}

std::string Vocabulary::PageTitle(int index) const {
  switch (index) {
    case 1: return Profiles();
    case 2: return Tr("Video Capture");
    case 3: return Tr("Loading Analysis");
    case 4: return Tr("Send Lesson");
    case 5: return Tr("Import/Export Videos");
    case 6: return Tr("Program Setup");
    case 7: return Tr("Help Menu");
    default: return Tr("Main Menu");
  }
}

bool SetPrimaryName(Settings& settings, const std::string& text) {
  if (text == settings.PrimaryName[0] || text == Vocabulary(settings).Noun()) return false;
  const std::string lower = LowerCase(text);
  settings.PrimaryName = {text, lower, std::string(Trimmed(lower + "s", " "))};
  for (auto& name : settings.PrimaryName) settings.Write(name);
  return true;
}

}  // namespace kinalyx
