#include "ui/PdfPage.h"

#include <QFile>
#include <QRegularExpression>
#include <QtEndian>
#include <algorithm>
#include <vector>

namespace kestrel {
namespace {

/// The streams of a PDF file that are packed and unpack to text, the page's content among them.
QByteArray Content(const QByteArray& pdf) {
  QByteArray content;
  const QByteArray head = "\nstream\n";
  for (qsizetype at = pdf.indexOf(head); at >= 0; at = pdf.indexOf(head, at + 1)) {
    const qsizetype begin = at + head.size();
    const qsizetype end = pdf.indexOf("\nendstream", begin);
    if (pdf[begin] != '\x78') continue;  // not packed
    QByteArray packed(4, 0);  // the size that qUncompress wants to be told; it grows when it is too small
    qToBigEndian<quint32>(1 << 20, packed.data());
    const QByteArray text = qUncompress(packed + pdf.mid(begin, end - begin));
    if (text.contains(" cm\n")) content += text;
  }
  return content;
}

/// Walks over the content's operators. Qt scales the whole page once and draws in whole units from there on.
void ReadContent(const QByteArray& content, PdfPage& page) {
  std::vector<double> numbers;
  double scale = 1;
  double width = 1;
  PdfColor line{};
  // A grey is a number or three, by the version of Qt.
  const auto color = [&numbers] {
    const std::size_t n = numbers.size();
    if (n == 1) return PdfColor{numbers[0], numbers[0], numbers[0]};
    return n < 3 ? PdfColor{} : PdfColor{numbers[n - 3], numbers[n - 2], numbers[n - 1]};
  };
  for (const QByteArray& word : content.simplified().split(' ')) {
    bool isNumber = false;
    const double number = word.toDouble(&isNumber);
    if (isNumber) {
      numbers.push_back(number);
      continue;
    }
    if (word == "cm" && numbers.size() == 6 && numbers[0] != 1) scale = numbers[0];
    if (word == "w") width = numbers.back() * scale;
    if (word == "SCN") line = color();
    if (word == "scn") page.Colors.insert(color());
    if (word == "Tf") page.FontSizes.insert(numbers.back() * scale);
    if (word == "S" || word == "B") {
      page.LineWidths.insert(width);
      page.Colors.insert(line);
    }
    numbers.clear();
  }
}

}  // namespace

bool PdfPage::IsGrey() const {
  return std::all_of(Colors.begin(), Colors.end(),
                     [](const PdfColor& color) { return color[0] == color[1] && color[1] == color[2]; });
}

PdfPage ReadPdf(const QString& path) {
  PdfPage page;
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return page;
  const QByteArray bytes = file.readAll();
  const QString pdf = QString::fromLatin1(bytes);
  const auto box = QRegularExpression("/MediaBox \\[0 0 ([0-9.]+) ([0-9.]+)").match(pdf);
  page.Size = {box.captured(1).toDouble(), box.captured(2).toDouble()};
  page.Pages = static_cast<int>(pdf.count(QRegularExpression("/Type /Page\\b")));
  page.Pictures = static_cast<int>(pdf.count(QRegularExpression("/Subtype ?/Image")));
  page.HasLetters = pdf.contains("/FontFile2");
  ReadContent(Content(bytes), page);
  return page;
}

}  // namespace kestrel
