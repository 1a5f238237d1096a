#include "core/Vocabulary.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

#include "platform/files/TextEncoding.h"
#include "platform/files/Tr.h"

namespace kinalyx {

namespace {

constexpr const char* kUsualNoun = "Student";

/// How a word ends that means one person, and how where it means many.
struct Ending {
  std::string_view one;
  std::string_view many;
};

// The first that fits counts.
constexpr Ending kGerman[] = {
    {"er", "er"},       {"el", "el"},     {"en", "en"},     {"lein", "lein"}, {"in", "innen"},
    {"ee", "ees"},      {"e", "en"},      {"ent", "enten"}, {"ant", "anten"}, {"ist", "isten"},
    {"nast", "nasten"}, {"at", "aten"},   {"et", "eten"},   {"ett", "etten"}, {"or", "oren"},
    {"and", "anden"},   {"ind", "inder"}, {"ied", "ieder"}, {"ung", "ungen"}, {"erson", "ersonen"},
    {"a", "as"},        {"i", "is"},      {"o", "os"},      {"u", "us"},      {"y", "ys"},
    {"", "e"},
};
constexpr Ending kSpanish[] = {
    {"z", "ces"},       {"ón", "ones"}, {"án", "anes"}, {"ín", "ines"}, {"és", "eses"},
    {"oven", "óvenes"}, {"a", "as"},    {"e", "es"},    {"i", "is"},    {"o", "os"},
    {"u", "us"},        {"á", "ás"},    {"é", "és"},    {"ó", "ós"},    {"", "es"},
};
constexpr Ending kEnglish[] = {{"", "s"}};

/// The code of the language that is spoken.
std::string SpokenLanguage() { return Tr("en"); }

std::string Plural(const std::string& noun, std::span<const Ending> endings) {
  const auto ending = std::ranges::find_if(endings, [&](const Ending& e) { return noun.ends_with(e.one); });
  return noun.substr(0, noun.size() - ending->one.size()) + std::string(ending->many);
}

}  // namespace

bool Vocabulary::IsUsual() const {
  return settings_.PrimaryName == std::array<std::string, 3>{kUsualNoun, "student", "students"};
}

std::string Vocabulary::Noun() const { return IsUsual() ? Tr("Student") : settings_.PrimaryName[0]; }

std::string Vocabulary::noun() const {
  if (IsUsual()) return Tr("student");
  // German writes its nouns with a capital everywhere.
  return SpokenLanguage() == "de" ? Capitalized(settings_.PrimaryName[0]) : settings_.PrimaryName[1];
}

std::string Vocabulary::nouns() const {
  if (IsUsual()) return Tr("students");
  const std::string language = SpokenLanguage();
  if (language == "de") return Plural(noun(), kGerman);
  return language == "es" ? Plural(noun(), kSpanish) : settings_.PrimaryName[2];
}

std::string Vocabulary::Nouns() const {
  if (IsUsual()) return Tr("Students");
  const std::string language = SpokenLanguage();
  if (language == "de") return Plural(Noun(), kGerman);
  return language == "es" ? Plural(Noun(), kSpanish) : Plural(Noun(), kEnglish);
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
  // In the words of another language it is still the word that settings start with, and so follows the language.
  const std::string word = text == Tr("Student") ? kUsualNoun : text;
  const std::string lower = LowerCase(word);
  settings.PrimaryName = {word, lower, std::string(Trimmed(lower + "s", " "))};
  for (auto& name : settings.PrimaryName) settings.Write(name);
  return true;
}

}  // namespace kinalyx
