#include "forms/frmAspect.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "core/Numbers.h"
#include "ui/Controls.h"

namespace kestrel {

frmAspect::frmAspect(const Workspace& workspace, QWidget* parent)
    : Form(workspace, parent, "frmAspect", "Aspect adjustment") {
  constexpr double kStep = 1.01;
  QPushButton* narrow = MakeButton("cmdNarrow", "<&narrower", "Makes all patterns a hundredth narrower",
                                   [this] { Set(workspace_.State.AspectRatio / kStep); });
  QPushButton* wide = MakeButton("cmdWide", "&wider>", "Makes all patterns a hundredth wider",
                                 [this] { Set(workspace_.State.AspectRatio * kStep); });
  QPushButton* exit = MakeButton("cmdExit", "&Return to KestrelII", "Keeps the ratio and closes this window",
                                 [this] { accept(); });
  connect(this, &QDialog::finished, this, [this] {
    if (RedrawAll) RedrawAll();
  });

  value_ = MakeLabel("Label1", Text(NumberText(workspace_.State.AspectRatio)));
  value_->setAlignment(Qt::AlignCenter);
  value_->setToolTip("The aspect ratio: how much wider than high a round pattern is drawn");
  value_->setMinimumWidth(fontMetrics().horizontalAdvance("0.00000000"));

  auto* layout = new QGridLayout(this);
  layout->addWidget(narrow, 0, 0);
  layout->addWidget(value_, 0, 1);
  layout->addWidget(wide, 0, 2);
  layout->addWidget(exit, 1, 0, 1, 3);
  // Wide enough for its title beside the frame's own buttons.
  setMinimumWidth(fontMetrics().horizontalAdvance(windowTitle()) * 2);
  // In a corner of the map, so that home stays in view.
  const int margin = 2 * fontMetrics().height();
  if (parent) move(parent->mapToGlobal(QPoint(margin, margin)));
  wide->setFocus();
}

void frmAspect::Set(double ratio) {
  workspace_.State.AspectRatio = static_cast<float>(ratio);
  value_->setText(Text(NumberText(workspace_.State.AspectRatio)));
  if (RedrawChannel) RedrawChannel();
}

}  // namespace kestrel
