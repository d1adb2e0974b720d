#pragma once

#include <string_view>

#include "map/Canvas.h"

namespace kestrel {

/// The weight of a station's label: what is likely to be heard at home, power over the square of the
/// distance.
float LabelWeight(Point station, float powerKW);

/// The colour, darker but of the same hue: a bright one is hard to read as text on white.
ColorValue Darkened(ColorValue color);

/// The same where the colour is too bright to be read on white, else the colour itself.
ColorValue ReadableOnWhite(ColorValue color);

/// Which labels of the stations a surface shows: those that find a place of their own, all of them whatever
/// they cover, or none.
enum class LabelChoice { Fitting, All, None };

/// "fitting", "all" or "none".
std::string_view LabelChoiceWord(LabelChoice choice);

/// The choice of such a word; Fitting for any other.
LabelChoice LabelChoiceOf(std::string_view word);

}  // namespace kestrel
