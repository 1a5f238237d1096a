#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QString>

namespace kinalyx {

/// A line icon of the program's family (`icons/<name>.svg` beside the program), drawn at whatever size
/// and pixel density is asked for. `checked` is the colour while a button is checked (none: the same),
/// `disabled` while it is disabled (none: the theme's faint text), `selected` in a chosen row (none: the same). An
/// unknown name gives an icon that
/// draws nothing.
QIcon Icon(const QString& name, QColor colour, QColor checked = {}, QColor disabled = {}, QColor selected = {});

/// One picture of an icon, `size` logical pixels square.
QPixmap IconPixmap(const QString& name, QColor colour, int size, qreal pixelRatio);

}  // namespace kinalyx
