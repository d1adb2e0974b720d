#pragma once

#include "data/OutlineFile.h"

namespace kestrel {

/// Adds the vertices and marks of an outline behind those of another.
inline void Append(const Outline& piece, Outline& whole) {
  for (const std::size_t penUp : piece.PenUpBefore)
    whole.PenUpBefore.push_back(whole.Latitude.size() + penUp);
  whole.Latitude.insert(whole.Latitude.end(), piece.Latitude.begin(), piece.Latitude.end());
  whole.Longitude.insert(whole.Longitude.end(), piece.Longitude.begin(), piece.Longitude.end());
}

/// All that the program's reader reads, piece by piece.
inline Outline WholeOutline(std::string_view bytes, CommentLines comments = CommentLines::Read) {
  Outline whole;
  OutlineReader reader(bytes, comments);
  while (const Outline* const piece = reader.Next()) Append(*piece, whole);
  return whole;
}

}  // namespace kestrel
