#include "draw/Picture.h"

#include <QBuffer>
#include <QFileInfo>
#include <QPageSize>
#include <QPdfWriter>
#include <algorithm>

#include "data/FileIo.h"
#include "draw/LabelPlacement.h"
#include "draw/PainterCanvas.h"
#include "draw/PngFile.h"
#include "draw/Renderer.h"
#include "draw/SvgCanvas.h"

namespace kestrel {
namespace {

constexpr int kPixelsPerInch = 96;
constexpr int kPdfUnitsPerPixel = 20;

Result<QByteArray> PngBytes(const DisplayList& drawing, const SurfaceRules& rules, QSize size) {
  constexpr int kMostPixels = 16 << 20;  // drawn at a time, 64 MB
  const int most = std::max(1, kMostPixels / size.width());
  PngFile file(size);
  Renderer renderer;
  for (int top = 0; top < size.height(); top += most) {
    const int rows = std::min(most, size.height() - top);
    QImage band(size.width(), rows, QImage::Format_RGB32);
    if (band.isNull())
      return Error{Error::Kind::Refused, "", 0, "not enough memory for a picture of this size"};
    renderer.Draw(drawing, rules, band, top);
    file.AddRows(band, 0, rows);
  }
  return file.Finish();
}

QByteArray SvgBytes(const DisplayList& drawing, SurfaceRules rules, QSize size) {
  rules.Thinning = 0.25;
  SvgCanvas canvas(size, rules);
  PlayPlaced(drawing, rules, canvas);
  return canvas.Finish();
}

SurfaceRules PictureRules(const QRectF& surface, double pixelSize, const MapLook& look, Point moved) {
  SurfaceRules rules = RulesFor(surface, {}, pixelSize);
  rules.Look = look;
  MoveSheet(rules, moved);
  return rules;
}

QByteArray PdfBytes(const DisplayList& drawing, QSize size, const MapLook& look, Point moved) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setCreator("KestrelII");
  writer.setTitle("KestrelII map");
  writer.setResolution(kPixelsPerInch * kPdfUnitsPerPixel);
  writer.setPageSize(QPageSize(QSizeF(size) / kPixelsPerInch, QPageSize::Inch, {}, QPageSize::ExactMatch));
  writer.setPageMargins(QMarginsF());
  QPainter painter(&writer);
  SurfaceRules rules =
      PictureRules({{0, 0}, QSizeF(size) * kPdfUnitsPerPixel}, kPdfUnitsPerPixel, look, moved);
  rules.Thinning = 0.25;
  painter.setClipRect(rules.Area);
  PainterCanvas canvas(painter, rules);
  PlayPlaced(drawing, rules, canvas);
  painter.end();
  return buffer.data();
}

}  // namespace

QImage RenderImage(const DisplayList& drawing, QSize size, const MapLook& look, Point moved) {
  QImage image(size, QImage::Format_RGB32);
  Renderer().Draw(drawing, PictureRules(QRect({0, 0}, size), 1, look, moved), image);
  return image;
}

Result<Done> WritePicture(const DisplayList& drawing, QSize size, const QString& path, const MapLook& look,
                          Point moved) {
  const QString kind = QFileInfo(path).suffix().toLower();
  const SurfaceRules rules = PictureRules(QRect({0, 0}, size), 1, look, moved);
  Result<QByteArray> bytes =
      Error{Error::Kind::Malformed, "", 0, "a picture's name ends in .png, .svg or .pdf"};
  if (kind == "png")
    bytes = PngBytes(drawing, rules, size);
  else if (kind == "svg")
    bytes = SvgBytes(drawing, rules, size);
  else if (kind == "pdf")
    bytes = PdfBytes(drawing, size, look, moved);
  if (bytes) return WriteFile(path, {bytes->constData(), static_cast<std::size_t>(bytes->size())});
  Error error = bytes.error();
  error.file = path.toStdString();
  return error;
}

}  // namespace kestrel
