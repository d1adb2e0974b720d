#include "draw/Renderer.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <system_error>

#include "core/Processors.h"
#include "draw/Helper.h"
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

}  // namespace

Renderer::~Renderer() = default;

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
    const int end = image.height() * (strip + 1) / strips;
    QImage rows(pixels + first * image.bytesPerLine(), image.width(), end - first, image.bytesPerLine(),
                image.format());
    RasterCanvas canvas(rows, rules, tools, top + first);
    drawRows(rows, canvas, BoxOf(rows, top + first, rules.Fit));
    canvas.Finish();
  };
  std::atomic<int> next = 0;
  const auto drawStrips = [&](std::size_t processor) {
    DrawingTools& tools = tools_[processor];
    for (int strip = next++; strip < strips; strip = next++) drawStrip(strip, tools);
  };
  EngageHelpers(processors - 1);
  const std::size_t helping = std::min(helpers_.size(), static_cast<std::size_t>(processors - 1));
  std::exception_ptr thrown;
  const auto keepThrown = [&thrown](const auto& step) {
    try {
      step();
    } catch (...) {
      thrown = std::current_exception();
    }
  };
  keepThrown([&] {
    for (std::size_t i = 0; i < helping; ++i) helpers_[i]->Begin([&drawStrips, i] { drawStrips(i + 1); });
    drawStrips(0);
  });
  for (const auto& helper : helpers_) keepThrown([&] { helper->Finish(); });
  if (thrown) std::rethrow_exception(thrown);
}

void Renderer::EngageHelpers(int count) {
  try {
    while (helpers_.size() < static_cast<std::size_t>(count)) helpers_.push_back(std::make_unique<Helper>());
  } catch (const std::system_error&) {
    // The system has no more threads; those there are, and the caller, draw all strips.
  }
}

void Renderer::Draw(const DisplayList& list, const SurfaceRules& rules, QImage& image, int top) {
  labels_.PlaceAll(list, rules);
  DrawStrips(image, top, list.Length(), rules, [&](QImage& rows, RasterCanvas& canvas, const SheetBox& box) {
    rows.fill(Qt::white);
    list.PlayFrom(0, canvas, box, labels_.Places(), rules.Look);
  });
}

void Renderer::DrawMore(const DisplayList& list, std::size_t from, const SurfaceRules& rules, QImage& image) {
  labels_.PlaceMore(list, rules);
  DrawStrips(image, 0, list.Length() - from, rules, [&](QImage&, RasterCanvas& canvas, const SheetBox& box) {
    list.PlayFrom(from, canvas, box, labels_.Places(), rules.Look);
  });
}

}  // namespace kestrel
