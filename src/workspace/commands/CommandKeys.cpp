#include "workspace/commands/CommandKeys.h"

#include <iterator>

#include "video/KeyCodes.h"

namespace kinalyx {

namespace {

constexpr KeyRow kKeyRows[] = {
    {"VLib", Key(kKeyHome), KeySet::Classic},
    {"EKTMM", Key(kKeyEnd), KeySet::Classic},
    {"CG", Key(kKeyPageUp)},
    {"PDkeyA", Key(kKeyPageDown)},
    {"vo", Letter('O'), KeySet::Classic},
    {"vr", Letter('R')},
    {"vF", Key(kKeyUp)},
    {"vplay", Letter('P')},
    {"PlayPause", Key(kKeySpace, 0), KeySet::Classic},
    {"vplay", Key(kKeySpace, 0), KeySet::Editor},
    {"VL", Key(kKeyDown)},
    {"vp", Key(kKeyLeft)},
    {"vn", Key(kKeyRight)},
    {"vloop", Letter('L'), KeySet::Classic},
    {"vs", Letter('S')},
    {"vFlip", Letter('F')},
    {"MZoom", Letter('Z')},
    {"MnuClose", Letter('C')},
    {"Escape", Key(kKeyEscape)},
    {"ReopenVideos", Key('T', kShift | kCtrl)},
    {"UndoDrawing", Key('Z', kCtrl)},
    {"RedoDrawing", Key('Z', kShift | kCtrl)},
    {"Lastcadoff", Key(kKeyDelete)},
    {"TMark", Letter('M')},
    {"NextDrawing", Letter('N')},
    {"HideDrawings", Letter('V')},
    {"ShapeLabels", Letter('D')},
    {"LineUp", Letter('U')},
    {"TTES", Key(kKeyCtrl), KeySet::Classic},
    {"TSaveClip", Key('E', kCtrl)},
    {"TCopyPicture", Key('C', kCtrl)},
    {"PanUp", Key(kKeyNumpad0 + 8)},
    {"PanUp", Letter('Y')},
    {"PanDown", Key(kKeyNumpad0 + 2)},
    {"PanDown", Letter('B')},
    {"PanLeft", Key(kKeyNumpad0 + 4)},
    {"PanLeft", Letter('G')},
    {"PanRight", Key(kKeyNumpad0 + 6)},
    {"PanRight", Letter('H')},
    {"WholePicture", Key(kKeyNumpad0 + 5)},
    {"WholePicture", Letter('J'), KeySet::Classic},
    {"ZoomIn", Letter('+')},
    {"ZoomIn", Letter('=')},
    {"ZoomOut", Letter('-')},
    {"ZoomNone", Letter('*')},
    {"FitPicture", Letter('W')},
    {"Slower", Letter('[')},
    {"Faster", Letter(']')},
    {"AllVideos", Letter('A')},
    {"PlayAll", Key(kKeySpace, kShift)},
    {"RewindAll", Key(kKeyUp, kCtrl)},
    {"BackAll", Key(kKeyLeft, kCtrl)},
    {"ForwardAll", Key(kKeyRight, kCtrl)},
    {"VLib", Key(kKeyHome, kCtrl), KeySet::Editor},
    {"EKTMM", Key(kKeyEnd, kCtrl), KeySet::Editor},
    {"vo", Key('O', kCtrl), KeySet::Editor},
    {"vloop", Key('L', kCtrl), KeySet::Editor},
    {"WholePicture", Key(kKey0, 0), KeySet::Editor},
    {"PlayBackward", Letter('J'), KeySet::Editor},
    {"Pause", Letter('K'), KeySet::Editor},
    {"PlayForward", Letter('L'), KeySet::Editor},
    {"RangeStart", Letter('I'), KeySet::Editor},
    {"RangeEnd", Letter('O'), KeySet::Editor},
    {"ToFirst", Key(kKeyHome, 0), KeySet::Editor},
    {"ToLast", Key(kKeyEnd, 0), KeySet::Editor},
    {"LeapBack", Key(kKeyLeft, kShift), KeySet::Editor},
    {"LeapForward", Key(kKeyRight, kShift), KeySet::Editor},
    {"SaveNow", Key('S', kCtrl), KeySet::Editor},
    {"MnuClose", Key('W', kCtrl), KeySet::Editor},
    {"Quit", Key('Q', kCtrl), KeySet::Editor},
    {"Window1", Key(kKeyNumpad0 + 7)},
    {"Window2", Key(kKeyNumpad0 + 9)},
    {"Window3", Key(kKeyNumpad0 + 3)},
    {"Window4", Key(kKeyNumpad0 + 1)},
};

/// Of two rows with one key only the first would ever be asked.
constexpr bool NoKeyIsTakenTwice() {
  for (const KeyRow& row : kKeyRows)
    for (const KeyRow* later = &row + 1; later != std::end(kKeyRows); ++later)
      if (row.key.kind == later->key.kind && row.key.value == later->key.value && row.key.shift == later->key.shift &&
          (row.set == later->set || row.set == KeySet::Both || later->set == KeySet::Both))
        return false;
  return true;
}
static_assert(NoKeyIsTakenTwice());

}  // namespace

std::span<const KeyRow> KeyRows() { return kKeyRows; }

}  // namespace kinalyx
