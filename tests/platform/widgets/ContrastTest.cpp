#include <QMap>
#include <QRegularExpression>
#include <QStringList>

#include "core/ColorSchemes.h"
#include "platform/widgets/Style.h"
#include "platform/widgets/Theme.h"

namespace kinalyx::test {
namespace {

constexpr double kReadable = 4.5;
constexpr double kDiscernible = 3;  // what is disabled need not invite, but must be made out; so must frames

struct Pair {
  QString what;
  QColor text;
  QColor ground;
};

/// The rules of a style sheet: what each selector sets.
using Rules = QMap<QString, QMap<QString, QString>>;

Rules ReadRules(const QString& sheet) {
  Rules rules;
  static const QRegularExpression kRule(R"(([^{}]+)\{([^{}]*)\})");
  for (auto found = kRule.globalMatch(sheet); found.hasNext();) {
    const auto rule = found.next();
    for (const QString& selector : rule.captured(1).split(',')) {
      auto& properties = rules[selector.simplified()];
      for (const QString& line : rule.captured(2).split(';', Qt::SkipEmptyParts))
        properties[line.section(':', 0, 0).trimmed()] = line.section(':', 1).trimmed();
    }
  }
  return rules;
}

/// What a selector sets, or else the one that it narrows: `QPushButton[look="quiet"]:hover` is still a quiet
/// button, and a quiet button is still a button.
QString Property(const Rules& rules, const QString& selector, const char* name) {
  for (QString narrowed = selector; !narrowed.isEmpty();) {
    const auto rule = rules.find(narrowed);
    if (rule != rules.end() && rule->contains(name)) return rule->value(name);
    const auto cut = std::max(narrowed.lastIndexOf(':'), narrowed.lastIndexOf('['));
    if (cut < 0) break;
    narrowed.truncate(cut);
  }
  return {};
}

/// Grounds that a text may stand on when its own rule paints none.
QList<QColor> GroundsOf(const QString& selector, const Theme& theme) {
  if (selector.contains("stage")) return {theme.stage};
  if (selector.contains("brand") || selector.contains("pageTitle")) return {theme.accent};
  return {theme.field, theme.panel, theme.backdrop};
}

/// A colour of a rule on the ground that the rule paints, or else on each that it may stand on.
QList<Pair> OnItsGrounds(const QColor& colour, const QString& selector, const Rules& rules, const Theme& theme) {
  const QString ground = Property(rules, selector, "background");
  if (ground.startsWith('#')) return {{selector, colour, QColor(ground)}};
  QList<Pair> pairs;
  for (const QColor& under : GroundsOf(selector, theme)) pairs.append({selector, colour, under});
  return pairs;
}

QList<Pair> PairsOfSheet(const Theme& theme) {
  QList<Pair> pairs;
  const Rules rules = ReadRules(StyleSheetOf(theme));
  for (auto rule = rules.begin(); rule != rules.end(); ++rule) {
    // Grooves, handles and the like carry no text; tiles paint themselves.
    if (rule.key().contains("::") && !rule.key().contains("::item")) continue;
    if (rule.key().contains("tile")) continue;
    if (!rule->contains("color") && !rule->contains("background")) continue;
    const QColor text(Property(rules, rule.key(), "color"));
    if (text.isValid()) pairs += OnItsGrounds(text, rule.key(), rules, theme);
  }
  return pairs;
}

QList<Pair> PairsOfTheme(const Theme& t) {
  QList<Pair> pairs;
  for (const QColor& ground : {t.field, t.panel, t.backdrop, t.selection}) {
    pairs.append({"text", t.text, ground});
    pairs.append({"muted", t.muted, ground});
    pairs.append({"heading", t.heading, ground});
    pairs.append({"faint, disabled", t.faint, ground});
  }
  for (const QColor& ground : {t.accent, t.accentHover, t.accentPressed})
    pairs.append({"accentText", t.accentText, ground});
  pairs.append({"stageText", t.stageText, t.stage});
  pairs.append({"stageFrame", t.stageFrame, t.stage});
  return pairs;
}

void ExpectContrast(const ColorScheme& scheme, const Pair& pair, double least) {
  EXPECT_GE(ContrastRatio(pair.text, pair.ground), least - 0.005)
      << scheme.caption << ": " << pair.what.toStdString() << ", " << pair.text.name().toStdString() << " on "
      << pair.ground.name().toStdString();
}

TEST(Contrast, EveryTextCanBeReadInEveryScheme) {
  for (const ColorScheme& scheme : ColorSchemes::All()) {
    const Theme theme = Theme::FromSlots(scheme.colours);
    const QList<Pair> pairs = PairsOfTheme(theme) + PairsOfSheet(theme);
    ASSERT_GT(pairs.size(), 80) << "the rules were not found";
    for (const Pair& pair : pairs) {
      // A mark that is off is one and the same grey on the panel's own colour in every scheme.
      if (pair.what.contains("markOff")) continue;
      ExpectContrast(scheme, pair, pair.what.contains("disabled") ? kDiscernible : kReadable);
    }
  }
}

/// The frames by which alone one sees where a field is, and which control has the keys.
QList<Pair> FramesOfSheet(const Theme& theme) {
  static const QRegularExpression kColour("#[0-9a-f]{6}");
  QList<Pair> pairs;
  const Rules rules = ReadRules(StyleSheetOf(theme));
  for (auto rule = rules.begin(); rule != rules.end(); ++rule) {
    const bool field = rule.key() == "QLineEdit" || rule.key() == "QPlainTextEdit" || rule.key() == "QAbstractSpinBox";
    if (!field && !rule.key().endsWith(":focus")) continue;
    const QString frame = kColour.match(rule->value("border-color", rule->value("border"))).captured();
    if (!frame.isEmpty()) pairs += OnItsGrounds(QColor(frame), rule.key(), rules, theme);
  }
  return pairs;
}

TEST(Contrast, EveryFrameThatSaysSomethingCanBeMadeOutInEveryScheme) {
  for (const ColorScheme& scheme : ColorSchemes::All()) {
    const Theme t = Theme::FromSlots(scheme.colours);
    QList<Pair> pairs = FramesOfSheet(t);
    ASSERT_GT(pairs.size(), 15) << "the rules were not found";
    pairs.append({"check mark, box", t.outline, t.field});
    pairs.append({"check mark, box on the stage", t.stageOutline, t.stage});
    pairs.append({"what is on, on the stage", t.stage, t.stageFrame});
    for (const QColor& ground : {t.field, t.panel, t.backdrop}) pairs.append({"what is on", t.accent, ground});
    for (const Pair& pair : pairs) ExpectContrast(scheme, pair, kDiscernible);
  }
}

TEST(Contrast, TheSchemesOwnColoursAreKept) {
  for (const ColorScheme& scheme : ColorSchemes::All()) {
    const Theme theme = Theme::FromSlots(scheme.colours);
    EXPECT_EQ(FromQColor(theme.accent), scheme.colours[0]);
    EXPECT_EQ(FromQColor(theme.panel), scheme.colours[1]);
    EXPECT_EQ(FromQColor(theme.backdrop), scheme.colours[3]);
    if (ContrastRatio(ToQColor(scheme.colours[2]), theme.accent) >= kReadable) {
      EXPECT_EQ(FromQColor(theme.accentText), scheme.colours[2]);
    }
  }
}

TEST(Contrast, RatioAndReadableAgreeWithTheGuides) {
  EXPECT_NEAR(ContrastRatio(Qt::black, Qt::white), 21, 0.01);
  EXPECT_NEAR(ContrastRatio(QColor(0x76, 0x76, 0x76), Qt::white), 4.54, 0.01);
  for (const QColor& ground : {QColor(Qt::black), QColor(Qt::white), QColor(128, 128, 128), QColor(200, 30, 30)}) {
    EXPECT_GE(ContrastRatio(Readable(ground, ground), ground), kReadable) << ground.name().toStdString();
  }
  const QColor already(20, 20, 90);
  EXPECT_EQ(Readable(already, Qt::white), already);
}

}  // namespace
}  // namespace kinalyx::test
