#include "draw/PngFile.h"

#include <zlib.h>

#include <QtEndian>

namespace kestrel {
namespace {

constexpr int kChunkLength = 1 << 16;
constexpr int kFastest = 1;
constexpr int kBitsPerPart = 8;
constexpr int kRgb = 2;

QByteArray BigEndian(quint32 value) {
  QByteArray bytes(4, '\0');
  qToBigEndian(value, bytes.data());
  return bytes;
}

const Bytef* Bytes(const QByteArray& bytes) {
  return reinterpret_cast<const Bytef*>(bytes.constData());
}

}  // namespace

PngFile::PngFile(QSize size) : stream_(std::make_unique<z_stream_s>()) {
  ready_ = deflateInit(stream_.get(), kFastest) == Z_OK;
  file_ = "\x89PNG\r\n\x1A\n";
  QByteArray header = BigEndian(static_cast<quint32>(size.width()));
  header += BigEndian(static_cast<quint32>(size.height()));
  header += QByteArray{}.append(kBitsPerPart).append(kRgb).append(3, '\0');
  AddChunk("IHDR", header);
}

PngFile::~PngFile() {
  deflateEnd(stream_.get());
}

void PngFile::AddChunk(const char* type, const QByteArray& content) {
  const QByteArray body = type + content;
  file_ += BigEndian(static_cast<quint32>(content.size()));
  file_ += body;
  file_ += BigEndian(static_cast<quint32>(crc32(0, Bytes(body), static_cast<uInt>(body.size()))));
}

void PngFile::Compress(const QByteArray& bytes, int flush) {
  if (!ready_) return;
  QByteArray packed(kChunkLength, Qt::Uninitialized);
  stream_->next_in = const_cast<Bytef*>(Bytes(bytes));
  stream_->avail_in = static_cast<uInt>(bytes.size());
  do {
    stream_->next_out = reinterpret_cast<Bytef*>(packed.data());
    stream_->avail_out = kChunkLength;
    deflate(stream_.get(), flush);
    const auto length = static_cast<qsizetype>(kChunkLength - stream_->avail_out);
    if (length > 0) AddChunk("IDAT", packed.first(length));
  } while (stream_->avail_out == 0);
}

void PngFile::AddRows(const QImage& image, int first, int count) {
  row_.resize(1 + 3 * image.width());
  for (int y = first; y < first + count; ++y) {
    const auto* pixels = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    char* byte = row_.data();
    *byte++ = 0;  // no filter
    for (int x = 0; x < image.width(); ++x) {
      *byte++ = static_cast<char>(qRed(pixels[x]));
      *byte++ = static_cast<char>(qGreen(pixels[x]));
      *byte++ = static_cast<char>(qBlue(pixels[x]));
    }
    Compress(row_, Z_NO_FLUSH);
  }
}

Result<QByteArray> PngFile::Finish() {
  if (!ready_) return Error{Error::Kind::Refused, "", 0, "not enough memory to compress the picture"};
  Compress({}, Z_FINISH);
  AddChunk("IEND", {});
  return std::move(file_);
}

}  // namespace kestrel
