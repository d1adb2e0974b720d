#include "forms/frmOpening.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "draw/PainterCanvas.h"
#include "map/OverviewMap.h"
#include "ui/Controls.h"
#include "ui/Keys.h"

namespace kestrel {
namespace {

/// The screen is laid out on a sheet of its own, in twips.
constexpr SheetArea kDesign = {0, 0, 12000, 9000};

/// Where a control stands on the sheet and how high its text is.
struct Placement {
  const char* Name;
  QRectF Area;
  double TextTwips;
};

constexpr double kNoticeText = 210;
const std::array kPlacements = {
    Placement{"Label1", {10, 1020, 11980, 1800}, 1300},
    Placement{"lblNorthAmerica", {10, 2920, 11980, 480}, 260},
    Placement{"lblVersion", {10, 3600, 11980, 360}, 260},
    Placement{"lblMakers", {10, 5100, 11980, 360}, kNoticeText},
    Placement{"cmdEnter", {5160, 6000, 1680, 400}, kNoticeText},
    Placement{"cmdExit", {5160, 6500, 1680, 400}, kNoticeText},
    Placement{"lblStations", {300, 7400, 11400, 1400}, 290},
};

Point PointAt(const QPointF& place) {
  return {static_cast<float>(place.x()), static_cast<float>(place.y())};
}

/// From near black at the top to full blue.
void PaintNight(QImage& image) {
  for (int y = 0; y < image.height(); ++y) {
    const QRgb row = PlatformColor(OpeningBackground(y + 1, image.height())).rgb();
    std::fill_n(reinterpret_cast<QRgb*>(image.scanLine(y)), image.width(), row);
  }
}

}  // namespace

frmOpening::frmOpening(const Workspace& workspace) : MapSurface(nullptr, kDesign), workspace_(workspace) {
  setObjectName("frmOpening");
  setWindowTitle("KestrelII");
  Backdrop = PaintNight;

  AddLabel("Label1", "KestrelII", FontFace::Serif);
  AddLabel("lblNorthAmerica", "Showing Region II stations in the FCC database", FontFace::Sans);
  QLabel* version =
      AddLabel("lblVersion", "Version " + Text(workspace_.State.ProgramVersion), FontFace::Sans);
  version->installEventFilter(this);
  AddLabel("lblMakers",
           "Made by the KestrelII authors; free software under the MIT licence; F1 opens the guide",
           FontFace::Sans);
  // What the listener must not miss under a title that speaks of the FCC.
  stationsLine_ = Text(workspace_.Folder.StationsLine());
  QLabel* stations = AddLabel("lblStations", stationsLine_, FontFace::SansBold);
  stations->setStyleSheet("color: #ffe066; background: transparent");
  stations->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
  stations->setWordWrap(true);
  QPushButton* start = MakeButton("cmdEnter", "&Start", {}, [this] { Start(); });
  QPushButton* exit = MakeButton("cmdExit", "E&xit", {}, [this] { close(); });
  for (QPushButton* button : {start, exit}) {
    button->setParent(this);
    button->setAutoDefault(true);  // Enter presses it
  }
  start->setFocus();

  const QSize available = screen()->availableSize();
  resize(
      QSizeF(kDesign.Width, kDesign.Height).scaled(QSizeF(available) * 0.75, Qt::KeepAspectRatio).toSize());
  move(screen()->availableGeometry().center() - rect().center());
}

QLabel* frmOpening::AddLabel(const char* name, const QString& caption, FontFace face) {
  QLabel* label = MakeLabel(name, caption);
  label->setParent(this);
  label->setAlignment(Qt::AlignCenter);
  label->setFont(PlatformFont(face, 0, 0));
  label->setStyleSheet("color: white; background: transparent");
  return label;
}

void frmOpening::Load() {
  if (!LoadPlaceLists(workspace_.Folder, workspace_.State)) {
    workspace_.System.ShowMessage(this, "We have had a data-file reading error");
    return;
  }
  ReadSessionOnce();
  DrawOverviewMap(Drawing(), workspace_.Folder);
  ShowDrawing();
}

void frmOpening::ReadSessionOnce() {
  if (!sessionRead_) LoadSession(workspace_.Folder, workspace_.State);
  sessionRead_ = true;
}

void frmOpening::Start() {
  ReadSessionOnce();
  if (Started) Started();
  close();
}

void frmOpening::PlaceControls() {
  for (const Placement& placement : kPlacements) {
    auto* control = findChild<QWidget*>(placement.Name);
    QFont font = control->font();
    font.setPixelSize(std::max(7, qRound(placement.TextTwips / TwipsPerPixel())));
    control->setFont(font);
    const QRectF& area = placement.Area;
    control->setGeometry(
        QRectF(FromSheet(PointAt(area.topLeft())), FromSheet(PointAt(area.bottomRight()))).toAlignedRect());
  }
}

void frmOpening::FitStationsLine() {
  constexpr int kLines = 3;
  auto* label = findChild<QLabel*>("lblStations");
  const QFontMetrics metrics(label->font());
  const int width = label->width() * 9 / 10;  // lines that end between words are not full
  const QStringList words = stationsLine_.split(' ');
  const bool wraps = std::all_of(words.begin(), words.end(), [&](const QString& word) {
    return metrics.horizontalAdvance(word) <= width;
  });
  label->setText(metrics.elidedText(stationsLine_, Qt::ElideRight, (wraps ? kLines : 1) * width));
  label->setToolTip(label->text() == stationsLine_ ? QString() : stationsLine_);
}

void frmOpening::paintEvent(QPaintEvent* event) {
  MapSurface::paintEvent(event);
  if (!FirstPainted) return;
  QTimer::singleShot(0, this, [this, load = std::exchange(FirstPainted, nullptr)] {
    // A screen left by Exit before that has nothing to load, and its message would outlive the last window.
    if (isVisible() || sessionRead_) load();
  });
}

void frmOpening::resizeEvent(QResizeEvent*) {
  PlaceControls();
  FitStationsLine();
}

void frmOpening::keyPressEvent(QKeyEvent* event) {
  if (IsKeyOf(*event, *this, "cmdExit")) {
    close();
  } else if (IsKeyOf(*event, *this, "cmdEnter")) {
    Start();
  } else {
    QWidget::keyPressEvent(event);
  }
}

bool frmOpening::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress) workspace_.System.Beep();
  return QWidget::eventFilter(watched, event);
}

}  // namespace kestrel
