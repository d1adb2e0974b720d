#pragma once

#include <QFont>
#include <map>

#include "map/Canvas.h"

namespace kestrel {

/// The platform's font for a face, at `pixels` units of a device of `dotsPerInch`. Unhinted, so that text
/// keeps its proportions at every scale.
QFont PlatformFont(FontFace face, double pixels, double dotsPerInch);

/// The share of a face's size that its small letters are high.
double XHeightShare(FontFace face);

/// Measures text on the sheet with the platform's fonts.
class PlatformTextMeasure final : public TextMeasure {
 public:
  float TextWidth(const Font& font, std::string_view text) const override;
  float TextHeight(const Font& font) const override;
  /// From the top of a line to its base line, twips.
  float Ascent(const Font& font) const;
};

/// Twips in a point.
inline constexpr float TwipsPerPoint = 20;

}  // namespace kestrel
