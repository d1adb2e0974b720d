#include <QApplication>
#include <QIcon>
#include <memory>

#include "core/FreedMemory.h"
#include "data/DataSwap.h"
#include "forms/GuideKeys.h"
#include "forms/GuidePages.h"
#include "forms/frmOpening.h"
#include "forms/frmOptions.h"
#include "forms/frmPlot.h"
#include "ui/Accessible.h"

namespace {

/// The icon that the desktop shows in its menu, for where the program is not installed.
QIcon ProgramIcon() {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128}) icon.addFile(QString(":/icons/%1.png").arg(size));
  return icon;
}

}  // namespace

int main(int argc, char** argv) {
  using namespace kestrel;
  KeepFreedMemory();
  QApplication app(argc, argv);
  InstallAccessibility();
  QApplication::setOrganizationName("kestrel");
  QApplication::setApplicationName("kestrel");
  QApplication::setDesktopFileName("kestrel");  // Wayland finds the icon through it
  QApplication::setWindowIcon(ProgramIcon());

  DesktopPlatform platform;
  const Result<DataFolder> folder = LocateDataFolder({});
  if (!folder) {
    platform.ShowMessage(nullptr, QString::fromStdString(folder.error().Message()));
    return 1;
  }
  if (const Result<Done> recovered = RecoverImport(*folder); !recovered)
    platform.ShowMessage(nullptr, QString::fromStdString(recovered.error().Message()));
  SessionState state;
  LoadMapUnit(state);
  const Workspace workspace{state, *folder, platform};
  const GuideKeys guide(platform, GuideFolders());

  std::unique_ptr<frmPlot> plot;
  frmOpening opening(workspace);
  opening.Started = [&] {
    plot = std::make_unique<frmPlot>(workspace);
    plot->show();
  };
  opening.FirstPainted = [&] { opening.Load(); };
  opening.show();
  return QApplication::exec();
}
