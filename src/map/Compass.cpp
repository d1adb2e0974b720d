#include "map/Compass.h"

#include <cmath>
#include <string>

#include "map/Sheet.h"

namespace kestrel {
namespace {

constexpr float kOuterRadius = 4000;
constexpr float kInnerRadius = 800;
constexpr Font kBearingFont = {FontFace::Sans, 8};
constexpr double kDegreesPerRadian = 57.29578;

Point OnRose(int bearing, float radius, float aspectRatio) {
  const double angle = bearing / kDegreesPerRadian;
  return {static_cast<float>(HomeOnSheet.x + aspectRatio * radius * std::sin(angle)),
          static_cast<float>(HomeOnSheet.y - radius * std::cos(angle))};
}

void DrawBearingBox(Canvas& canvas, int bearing, Point at) {
  const std::string text = std::to_string(bearing);
  const float width = canvas.TextWidth(text);
  const float height = canvas.TextHeight();
  const float halfWidth = canvas.TextWidth("000") / 2 + 30;
  const float halfHeight = height / 2 + 10;
  canvas.BeginPanel(at, kBearingFont);
  canvas.SetColor(Palette::CompassPaper);
  canvas.FilledBox({at.x - halfWidth, at.y - halfHeight}, {at.x + halfWidth, at.y + halfHeight});
  canvas.SetColor(Palette::CompassText);
  canvas.Box({at.x - halfWidth, at.y - halfHeight}, {at.x + halfWidth, at.y + halfHeight});
  canvas.Text({at.x - width / 2, at.y - height / 2}, text);
  canvas.EndPanel();
}

}  // namespace

void DrawCompass(Canvas& canvas, float aspectRatio) {
  canvas.SetLineWidth(1);
  canvas.SetFont(kBearingFont);
  for (int bearing = 0; bearing <= 350; bearing += 10) {
    const Point outer = OnRose(bearing, kOuterRadius, aspectRatio);
    const Point inner = bearing % 90 == 0 ? HomeOnSheet : OnRose(bearing, kInnerRadius, aspectRatio);
    canvas.SetColor(Palette::CompassSpoke);
    canvas.SetDash(Dash::Spoke);
    canvas.Line(inner, outer);
    canvas.SetDash(Dash::None);
    DrawBearingBox(canvas, bearing, outer);
  }
}

}  // namespace kestrel
