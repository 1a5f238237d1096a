#include "library/forms/SidecarMarkLabels.h"

#include <QBoxLayout>
#include <QLabel>

#include "platform/files/Tr.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {

SidecarMarkLabels::SidecarMarkLabels(QWidget* parent) : QWidget(parent) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(8);
  const char* const kCaptions[] = {TrLater("Drawings"), TrLater("Notes")};
  const char* const kTips[] = {TrLater("Lit when there are drawings on the video"),
                               TrLater("Lit when there are notes on the video")};
  for (std::size_t mark = 0; mark < marks_.size(); ++mark) {
    marks_[mark] = MakeLabel(QString("VidInfoPanel%1").arg(mark), QObject::tr(kCaptions[mark]), "markOff");
    marks_[mark]->setToolTip(QObject::tr(kTips[mark]));
    row->addWidget(marks_[mark]);
  }
}

void SidecarMarkLabels::Show(const SidecarMarks& marks) {
  SetLook(marks_[0], marks.HasDrawings() ? "mark" : "markOff");
  SetLook(marks_[1], marks.HasNotes() ? "mark" : "markOff");
}

}  // namespace kinalyx
