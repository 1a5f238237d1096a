#include "workspace/forms/StageLook.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "FormsSupport.h"
#include "core/ColorSchemes.h"
#include "platform/widgets/Theme.h"
#include "workspace/forms/FloatCard.h"

namespace kinalyx::test {
namespace {

void Wear(const ColorScheme& scheme) { ApplyTheme(*qApp, Theme::FromSlots(scheme.colours)); }

class StageLookTest : public ::testing::Test, protected UsesApplication {
 protected:
  void TearDown() override { Wear(ColorSchemes::All()[0]); }
};

TEST_F(StageLookTest, WhatStandsOnCardsCanBeReadInEveryScheme) {
  struct Pair {
    const char* what;
    QColor sign;
    QColor ground;
    double least;
  };
  for (const ColorScheme& scheme : ColorSchemes::All()) {
    Wear(scheme);
    const StageLook look = StageLook::Current();
    const Pair pairs[] = {
        {"words on a card", look.ink, look.card, 4.5},
        {"words under the mouse", look.ink, look.hover, 4.5},
        {"words on what is pressed", look.ink, look.accentFill, 4.5},
        {"words on it under the mouse", look.ink, look.accentHover, 4.5},
        {"captions on a card", look.faintInk, look.card, 4.5},
        {"hints in a field", look.faintInk, look.ground, 4.5},
        {"a field on a card", look.outline, look.card, 3},
        {"a field's inside", look.outline, look.ground, 3},
        {"the ring on a card", look.accent, look.card, 3},
        {"the current window", look.accent, look.ground, 3},
        {"a mark", look.mark, look.card, 3},
    };
    for (const Pair& pair : pairs)
      EXPECT_GE(ContrastRatio(pair.sign, pair.ground), pair.least - 0.005)
          << scheme.caption << ": " << pair.what << ", " << pair.sign.name().toStdString() << " on "
          << pair.ground.name().toStdString();
  }
}

/// Colours of all pixels of a widget.
QSet<QRgb> ColoursIn(QWidget& widget) {
  const QImage picture = widget.grab().toImage();
  QSet<QRgb> colours;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) colours.insert(picture.pixel(x, y));
  return colours;
}

TEST_F(StageLookTest, AChangeOfColoursReachesEveryWindowAndEveryCard) {
  Wear(ColorSchemes::All()[0]);
  QWidget window;
  window.resize(600, 400);
  auto* button = new QPushButton("Open", &window);
  button->setGeometry(10, 10, 90, 34);
  auto* shown = new FloatCard("Shown", "Shown", &window);
  auto* hidden = new FloatCard("Hidden", "Hidden", &window);
  for (FloatCard* card : {shown, hidden}) {
    card->Body()->addWidget(new QLabel("Words", card));
    card->Body()->addWidget(new QRadioButton("Inches", card));
    auto* box = new QLineEdit(card);
    box->setAccessibleName("Length");
    card->Body()->addWidget(box);
  }
  window.show();
  shown->Open();
  const QColor before = CurrentTheme().accent;
  const QColor cardBefore = StageLook::Current().card;

  Wear(ColorSchemes::All()[2]);
  hidden->Open();
  EXPECT_TRUE(ColoursIn(*button).contains(CurrentTheme().accent.rgb()));
  EXPECT_FALSE(ColoursIn(*button).contains(before.rgb()));
  for (FloatCard* card : {shown, hidden}) {
    EXPECT_TRUE(ColoursIn(*card).contains(StageLook::Current().card.rgb())) << card->objectName().toStdString();
    EXPECT_FALSE(ColoursIn(*card).contains(cardBefore.rgb())) << card->objectName().toStdString();
    EXPECT_FALSE(ColoursIn(*card).contains(CurrentTheme().field.rgb())) << "fields and choices on cards are dark";
  }

  // A window that is made later wears what the others do.
  QPushButton later("Later");
  later.show();
  EXPECT_TRUE(ColoursIn(later).contains(CurrentTheme().accent.rgb()));
}

}  // namespace
}  // namespace kinalyx::test
