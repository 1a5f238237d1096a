#include "workspace/forms/CardDesk.h"

#include <QStringList>
#include <algorithm>

#include "core/Settings.h"
#include "core/Twips.h"
#include "platform/widgets/Text.h"
#include "workspace/stage/Stage.h"

namespace kinalyx {
namespace {

constexpr int kWhole = 999;  // at the right or lower edge

int Share(int at, int free) { return free > 0 ? std::clamp(at * kWhole / free, 0, kWhole) : 0; }
int At(int share, int free) { return std::max(0, free) * std::clamp(share, 0, kWhole) / kWhole; }

QSize Free(QRect room, QSize size) { return room.size() - size; }

}  // namespace

QRect CardDesk::Athlete() const {
  if (!theStage_.HasVideo(theStage_.CurrentWindow)) return {};
  const Slot& at = theStage_.At(theStage_.CurrentWindow);
  const int width = at.panel.Width / kTwipsPerPixel;
  return {(at.cell.Left + at.panel.Left) / kTwipsPerPixel + width / 3, (at.cell.Top + at.panel.Top) / kTwipsPerPixel,
          width / 3, at.panel.Height / kTwipsPerPixel};
}

std::optional<QPoint> CardDesk::PlaceOf(const QString& card, QSize size, QRect room) const {
  for (const QString& entry : Q(settings_.CardPlaces).split(';')) {
    const QStringList words = entry.split(' ');
    if (words.size() != 3 || words[0] != card) continue;
    const QSize free = Free(room, size);
    return room.topLeft() + QPoint(At(words[1].toInt(), free.width()), At(words[2].toInt(), free.height()));
  }
  return std::nullopt;
}

void CardDesk::Keep(const QString& card, QRect place, QRect room) {
  const QSize free = Free(room, place.size());
  const QPoint at = place.topLeft() - room.topLeft();
  std::string kept =
      Std(QString("%1 %2 %3;").arg(card).arg(Share(at.x(), free.width())).arg(Share(at.y(), free.height())));
  for (const QString& entry : Q(settings_.CardPlaces).split(';')) {
    const QStringList words = entry.split(' ');
    if (words.size() != 3 || words[0] == card) continue;
    const std::string longer = kept + Std(entry) + ';';
    if (!Settings::Holds(longer)) break;  // what was moved longest ago
    kept = longer;
  }
  settings_.Set(settings_.CardPlaces, kept);
}

}  // namespace kinalyx
