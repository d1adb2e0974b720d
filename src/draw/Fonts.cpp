#include "draw/Fonts.h"

#include <QFontMetricsF>
#include <QString>
#include <QStringList>

namespace kestrel {
namespace {

struct FaceFamilies {
  QStringList families;
  QFont::StyleHint hint;
};

FaceFamilies FamiliesOf(FontFace face) {
  switch (face) {
    case FontFace::Serif:
      return {{"DejaVu Serif", "Liberation Serif"}, QFont::Serif};
    case FontFace::Sans:
    case FontFace::SansBold:
      break;
  }
  return {{"DejaVu Sans", "Liberation Sans"}, QFont::SansSerif};
}

/// A device that has as many dots to the inch as a point has parts: its pixels are the font's units.
constexpr double kPointsPerInch = 72;

/// Metrics in twips of the sheet. Making them takes long, so each face and size is made once.
const QFontMetricsF& SheetMetrics(const Font& font) {
  thread_local std::map<std::pair<FontFace, float>, QFontMetricsF> metrics;
  const auto key = std::pair(font.Face, font.Points);
  const auto found = metrics.find(key);
  if (found != metrics.end()) return found->second;
  QFont sheetFont = PlatformFont(font.Face, 0, kPointsPerInch);
  sheetFont.setPixelSize(qRound(font.Points * TwipsPerPoint));
  return metrics.emplace(key, QFontMetricsF(sheetFont)).first->second;
}

}  // namespace

QFont PlatformFont(FontFace face, double pixels, double dotsPerInch) {
  const FaceFamilies families = FamiliesOf(face);
  QFont font(families.families);
  font.setStyleHint(families.hint);
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setBold(face == FontFace::SansBold);
  if (pixels > 0) font.setPointSizeF(pixels * kPointsPerInch / dotsPerInch);
  return font;
}

double XHeightShare(FontFace face) {
  const Font font{face, 10};
  return SheetMetrics(font).xHeight() / (font.Points * TwipsPerPoint);
}

float PlatformTextMeasure::TextWidth(const Font& font, std::string_view text) const {
  const QString string = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  return static_cast<float>(SheetMetrics(font).horizontalAdvance(string));
}

float PlatformTextMeasure::TextHeight(const Font& font) const {
  return static_cast<float>(SheetMetrics(font).height());
}

float PlatformTextMeasure::Ascent(const Font& font) const {
  return static_cast<float>(SheetMetrics(font).ascent());
}

}  // namespace kestrel
