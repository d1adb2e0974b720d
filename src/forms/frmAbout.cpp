#include "forms/frmAbout.h"

#include <QGridLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>

#include "core/Notices.h"
#include "forms/GuideKeys.h"
#include "map/AboutPictures.h"
#include "ui/Controls.h"
#include "ui/MapSurface.h"

namespace kestrel {
namespace {

QLabel* MakeHeading(const char* name, const QString& caption, double growth, QFont::Weight weight) {
  QLabel* label = MakeLabel(name, caption);
  ChangeFont(*label, weight, growth);
  return label;
}

MapSurface* MakePicture(const char* name, const SheetArea& area, int side, const QString& shows) {
  auto* picture = new MapSurface(nullptr, area);
  picture->setObjectName(name);
  picture->setAccessibleName("Picture");
  picture->setAccessibleDescription(shows);
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
  field->setAccessibleName("About");
  field->setWidget(label);
  field->setWidgetResizable(true);
  field->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  return field;
}

}  // namespace

frmAbout::frmAbout(const Workspace& workspace, QWidget* parent)
    : Form(workspace, parent, "frmAbout", "About") {
  const int line = fontMetrics().height();
  MapSurface* array =
      MakePicture("Image1", ArrayPictureArea, 12 * line, "Towers at night and the field around them");
  DrawArrayPicture(array->Drawing());
  MapSurface* map = MakePicture("Image2", MapPictureArea, 12 * line, "The Americas with stations");
  DrawMapPicture(map->Drawing(), workspace_.Folder);

  auto* pictures = new QVBoxLayout;
  pictures->addWidget(array);
  pictures->addSpacing(line / 2);
  pictures->addWidget(map);
  pictures->addStretch();

  QPushButton* exit = MakeButton("cmdExit", "&Return", "Back to the map", [this] { accept(); });
  exit->setDefault(true);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(MakeButton("cmdSysInfo", "&System Info", "Starts the system's own information tool",
                                [this] { StartSystemInformation(); }));
  buttons->addWidget(
      MakeButton("cmdGuide", "&Guide", "Opens the guide (F1)", [this] { AskForGuide(*this); }));
  buttons->addWidget(exit);

  const SessionState& state = workspace_.State;
  auto* layout = new QGridLayout(this);
  layout->setSpacing(line / 2);
  layout->setColumnStretch(1, 1);
  layout->setRowStretch(2, 1);
  layout->addLayout(pictures, 0, 0, 3, 1);
  layout->addWidget(MakeHeading("lblTitle", "KestrelII", 2.4, QFont::Bold), 0, 1);
  layout->addWidget(MakeHeading("lblVersion", "Version " + Text(state.ProgramVersion), 1.2, QFont::Normal), 1,
                    1);
  layout->addWidget(
      MakeScrolling(MakeLabel("lblDescription", Text(AboutText(workspace_.Folder.StationsLine())))), 2, 1);
  layout->addLayout(buttons, 3, 0, 1, 2);
  resize(fontMetrics().averageCharWidth() * 110, sizeHint().height());
  exit->setFocus();
}

void frmAbout::StartSystemInformation() {
  workspace_.System.StartSystemInformation([this, there = QPointer<frmAbout>(this)] {
    if (there) workspace_.System.ShowMessage(this, "System Information Is Unavailable At This Time");
  });
}

}  // namespace kestrel
