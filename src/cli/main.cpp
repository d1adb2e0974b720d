#include <QGuiApplication>
#include "draw/Fonts.h"
#include "draw/Picture.h"
#include "map/MainMap.h"
using namespace kestrel;
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication app(argc, argv);
  SessionState state;
  DataFolder folder(argv[1]);
  state.CurrentFrequency = std::stof(argv[2]);
  state.SelectedFrequency = state.CurrentFrequency;
  state.ScaleFactor = std::stof(argv[3]);
  if (argc > 5) state.AdjacentsShown = state.CompassShown = 1;
  PlatformTextMeasure m;
  DisplayList list(m);
  auto t0 = std::chrono::steady_clock::now();
  DrawMainMap(list, folder, state);
  auto t1 = std::chrono::steady_clock::now();
  RenderImage(list, {1600, 1200});
  auto t2 = std::chrono::steady_clock::now();
  auto r = WritePicture(list, {1600, 1200}, argv[4]);
  fprintf(stderr, "draw %.1f ms render %.1f ms\n", std::chrono::duration<double, std::milli>(t1 - t0).count(),
          std::chrono::duration<double, std::milli>(t2 - t1).count());
  return r ? 0 : 1;
}
