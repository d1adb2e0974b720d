#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <memory>

#include "core/Result.h"

struct z_stream_s;

namespace kestrel {

/// Makes a PNG file (ISO 15948) of 8-bit RGB from the image's rows as they come, so that a large picture is
/// never held whole. Tuned for maps: lines on white need no filter and little effort of the compressor.
class PngFile {
 public:
  explicit PngFile(QSize size);
  ~PngFile();

  /// The next `count` rows of the picture, top to bottom, from row `first` of the image on.
  /// REQUIRES: the image is as wide as the picture, Format_RGB32.
  void AddRows(const QImage& image, int first, int count);

  /// The whole file. Call once, after the last row. Refused: the compressor had no memory.
  Result<QByteArray> Finish();

 private:
  void AddChunk(const char* type, const QByteArray& content);
  void Compress(const QByteArray& bytes, int flush);

  QByteArray file_;
  QByteArray row_;
  std::unique_ptr<z_stream_s> stream_;
  bool ready_ = false;  // to compress
};

}  // namespace kestrel
