#pragma once

#include <QDir>
#include <functional>

#include "forms/FormFixture.h"
#include "forms/StationList.h"
#include "forms/frmAbout.h"
#include "forms/frmAspect.h"
#include "forms/frmGetDistance.h"
#include "forms/frmGetFrequency.h"
#include "forms/frmGetHome.h"
#include "forms/frmGetStationData.h"
#include "forms/frmGuide.h"
#include "forms/frmImport.h"
#include "forms/frmOpening.h"
#include "forms/frmOptions.h"
#include "forms/frmPlot.h"
#include "forms/frmPlotStates.h"
#include "forms/frmShowContext.h"
#include "forms/frmShowHets.h"
#include "forms/frmShowStations.h"
#include "forms/frmShowTowers.h"
#include "map/PrintedPages.h"
#include "ui/PrintPreview.h"

namespace kestrel {

/// Shows every window of the program to `look`, one after the other.
inline void ForEveryForm(const Workspace& everything, const std::function<void(QWidget&)>& look) {
  QStringList seen;
  const auto show = [&](QWidget& window) {
    seen << window.objectName();
    look(window);
  };
  const auto open = [&](QWidget&& window) { show(window); };
  open(frmOpening(everything));
  open(frmPlot(everything));
  open(frmGetFrequency(everything));
  open(frmGetHome(everything));
  open(frmPlotStates(everything));
  open(frmGetStationData(everything, nullptr));
  open(frmShowTowers(everything, nullptr, {}));
  open(frmShowContext(everything, nullptr, {}));
  open(frmShowStations(everything));
  open(frmShowHets(everything));
  open(frmGetDistance(everything));
  open(frmOptions(everything));
  open(frmAspect(everything, nullptr));
  open(frmImport(everything));
  open(frmAbout(everything));
  open(frmGuide(everything.System, {}));
  open(StationList(everything));
  for (const QString& header : QDir(KESTREL_FORMS).entryList({"frm*.h"}))
    EXPECT_TRUE(seen.contains(header.chopped(2))) << header.toStdString();

  QTimer::singleShot(0, qApp, [&] {
    auto* preview = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(preview, nullptr);
    show(*preview);
    preview->reject();
  });
  ChoosePrinting(nullptr, {OutlinePage(everything.State, everything.Folder), std::nullopt});
}

}  // namespace kestrel
