#pragma once

#include <QPagedPaintDevice>
#include <memory>

#include "map/PrintedPages.h"

class QPrinter;

namespace kestrel {

/// A printer that one document goes to.
class PrintDevice {
 public:
  virtual ~PrintDevice() = default;
  virtual QPagedPaintDevice& Paper() = 0;
  virtual bool InColor() const = 0;
  /// Whether the document was lost on its way; asked when it is complete.
  virtual bool Failed() const = 0;
};

/// The platform's printer, or a PDF file in its place.
class PrinterDevice final : public PrintDevice {
 public:
  explicit PrinterDevice(std::unique_ptr<QPrinter> printer);
  ~PrinterDevice() override;
  QPagedPaintDevice& Paper() override;
  bool InColor() const override;
  bool Failed() const override;

 private:
  std::unique_ptr<QPrinter> printer_;
};

/// What the user may choose to print.
struct PrintOffer {
  PrintedPage Page;
  std::optional<PrintedPage> Outlines;  ///< offered as "Print outline map" where there is one
};

/// What the user chose.
struct PrintOrder {
  std::unique_ptr<PrintDevice> Device;
  bool OutlineMap = false;
};

enum class PrintEnd {
  Printed,
  NotOpened,  ///< the printer could not be opened
  Failed,     ///< it failed on the way
};

/// The name under which a document is offered as a file: "1510 kHz Wichita.pdf". What the names of files
/// cannot hold on every system is a "-", blanks and points at the ends are left out, the rest is cut after
/// 100 characters; a name of nothing else is "Page.pdf".
QString PdfFileName(const std::string& document);

/// Prints one page within the paper's margins.
PrintEnd PrintPage(PrintDevice& device, const PrintedPage& page);

}  // namespace kestrel
