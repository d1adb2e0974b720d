#include <QApplication>

#include "map/MainMap.h"
#include "ui/MapSurface.h"
#include "ui/Platform.h"

int main(int argc, char** argv) {
  using namespace kestrel;
  QApplication app(argc, argv);
  QApplication::setApplicationName("kestrel");
  QApplication::setApplicationDisplayName("KestrelII");

  const Result<DataFolder> folder = LocateDataFolder({});
  DesktopPlatform platform;
  if (!folder) {
    platform.ShowMessage(nullptr, QString::fromStdString(folder.error().Message()));
    return 1;
  }
  SessionState state;
  LoadSession(*folder, state);

  MapSurface surface;
  surface.setWindowTitle("KestrelII - Plot");
  DrawMainMap(surface.Drawing(), *folder, state);
  surface.show();
  return QApplication::exec();
}
