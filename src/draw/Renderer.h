#pragma once

#include <QImage>
#include <vector>

#include "draw/DrawingTools.h"
#include "draw/SurfaceView.h"
#include "map/DisplayList.h"

namespace kestrel {

/// Draws display lists onto images in memory. A large image is drawn in strips by several processors,
/// which come out the same as the whole does. Whoever draws again and again keeps his renderer, and with
/// it the tools.
class Renderer {
 public:
  /// Draws with so many processors; 0: with those of the machine, at most four.
  explicit Renderer(int processors = 0);

  /// Draws the list on white paper. The image, which must be RGB32, holds the rows from `top` on of the
  /// picture that the rules are for.
  void Draw(const DisplayList& list, const SurfaceRules& rules, QImage& image, int top = 0);

  /// Draws what was drawn after the list was `from` long over what the image shows.
  void DrawMore(const DisplayList& list, std::size_t from, const SurfaceRules& rules, QImage& image);

 private:
  template <typename DrawRows>
  void DrawStrips(QImage& image, int top, std::size_t figures, const SurfaceRules& rules, DrawRows drawRows);

  const int processors_;
  std::vector<DrawingTools> tools_;  // of each processor
};

}  // namespace kestrel
