#pragma once

#include <QSizeF>
#include <QString>
#include <array>
#include <set>

namespace kestrel {

/// A colour of a PDF page, red, green and blue from 0 to 1.
using PdfColor = std::array<double, 3>;

/// What a PDF file of one page draws, read from its content.
struct PdfPage {
  int Pages = 0;
  QSizeF Size;                  ///< points
  int Pictures = 0;             ///< embedded images
  bool HasLetters = false;      ///< embedded fonts
  std::set<double> LineWidths;  ///< points, of the lines that are drawn
  std::set<double> FontSizes;   ///< points, of the texts that are drawn
  std::set<PdfColor> Colors;    ///< of lines and texts

  bool IsGrey() const;
};

PdfPage ReadPdf(const QString& path);

}  // namespace kestrel
