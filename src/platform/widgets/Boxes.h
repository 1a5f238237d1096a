#pragma once

class QLineEdit;

namespace kinalyx {

/// Gives a box the toolkit's sign that empties it, under a name that a screen reader can say.
void LetClear(QLineEdit& box);

}  // namespace kinalyx
