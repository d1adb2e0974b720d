#include <QApplication>
#include <memory>

#include "core/FreedMemory.h"
#include "data/DataSwap.h"
#include "forms/CommandIcons.h"
#include "forms/frmOpening.h"
#include "forms/frmPlot.h"

int main(int argc, char** argv) {
  using namespace kestrel;
  KeepFreedMemory();
  QApplication app(argc, argv);
  QApplication::setOrganizationName("kestrel");
  QApplication::setApplicationName("kestrel");
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
  const Workspace workspace{state, *folder, platform};

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
