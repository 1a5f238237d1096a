#include "capture/forms/FindCamForm.h"

#include <QBoxLayout>
#include <QLabel>

#include "platform/widgets/Buttons.h"
#include "platform/widgets/Panel.h"
#include "platform/widgets/Scale.h"

namespace kinalyx {

FindCamForm::FindCamForm(int camera, QWidget* over) : QDialog(over) {
  setObjectName("FindCamForm");
  const int number = camera + 1;
  const QString title = tr("Cannot find Camera %1").arg(number);
  setWindowTitle(title);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(20, 18, 20, 18);
  rows->setSpacing(12);
  rows->addWidget(MakeLabel("FindCamTitle", title, "title"));
  QLabel* text =
      MakeLabel("FindCamText", tr("Camera %1 could not be found. Connect Camera %1 to your computer and select "
                                  "\"Retry\" to connect it, or choose \"Close\" to ignore this message and continue.")
                                   .arg(number));
  text->setWordWrap(true);
  FixWidth(text, 400);
  rows->addWidget(text);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  auto* close = new Button("FindCamClose", tr("Close and Continue"), {}, Look::Quiet);
  auto* retry = new Button("FindCamRetry", tr("Retry Connection"), "loop");
  buttons->addWidget(close);
  buttons->addWidget(retry);
  rows->addLayout(buttons);
  connect(retry, &QPushButton::clicked, this, &QDialog::accept);
  connect(close, &QPushButton::clicked, this, &QDialog::reject);
  retry->setDefault(true);
  ScaleForm(*this, *over->window());
}

}  // namespace kinalyx
