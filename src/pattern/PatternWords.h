#pragma once

#include <string>

#include "pattern/Pattern.h"

namespace kestrel {

/// A pattern for those who do not see its plot: "lobes at 45 (100 %) and 225 degrees (38 %), nulls at 135 (2
/// %) and 315 degrees (2 %)", azimuths clockwise from north, each with its share of the largest field. A lobe
/// and a null differ by a twentieth of the largest field at least; with fewer of them it is "the same in all
/// directions". Values that are all 0 give "not known".
std::string PatternWords(const PatternValues& values);

}  // namespace kestrel
