#include "forms/frmOpening.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <utility>

#include "draw/PainterCanvas.h"
#include "draw/Renderer.h"
#include "map/OverviewMap.h"

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
    Placement{"lblNorthAmerica", {10, 2920, 11980, 480}, 330},
    Placement{"lblVersion", {10, 3600, 11980, 360}, 260},
    Placement{"lblMakers", {10, 5100, 11980, 360}, kNoticeText},
    Placement{"cmdEnter", {5160, 6000, 1680, 400}, kNoticeText},
    Placement{"cmdExit", {5160, 6500, 1680, 400}, kNoticeText},
    Placement{"lblStations", {10, 7500, 11980, 360}, kNoticeText},
};

}  // namespace

frmOpening::frmOpening(const Workspace& workspace) : workspace_(workspace) {
  setObjectName("frmOpening");
  setWindowTitle("KestrelII");
  setAttribute(Qt::WA_OpaquePaintEvent);

  AddLabel("Label1", "KestrelII", FontFace::Serif);
  AddLabel("lblNorthAmerica", "Showing Region II stations in the FCC database", FontFace::Sans);
  QLabel* version = AddLabel(
      "lblVersion", "Version " + QString::fromStdString(workspace_.State.ProgramVersion), FontFace::Sans);
  version->installEventFilter(this);
  AddLabel("lblMakers", "Made by the KestrelII authors; free software under the MIT licence", FontFace::Sans);
  AddLabel("lblStations", QString::fromStdString(workspace_.Folder.StationsLine()), FontFace::Sans);
  AddButton("cmdEnter", "&Start", [this] { Start(); });
  AddButton("cmdExit", "E&xit", [this] { close(); });
  findChild<QPushButton*>("cmdEnter")->setFocus();

  const QSize available = screen()->availableSize();
  resize(
      QSizeF(kDesign.Width, kDesign.Height).scaled(QSizeF(available) * 0.75, Qt::KeepAspectRatio).toSize());
  move(screen()->availableGeometry().center() - rect().center());
}

QLabel* frmOpening::AddLabel(const char* name, const QString& caption, FontFace face) {
  auto* label = new QLabel(caption, this);
  label->setObjectName(name);
  label->setAlignment(Qt::AlignCenter);
  label->setFont(PlatformFont(face, 0, 0));
  label->setTextFormat(Qt::PlainText);
  label->setStyleSheet("color: white; background: transparent");
  return label;
}

void frmOpening::AddButton(const char* name, const QString& caption, const std::function<void()>& action) {
  auto* button = new QPushButton(caption, this);
  button->setObjectName(name);
  button->setAutoDefault(true);
  connect(button, &QPushButton::clicked, this, action);
}

void frmOpening::Load() {
  if (!LoadPlaceLists(workspace_.Folder, workspace_.State)) {
    workspace_.System.ShowMessage(this, "We have had a data-file reading error");
    return;
  }
  ReadSessionOnce();
  DrawOverviewMap(overview_, workspace_.Folder);
  backdropStale_ = true;
  update();
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
  const SheetFit fit = FitSheet(static_cast<float>(width()), static_cast<float>(height()), kDesign);
  for (const Placement& placement : kPlacements) {
    auto* control = findChild<QWidget*>(placement.Name);
    QFont font = control->font();
    font.setPixelSize(std::max(7, qRound(placement.TextTwips * fit.Scale)));
    control->setFont(font);
    const QRectF& area = placement.Area;
    control->setGeometry(QRectF(fit.Left + area.x() * fit.Scale, fit.Top + area.y() * fit.Scale,
                                area.width() * fit.Scale, area.height() * fit.Scale)
                             .toAlignedRect());
  }
}

void frmOpening::RenderBackdrop() {
  const QSize pixels = size() * devicePixelRatio();
  if (!backdropStale_ && backdrop_.size() == pixels) return;
  backdrop_ = QImage(pixels, QImage::Format_RGB32);
  for (int y = 0; y < pixels.height(); ++y) {
    const QRgb row = PlatformColor(OpeningBackground(y + 1, pixels.height())).rgb();
    std::fill_n(reinterpret_cast<QRgb*>(backdrop_.scanLine(y)), pixels.width(), row);
  }
  backdrop_.setDevicePixelRatio(devicePixelRatio());
  SurfaceRules rules;
  rules.Fit = FitSheet(static_cast<float>(pixels.width()), static_cast<float>(pixels.height()), kDesign);
  rules.Area = QRectF(backdrop_.rect());
  rules.PixelSize = devicePixelRatio();
  Renderer().DrawMore(overview_, 0, rules, backdrop_);
  backdropStale_ = false;
}

void frmOpening::paintEvent(QPaintEvent*) {
  RenderBackdrop();
  QPainter(this).drawImage(0, 0, backdrop_);
  if (!FirstPainted) return;
  QTimer::singleShot(0, this, [this, load = std::exchange(FirstPainted, nullptr)] {
    // A screen left by Exit before that has nothing to load, and its message would outlive the last window.
    if (isVisible() || sessionRead_) load();
  });
}

void frmOpening::resizeEvent(QResizeEvent*) {
  PlaceControls();
}

void frmOpening::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    close();
  } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
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
