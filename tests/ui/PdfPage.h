#pragma once

#include <QSizeF>
#include <QString>
#include <set>
#include <vector>

namespace kestrel {

/// A colour of a PDF page, red, green and blue from 0 to 1.
struct PdfColor {
  double Red = 0, Green = 0, Blue = 0;
  bool operator<(const PdfColor& other) const;
  bool IsGrey() const { return Red == Green && Green == Blue; }
};

/// What a PDF file of one page draws, read from its content.
struct PdfPage {
  int Pages = 0;
  QSizeF Size;                  ///< points
  int Pictures = 0;             ///< embedded images
  bool HasLetters = false;      ///< embedded fonts
  std::set<double> LineWidths;  ///< points, of the lines that are drawn
  std::set<double> FontSizes;   ///< points, of the texts that are drawn
  std::set<PdfColor> Colors;    ///< of lines and texts
};

PdfPage ReadPdf(const QString& path);

}  // namespace kestrel
