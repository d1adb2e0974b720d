#include "forms/frmAbout.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>

#include "core/Notices.h"
#include "map/AboutPictures.h"
#include "ui/Controls.h"
#include "ui/MapSurface.h"

namespace kestrel {
namespace {

QLabel* MakeHeading(const char* name, const QString& caption, double growth, bool bold) {
  QLabel* label = MakeLabel(name, caption);
  QFont font = label->font();
  font.setPointSizeF(font.pointSizeF() * growth);
  font.setBold(bold);
  label->setFont(font);
  return label;
}

MapSurface* MakePicture(const char* name, const SheetArea& area, int side) {
  auto* picture = new MapSurface(nullptr, area);
  picture->setObjectName(name);
  picture->setFixedSize(side, side);
  return picture;
}

/// The label in a field that scrolls up and down; its lines are broken to the field's width.
QScrollArea* MakeScrolling(QLabel* label) {
  label->setWordWrap(true);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  label->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  label->setMargin(label->fontMetrics().height() / 2);
  auto* field = new QScrollArea;
  field->setWidget(label);
  field->setWidgetResizable(true);
  field->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  return field;
}

}  // namespace

frmAbout::frmAbout(const Workspace& workspace, QWidget* parent) : QDialog(parent), workspace_(workspace) {
  setObjectName("frmAbout");
  setWindowTitle("KestrelII - About");

  const int line = fontMetrics().height();
  MapSurface* array = MakePicture("Image1", ArrayPictureArea, 12 * line);
  DrawArrayPicture(array->Drawing());
  MapSurface* map = MakePicture("Image2", MapPictureArea, 12 * line);
  DrawMapPicture(map->Drawing(), workspace_.Folder);

  auto* pictures = new QVBoxLayout;
  pictures->addWidget(array);
  pictures->addSpacing(line / 2);
  pictures->addWidget(map);
  pictures->addStretch();

  QPushButton* systemInformation =
      MakeButton("cmdSysInfo", "&System Info", "Starts the system's own information tool");
  QPushButton* exit = MakeButton("cmdExit", "&Return", "Back to the map");
  exit->setDefault(true);
  connect(systemInformation, &QPushButton::clicked, this, [this] { StartSystemInformation(); });
  connect(exit, &QPushButton::clicked, this, &QDialog::accept);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(systemInformation);
  buttons->addWidget(exit);

  const SessionState& state = workspace_.State;
  auto* layout = new QGridLayout(this);
  layout->setSpacing(line / 2);
  layout->setColumnStretch(1, 1);
  layout->setRowStretch(2, 1);
  layout->addLayout(pictures, 0, 0, 3, 1);
  layout->addWidget(MakeHeading("lblTitle", "KestrelII", 2.4, true), 0, 1);
  layout->addWidget(
      MakeHeading("lblVersion", "Version " + QString::fromStdString(state.ProgramVersion), 1.2, false), 1, 1);
  layout->addWidget(
      MakeScrolling(
          MakeLabel("lblDescription", QString::fromStdString(AboutText(workspace_.Folder.StationsLine())))),
      2, 1);
  layout->addLayout(buttons, 3, 0, 1, 2);
  resize(fontMetrics().averageCharWidth() * 110, sizeHint().height());
  exit->setFocus();
}

void frmAbout::StartSystemInformation() {
  if (!workspace_.System.StartSystemInformation())
    workspace_.System.ShowMessage(this, "System Information Is Unavailable At This Time");
}

}  // namespace kestrel
