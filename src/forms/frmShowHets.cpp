#include "forms/frmShowHets.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/Heterodynes.h"
#include "ui/Controls.h"

namespace kestrel {

frmShowHets::frmShowHets(const Workspace& workspace, QWidget* parent)
    : Form(workspace, parent, "frmShowHets", "Show heterodynes") {
  // White under the dark text in every theme, like paper.
  auto* paper = new QFrame;
  paper->setFrameShape(QFrame::StyledPanel);
  paper->setStyleSheet("QFrame { background: white } QLabel { color: rgb(17, 17, 34); border: none }");
  auto* lines = new QVBoxLayout(paper);
  const HeterodyneTexts texts = TextsOf(FindHeterodynes(workspace.State.CurrentFrequency));
  const auto addLine = [&](const char* name, const std::string& text) {
    QLabel* label = MakeLabel(name, Text(text));
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    lines->addWidget(label);
    return label;
  };
  ChangeFont(*addLine("lblCurrentFrequency", texts.Current), QFont::Bold);
  lines->addSpacing(fontMetrics().height() / 2);
  addLine("Label1", texts.Below);
  addLine("Label2", texts.Above);
  paper->setMinimumWidth(fontMetrics().horizontalAdvance("8 kHz beat note from station on 1611 kHz") * 3 / 2);

  QPushButton* close = MakeButton("cmdExit", "&Close", "Back to the map", [this] { accept(); });
  close->setDefault(true);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(paper, 1);
  layout->addWidget(close, 0, Qt::AlignHCenter);
  close->setFocus();
}

}  // namespace kestrel
