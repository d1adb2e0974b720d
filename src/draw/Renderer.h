#pragma once

#include <QImage>
#include <memory>
#include <vector>

#include "draw/DrawingTools.h"
#include "draw/LabelPlacement.h"
#include "draw/SurfaceView.h"
#include "map/DisplayList.h"

namespace kestrel {

class Helper;

/// Draws display lists onto images in memory. A large image is drawn in strips by several processors,
/// which come out the same as the whole does. A caller who draws again and again keeps the
/// renderer, and with it the tools.
class Renderer {
 public:
  /// Draws with so many processors; 0: with those of the machine, at most four.
  explicit Renderer(int processors = 0);
  ~Renderer();

  /// Draws the list on white paper. The image, which must be RGB32, holds the rows from `top` on of the
  /// picture that the rules are for.
  void Draw(const DisplayList& list, const SurfaceRules& rules, QImage& image, int top = 0);

  /// Where the labels of the picture drawn last came.
  const LabelPlaces& Labels() const { return labels_.Places(); }

  /// Draws what was drawn after the list was `from` long over what the image shows, whose labels stay.
  void DrawMore(const DisplayList& list, std::size_t from, const SurfaceRules& rules, QImage& image);

 private:
  template <typename DrawRows>
  void DrawStrips(QImage& image, int top, std::size_t figures, const SurfaceRules& rules, DrawRows drawRows);

  /// Sees to `count` threads that help, or as many as the system gives.
  void EngageHelpers(int count);

  const int processors_;
  LabelPlacement labels_;
  std::vector<DrawingTools> tools_;  // of each processor
  std::vector<std::unique_ptr<Helper>> helpers_;
};

}  // namespace kestrel
