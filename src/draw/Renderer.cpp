#include "draw/Renderer.h"

#include <QThreadPool>
#include <algorithm>
#include <atomic>
#include <functional>
#include <future>
#include <memory>
#include <utility>

#include "core/Processors.h"
#include "draw/RasterCanvas.h"

namespace kestrel {
namespace {

constexpr int kStripsForEach = 2;           // processor; more of them cost more than a better balance brings
constexpr std::size_t kLittleToDraw = 100;  // figures, quicker drawn than handed out
constexpr qsizetype kLittleToShow = 500'000;  // pixels, likewise

bool IsLittle(const QImage& image, std::size_t figures) {
  return figures < kLittleToDraw || qsizetype{image.width()} * image.height() < kLittleToShow;
}

/// What of the sheet may leave ink on an image that holds the rows from `top` on.
SheetBox BoxOf(const QImage& image, int top, const SheetFit& fit) {
  constexpr float kReach = InkMask::LongestReach;
  const auto upper = static_cast<float>(top);
  const auto lower = static_cast<float>(top + image.height());
  return {fit.ToSheet({-kReach, upper - kReach}),
          fit.ToSheet({static_cast<float>(image.width()) + kReach, lower + kReach})};
}

/// Work under way, waited for however its owner is left.
class Underway {
 public:
  ~Underway() {
    for (const std::future<void>& piece : pieces_) piece.wait();
  }

  void Start(std::function<void()> work) {
    // Shared, since the pool copies what it is given.
    const auto piece = std::make_shared<std::packaged_task<void()>>(std::move(work));
    pieces_.push_back(piece->get_future());
    QThreadPool* const processors = QThreadPool::globalInstance();
    processors->setExpiryTimeout(-1);  // each has made its fonts, which would be made anew
    processors->start([piece] { (*piece)(); });
  }

  void Finish() {
    for (const std::future<void>& piece : pieces_) piece.wait();
    for (std::future<void>& piece : std::exchange(pieces_, {})) piece.get();
  }

 private:
  std::vector<std::future<void>> pieces_;
};

}  // namespace

Renderer::Renderer(int processors) : processors_(processors > 0 ? processors : ProcessorsToUse()) {}

/// Calls `drawRows(rows, canvas, box)` for each strip, whichever processor is free taking the next; lines
/// that do not touch the box do not show in the strip.
template <typename DrawRows>
void Renderer::DrawStrips(QImage& image, int top, std::size_t figures, const SurfaceRules& rules,
                          DrawRows drawRows) {
  const bool little = IsLittle(image, figures);
  const int processors = little ? 1 : processors_;
  const int strips = little ? 1 : kStripsForEach * processors;
  if (tools_.size() < static_cast<std::size_t>(processors))
    tools_.resize(static_cast<std::size_t>(processors));
  uchar* const pixels = image.bits();
  const auto drawStrip = [&](int strip, DrawingTools& tools) {
    const int first = image.height() * strip / strips;
    const int behind = image.height() * (strip + 1) / strips;
    QImage rows(pixels + first * image.bytesPerLine(), image.width(), behind - first, image.bytesPerLine(),
                image.format());
    RasterCanvas canvas(rows, rules, tools, top + first);
    drawRows(rows, canvas, BoxOf(rows, top + first, rules.Fit));
    canvas.Finish();
  };
  std::atomic<int> next = 0;
  const auto drawStrips = [&](int processor) {
    DrawingTools& tools = tools_[static_cast<std::size_t>(processor)];
    for (int strip = next++; strip < strips; strip = next++) drawStrip(strip, tools);
  };
  Underway others;
  for (int processor = 1; processor < processors; ++processor)
    others.Start([&drawStrips, processor] { drawStrips(processor); });
  drawStrips(0);
  others.Finish();
}

void Renderer::Draw(const DisplayList& list, const SurfaceRules& rules, QImage& image, int top) {
  DrawStrips(image, top, list.Length(), rules, [&](QImage& rows, RasterCanvas& canvas, const SheetBox& box) {
    rows.fill(Qt::white);
    list.PlayFrom(0, canvas, box);
  });
}

void Renderer::DrawMore(const DisplayList& list, std::size_t from, const SurfaceRules& rules, QImage& image) {
  DrawStrips(image, 0, list.Length() - from, rules,
             [&](QImage&, RasterCanvas& canvas, const SheetBox& box) { list.PlayFrom(from, canvas, box); });
}

}  // namespace kestrel
