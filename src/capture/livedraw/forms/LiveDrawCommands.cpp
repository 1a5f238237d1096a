// The tools and keys of live draw: those of the analysis section, as far as they make sense upon a live picture.

#include <QKeyEvent>
#include <algorithm>
#include <iterator>
#include <string>

#include "capture/livedraw/forms/LiveDrawForm.h"
#include "platform/files/Tr.h"
#include "platform/widgets/Text.h"
#include "video/KeyCodes.h"
#include "workspace/commands/DrawToolWords.h"
#include "workspace/forms/KeyCodeOf.h"

namespace kinalyx {
namespace {

// Groups of the tool strip.
enum Group { kDrawing = 3, kErasing };

constexpr int kFullScreenKey = kKeyF12 - 1;  // where the analysis section has its arrow
constexpr int kGridKey = kKeyF12;

KeyStroke Key(int code, int shift = 0) { return {KeyStroke::Kind::Code, code, shift}; }

}  // namespace

void LiveDrawForm::MakeCommands() {
  const DrawingBoard& board = session_.Board();
  const auto needs = [](auto met, std::string why) {
    return [met, why = std::move(why)] { return met() ? std::string() : why; };
  };
  const auto hasPicture = needs([&board] { return board.HasPicture(); }, Tr("Needs the picture of a camera"));
  const auto hasDrawings = needs([this, &board] { return board.HasPicture() && session_.HasDrawings(); },
                                 Tr("Nothing is drawn on the picture"));
  const auto inHand = [&board](int kind, bool straight) {
    const DrawingTools& tools = board.Tools();
    return tools.Drawing() && tools.InHand() == ToolInHand::Plain && tools.DrawKind() == kind &&
           board.StraightMode() == straight;
  };
  const auto heldAs = [&board](ToolInHand way) { return board.Tools().Drawing() && board.Tools().InHand() == way; };
  const auto tool = [&](std::string name, const std::string& tip, const char* icon,
                        std::function<void(DrawingTools&)> take, std::function<bool()> checked,
                        std::vector<KeyStroke> keys = {}) {
    Command command;
    command.item = std::move(name);
    command.icon = icon;
    command.tip = tip;
    command.group = kDrawing;
    command.run = [this, take = std::move(take)] { session_.TakeTool(take); };
    command.obstacle = hasPicture;
    command.checked = std::move(checked);
    command.twice = [this] { session_.TakeTool([](DrawingTools& tools) { tools.StayInHand(); }); };
    command.keys = std::move(keys);
    commands_.push_back(std::move(command));
  };
  for (int kind = 0; kind < static_cast<int>(std::size(kDrawTools)); ++kind) {
    const DrawToolWords& words = kDrawTools[kind];
    tool(
        "CmdMakeShape" + std::to_string(kind), Tr(words.tip), words.icon,
        [kind](DrawingTools& tools) { tools.TakeTool(kind); }, [inHand, kind] { return inHand(kind, false); },
        {Key(kKeyF1 + kind, kind == kArrow ? kShift : 0)});
  }
  const auto plain = [&](const char* name, const std::string& tip, const char* icon, Group group,
                         std::function<void()> run, std::function<std::string()> obstacle,
                         std::vector<KeyStroke> keys = {}) -> Command& {
    Command command;
    command.item = name;
    command.icon = icon;
    command.tip = tip;
    command.group = group;
    command.run = std::move(run);
    command.obstacle = std::move(obstacle);
    command.keys = std::move(keys);
    return commands_.emplace_back(std::move(command));
  };
  plain("ribShowGrid", Tr("Grid"), "grid", kDrawing, [this] { session_.ToggleGrid(); }, hasPicture, {Key(kGridKey)})
      .checked = [&board] { return board.List().GridOn; };
  tool("DDSLBtn", Tr("Draw Straight Line"), "straight-line", &DrawingTools::TakeStraightLine,
       [inHand] { return inHand(kLine, true); });
  tool("DDSABtn", Tr("Draw Straight Arrow"), "straight-arrow", &DrawingTools::TakeStraightArrow,
       [inHand] { return inHand(kArrow, true); });
  tool("CentreCircleBtn", Tr("Draw Circle from Center"), "centre-circle", &DrawingTools::TakeCentreCircle,
       [heldAs] { return heldAs(ToolInHand::CentreCircle); });
  tool("DrawTextBtn", Tr("Draw Text"), "text", &DrawingTools::TakeTextTool,
       [heldAs] { return heldAs(ToolInHand::Text); });
  plain("UndoBtn", Tr("Undo"), "undo", kErasing, [this] { session_.Undo(); },
        needs([this] { return session_.CanUndo(); }, Tr("No change of drawings or zones to undo")), {Key('Z', kCtrl)});
  plain("RedoBtn", Tr("Redo"), "redo", kErasing, [this] { session_.Redo(); },
        needs([this] { return session_.CanRedo(); }, Tr("No change of drawings or zones was undone")),
        {Key('Z', kShift | kCtrl)});
  plain("Lastcadoff", Tr("Delete Last Object Drawn"), "delete-last", kErasing, [this] { session_.RemoveLast(); },
        hasDrawings, {Key(kKeyDelete)});
  plain(
      "DeleteAllBtn", Tr("Delete All Drawings"), "trash", kErasing, [this] { session_.RemoveAll(); }, hasDrawings);
}

void LiveDrawForm::Run(const std::string& name) {
  const auto found = std::ranges::find(commands_, name, &Command::item);
  if (found == commands_.end() || !found->Reason().empty()) return;
  found->run();
  UpdateAll();
}

void LiveDrawForm::RunTwice(const std::string& name) {
  const auto found = std::ranges::find(commands_, name, &Command::item);
  if (found == commands_.end() || !found->twice || !found->Reason().empty()) return;
  // The first click may have put down what was in hand.
  if (found->checked && !found->checked()) found->run();
  found->twice();
  UpdateAll();
}

bool LiveDrawForm::PressKey(const QKeyEvent& event) {
  const int code = KeyCodeOf(event);
  const int shift =
      (event.modifiers() & Qt::ShiftModifier ? kShift : 0) | (event.modifiers() & Qt::ControlModifier ? kCtrl : 0);
  ShapeHand& hand = session_.Board().Hand();
  if (code == kFullScreenKey && shift == 0) {
    ToggleFullScreen();
    return true;
  }
  if (shift == 0 && (code == kKeyReturn || code == kKeyBackspace)) return session_.PressPathKey(code == kKeyReturn);
  if (shift == 0 && code == kKeyDelete && session_.AnyTaken()) {
    session_.RemoveTaken();
    return true;
  }
  if (shift == kCtrl && code == 'Y') {
    session_.Redo();
    return true;
  }
  if (shift == kCtrl && code == 'D') {
    hand.Duplicate();
    return true;
  }
  if (shift == kShift && hand.Taken()) {
    const auto nudge = [&hand](int dx, int dy) {
      hand.Nudge(dx, dy);
      return true;
    };
    if (code == kKeyLeft) return nudge(-1, 0);
    if (code == kKeyRight) return nudge(1, 0);
    if (code == kKeyUp) return nudge(0, -1);
    if (code == kKeyDown) return nudge(0, 1);
  }
  for (const Command& command : commands_)
    for (const KeyStroke& key : command.keys)
      if (key.value == code && key.shift == shift) {
        Run(command.item);
        return true;
      }
  if (shift == 0 && code == kKeySpace) {
    CamCtlBtn_Click(0);
    return true;
  }
  switch (KeyAsciiOf(event)) {
    case 'z':
    case 'Z': CamCtlBtn_Click(2); return true;
    case 'f':
    case 'F': SSRibbon1_Click(!session_.Camera().Mirror()); return true;
    case 'm':
    case 'M': session_.SetMuted(!session_.Muted()); return true;
    case 'v':
    case 'V': session_.Board().Tools().HideDrawings(!session_.Board().Tools().Hidden()); return true;
    case 'd':
    case 'D': session_.Board().Tools().ToggleLabels(); return true;
    default: return false;
  }
}

void LiveDrawForm::keyPressEvent(QKeyEvent* event) {
  const bool nudges = event->modifiers() & Qt::ShiftModifier && session_.Board().Hand().Taken();
  if (event->isAutoRepeat() && !nudges) return;
  if (event->key() == Qt::Key_Escape) {
    // What is nearest to the hand goes first; the window stays.
    if (!session_.Escape() && isFullScreen()) ToggleFullScreen();
    return;
  }
  if (event->modifiers() & Qt::AltModifier || !PressKey(*event)) QWidget::keyPressEvent(event);
}

}  // namespace kinalyx
