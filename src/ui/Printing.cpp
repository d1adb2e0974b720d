#include "ui/Printing.h"

#include <QFile>
#include <QPainter>
#include <QPrinter>
#include <algorithm>

#include "draw/PagePainter.h"

namespace kestrel {
namespace {

bool IsWholePdf(const QString& path) {
  constexpr qint64 kTail = 64;  // at most a few bytes follow the end mark
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return false;
  file.seek(std::max<qint64>(0, file.size() - kTail));
  return file.readAll().contains("%%EOF");
}

}  // namespace

PrinterDevice::PrinterDevice(std::unique_ptr<QPrinter> printer) : printer_(std::move(printer)) {}

PrinterDevice::~PrinterDevice() = default;

QPagedPaintDevice& PrinterDevice::Paper() {
  return *printer_;
}

bool PrinterDevice::InColor() const {
  return printer_->colorMode() == QPrinter::Color;
}

bool PrinterDevice::Failed() const {
  if (printer_->printerState() == QPrinter::Error) return true;
  // Where the disk is full or the folder went away, a file stays empty or breaks off; the printer does not
  // tell.
  const QString file = printer_->outputFileName();
  return !file.isEmpty() && !IsWholePdf(file);
}

QString PdfFileName(const std::string& document) {
  constexpr qsizetype kLongest = 100;
  static const QString kForbidden = "/\\:*?\"<>|";
  QString name = QString::fromStdString(document).left(kLongest);
  for (QChar& character : name)
    if (!character.isPrint() || kForbidden.contains(character)) character = '-';
  name = name.simplified();
  while (name.startsWith('.')) name.remove(0, 1);
  while (name.endsWith('.')) name.chop(1);
  name = name.trimmed();
  return (name.isEmpty() ? "Page" : name) + ".pdf";
}

PrintEnd PrintPage(PrintDevice& device, const PrintedPage& page) {
  QPagedPaintDevice& paper = device.Paper();
  QPainter painter;
  if (!painter.begin(&paper)) return PrintEnd::NotOpened;
  const int unitsPerInch = paper.logicalDpiX();
  const QRect inside = paper.pageLayout().paintRectPixels(unitsPerInch);
  PaintPage(painter, page, inside.size(), unitsPerInch, device.InColor());
  return painter.end() && !device.Failed() ? PrintEnd::Printed : PrintEnd::Failed;
}

}  // namespace kestrel
