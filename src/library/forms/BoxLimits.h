#pragma once

class QLabel;
class QLineEdit;

namespace kinalyx {

/// Keeps a box to names that a folder or a video can have: what is too long is cut between two letters, and
/// what no name may hold is told in `note`, which is hidden while there is nothing to say.
void LimitToNames(QLineEdit& box, QLabel& note);

/// Keeps a box to so many characters, and says so in `note` once they are reached; otherwise it is empty.
void LimitLength(QLineEdit& box, QLabel& note, int characters);

}  // namespace kinalyx
