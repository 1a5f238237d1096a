#include "library/forms/LibraryButtons.h"

#include <QBoxLayout>
#include <QMenu>

#include "library/forms/HeadButton.h"
#include "library/forms/StatusLine.h"
#include "platform/files/Tr.h"
#include "platform/widgets/NameList.h"
#include "platform/widgets/Text.h"

namespace kinalyx {

namespace {

struct ButtonLook {
  LibraryAction action;
  const char* caption;
  const char* icon;
};

constexpr ButtonLook kLooks[] = {
    {LibraryAction::AddStudent, "", "add"},
    {LibraryAction::RenameStudent, "", "rename"},
    {LibraryAction::MoveStudent, "", "move"},
    {LibraryAction::DeleteStudent, "", "trash"},
    {LibraryAction::SendToAnalysis, TrLater("Analyze"), "analyze"},
    {LibraryAction::Trim, "", "trim"},
    {LibraryAction::RenameVideo, "", "rename"},
    {LibraryAction::MoveVideo, "", "move"},
    {LibraryAction::CopyVideo, "", "copy"},
    {LibraryAction::DeleteVideo, "", "trash"},
    {LibraryAction::Profile, "", "notes"},
    {LibraryAction::QuickLaunch, TrLater("Quick Launch +"), ""},
};

}  // namespace

LibraryButtons::LibraryButtons(const Settings& settings, StatusLine& status, QObject* parent)
    : QObject(parent), settings_(settings), status_(status) {
  const auto name = [](LibraryAction action) { return QString("SPBtn%1").arg(static_cast<int>(action)); };
  const auto add = [&](LibraryAction action, Button* button) {
    buttons_[static_cast<std::size_t>(action)] = button;
    connect(button, &QPushButton::clicked, this, [this, action] { emit Wanted(action); });
  };
  for (const auto& [action, caption, icon] : kLooks) add(action, new Button(name(action), QObject::tr(caption), icon));
  add(LibraryAction::Statistics, HeadButton(name(LibraryAction::Statistics), Q(StatisticsCaption(false)), "stats"));
  At(LibraryAction::Profile)->setCheckable(true);
}

void LibraryButtons::Place(std::initializer_list<LibraryAction> actions, QBoxLayout* row) const {
  for (const LibraryAction action : actions) row->addWidget(At(action));
}

void LibraryButtons::GiveMenu(NameList* list, std::vector<LibraryAction> actions) {
  list->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(list, &QWidget::customContextMenuRequested, this, [this, list, actions = std::move(actions)](QPoint place) {
    // Beside the names nothing is meant.
    if (!list->itemAt(place)) return;
    const auto chosen = static_cast<int>(list->selectedItems().size());
    auto* menu = new QMenu(list);
    menu->setObjectName("ListMenu");
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const LibraryAction action : actions)
      if (chosen < 2 || TakesSeveralVideos(action))
        menu->addAction(Tip(action, chosen), this, [this, action] { emit Wanted(action); });
    menu->popup(list->viewport()->mapToGlobal(place));
  });
}

/// The sentence of the status line without its full stop.
QString LibraryButtons::Tip(LibraryAction action, int videos) const {
  return Q(LibraryActionTip(action, settings_, videos)).chopped(1);
}

void LibraryButtons::SetupVocabulary() {
  for (int index = 0; index < kLibraryActions; ++index) {
    const auto action = static_cast<LibraryAction>(index);
    status_.Explain(At(action), Q(LibraryActionTip(action, settings_)));
    At(action)->setToolTip(Tip(action));
    At(action)->setAccessibleName(Tip(action));
  }
}

}  // namespace kinalyx
