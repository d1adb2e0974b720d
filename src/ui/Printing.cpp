#include "ui/Printing.h"

#include <QFileInfo>
#include <QPainter>
#include <QPrinter>

#include "draw/PagePainter.h"

namespace kestrel {

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
  // A file may stay empty where the disk is full or the folder went away; the printer does not tell.
  const QString file = printer_->outputFileName();
  return !file.isEmpty() && QFileInfo(file).size() == 0;
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
