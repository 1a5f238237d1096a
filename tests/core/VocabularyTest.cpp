#include "core/Vocabulary.h"

#include <QCoreApplication>
#include <QTranslator>
#include <map>
#include <string_view>
#include <utility>

#include "core/Heading.h"
#include "support/TestDesk.h"

namespace kinalyx::test {
namespace {

using Dictionary = std::map<std::string, std::string>;

/// Says a few words in another language, and all others in English.
class Words final : public QTranslator {
 public:
  explicit Words(Dictionary words) : words_(std::move(words)) {}
  bool isEmpty() const override { return words_.empty(); }
  QString translate(const char* context, const char* text, const char*, int) const override {
    const auto said = words_.find(text);
    if (std::string_view(context) != "Kinalyx" || said == words_.end()) return {};
    return QString::fromStdString(said->second);
  }

 private:
  Dictionary words_;
};

/// A desk at which a language is spoken.
class Spoken {
 public:
  explicit Spoken(Dictionary words) : words_(std::move(words)) { QCoreApplication::installTranslator(&words_); }
  ~Spoken() { QCoreApplication::removeTranslator(&words_); }
  Spoken(const Spoken&) = delete;
  Spoken& operator=(const Spoken&) = delete;

  TestDesk desk;
  const Vocabulary words{desk.settings};

 private:
  char name_[5] = "test";
  char* names_[2] = {name_, nullptr};
  int count_ = 1;
  QCoreApplication application_{count_, names_};
  Words words_;
};

const Dictionary kGerman = {
    {"en", "de"},
    {"Student", "Schüler"},
    {"student", "Schüler"},
    {"students", "Schüler"},
    {"Students", "Schüler"},
    {"Select {}", "{} wählen"},
};
const Dictionary kSpanish = {
    {"en", "es"},
    {"Student", "Alumno"},
    {"student", "alumno"},
    {"students", "alumnos"},
    {"Students", "Alumnos"},
    {"Select {}", "Elegir {}"},
};

std::string AllOf(const Vocabulary& words) {
  return words.Noun() + " " + words.noun() + " " + words.nouns() + " " + words.Nouns() + ": " + words.Select();
}

TEST(Vocabulary, TheFirstWordIsSaidInTheLanguageAndStoredInEnglish) {
  Spoken german(kGerman);
  EXPECT_EQ(AllOf(german.words), "Schüler Schüler Schüler Schüler: Schüler wählen");
  for (const char* same : {"Schüler", "Student"}) EXPECT_FALSE(SetPrimaryName(german.desk.settings, same)) << same;
  EXPECT_EQ(german.desk.OnDisk("Layout", "PrimaryName0"), "Student");
  EXPECT_EQ(german.desk.OnDisk("Layout", "PrimaryName2"), "students");
}

TEST(Heading, IsSaidInTheLanguageWhereTheUserHasTypedNothing) {
  Spoken german({{"Welcome to the\nKinalyx\nMotion\nAnalysis\nProgram", "Willkommen bei\nKinalyx\nAnalyse"},
                 {"Company Name", "Firmenname"}});
  Settings& settings = german.desk.settings;
  EXPECT_EQ(ShownHeading(settings), (HeadingLines{"Willkommen bei", "Kinalyx", "Analyse", "", ""}));
  EXPECT_EQ(ShownCompany(settings), "Firmenname");
  EXPECT_EQ(german.desk.OnDisk("General", "Heading1"), "Welcome to the");
  settings.Set(settings.Heading[3], "Żaba Golf");
  settings.Set(settings.CompanyName, "Club");
  EXPECT_EQ(ShownHeading(settings), (HeadingLines{"Willkommen bei", "Kinalyx", "Żaba Golf", "", ""}));
  EXPECT_EQ(ShownCompany(settings), "Club");
}

TEST(Vocabulary, TheUsersOwnWordIsSaidAsTyped) {
  {
    Spoken german(kGerman);
    EXPECT_TRUE(SetPrimaryName(german.desk.settings, "übende"));
    EXPECT_EQ(AllOf(german.words), "übende Übende Übenden übenden: übende wählen") << "a capital within sentences";
    EXPECT_EQ(german.desk.OnDisk("Layout", "PrimaryName2"), "übendes");
    EXPECT_TRUE(SetPrimaryName(german.desk.settings, "Schüler")) << "and back";
    EXPECT_EQ(german.desk.OnDisk("Layout", "PrimaryName0"), "Student");
    EXPECT_EQ(german.desk.OnDisk("Layout", "PrimaryName2"), "students");
  }
  Spoken spanish(kSpanish);
  EXPECT_EQ(AllOf(spanish.words), "Alumno alumno alumnos Alumnos: Elegir Alumno");
  EXPECT_TRUE(SetPrimaryName(spanish.desk.settings, "Jugador"));
  EXPECT_EQ(AllOf(spanish.words), "Jugador jugador jugadores Jugadores: Elegir Jugador");
}

TEST(Vocabulary, ALanguageHasItsOwnPlurals) {
  const auto check = [](const Dictionary& language, const std::vector<std::pair<const char*, const char*>>& plurals) {
    Spoken spoken(language);
    for (const auto& [one, many] : plurals) {
      EXPECT_TRUE(SetPrimaryName(spoken.desk.settings, one));
      EXPECT_EQ(spoken.words.Nouns(), many);
    }
  };
  check(kGerman, {{"Spieler", "Spieler"},
                  {"Mädchen", "Mädchen"},
                  {"Spielerin", "Spielerinnen"},
                  {"Kunde", "Kunden"},
                  {"Patient", "Patienten"},
                  {"Athlet", "Athleten"},
                  {"Junior", "Junioren"},
                  {"Profi", "Profis"},
                  {"Kind", "Kinder"},
                  {"Lehrling", "Lehrlinge"}});
  check(kSpanish, {{"Cliente", "Clientes"},
                   {"Aprendiz", "Aprendices"},
                   {"Campeón", "Campeones"},
                   {"Joven", "Jóvenes"},
                   {"Bebé", "Bebés"},
                   {"Jugador", "Jugadores"}});
  check({}, {{"Class", "Classs"}, {"Golfer", "Golfers"}});
}

}  // namespace
}  // namespace kinalyx::test
