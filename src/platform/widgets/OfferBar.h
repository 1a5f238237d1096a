#pragma once

#include <QFrame>
#include <QTimer>

class QLabel;

namespace kinalyx {

/// A bar at the foot of a window that offers one thing for ten seconds and then goes by itself. It takes no focus.
class OfferBar : public QFrame {
  Q_OBJECT

 public:
  /// @param action  what its button does
  /// @param over    the window at whose foot it stands, whatever page that shows
  OfferBar(const QString& name, const QString& action, QWidget* over);

  /// A new offer takes the place of the one before.
  void Offer(const QString& words);

 signals:
  void Accepted();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Place();

  QLabel* words_;
  QTimer end_;
};

}  // namespace kinalyx
