#include <QApplication>
#include <QPushButton>
#include <QTimer>
#include <cstdio>
#include <fstream>
#include <memory>

#include "forms/frmOpening.h"
#include "forms/frmPlot.h"
#include "ui/MapSurface.h"

// The program as src/app starts it, on the data folder given. It writes a line when the opening screen is
// painted with its map and one when the main map is painted, presses Start between them, and ends with a line
// of the memory that it then has: "opening", "map", "memory 61.2".

namespace {

using namespace kestrel;

void Say(const char* what) {
  std::puts(what);
  std::fflush(stdout);
}

double ResidentMegabytes() {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;)
    if (double kilobytes = 0; word == "VmRSS:" && status >> kilobytes) return kilobytes / 1024;
  return 0;
}

/// Calls back after the next painting of a widget.
class PaintWatch final : public QObject {
 public:
  PaintWatch(QWidget* widget, std::function<void()> painted) : QObject(widget), painted_(std::move(painted)) {
    widget->installEventFilter(this);
  }

 private:
  bool eventFilter(QObject* widget, QEvent* event) override {
    if (event->type() != QEvent::Paint) return false;
    widget->removeEventFilter(this);
    QTimer::singleShot(0, this, painted_);
    return false;
  }

  std::function<void()> painted_;
};

}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  DesktopPlatform platform;
  const Result<DataFolder> folder = LocateDataFolder(argc > 1 ? argv[1] : "");
  if (!folder) return 1;
  SessionState state;
  const Workspace workspace{state, *folder, platform};

  std::unique_ptr<frmPlot> plot;
  frmOpening opening(workspace);
  opening.Started = [&] {
    plot = std::make_unique<frmPlot>(workspace);
    plot->Surface().setFixedSize(1600, 1200);
    new PaintWatch(&plot->Surface(), [] {
      Say("map");
      std::printf("memory %.1f\n", ResidentMegabytes());
      QApplication::exit();
    });
    plot->show();
  };
  opening.FirstPainted = [&] {
    opening.Load();
    new PaintWatch(&opening, [&] {
      Say("opening");
      opening.findChild<QPushButton*>("cmdEnter")->click();
    });
  };
  opening.show();
  return QApplication::exec();
}
