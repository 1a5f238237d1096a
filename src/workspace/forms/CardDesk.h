#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>
#include <optional>

namespace kinalyx {

class Settings;
class Stage;

/// What the cards over the stage ask before they lie down: where the athlete is, and where the user has put each of
/// them, also in an earlier run. The setting `CardPlaces` has "name across down;" of each, the last moved first, in
/// thousandths of the room that the card leaves free.
class CardDesk {
 public:
  /// Both must outlive the desk.
  CardDesk(Settings& settings, const Stage& theStage) : settings_(settings), theStage_(theStage) {}

  /// The middle third of the current picture, in pixels of the stage; empty without a video.
  QRect Athlete() const;
  /// The corner for a card of this size within `room`; nothing for one that was never moved.
  std::optional<QPoint> PlaceOf(const QString& card, QSize size, QRect room) const;
  void Keep(const QString& card, QRect place, QRect room);

 private:
  Settings& settings_;
  const Stage& theStage_;
};

}  // namespace kinalyx
