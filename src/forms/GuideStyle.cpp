#include "forms/GuideStyle.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>
#include <vector>

namespace kestrel {
namespace {

constexpr int kLineHeight = 120;  // per cent
constexpr double kCellPadding = 5;

struct Colors {
  QColor Link, Code, Border, Head;
};

QColor Mixed(const QColor& base, const QColor& ink, double share) {
  const auto mix = [share](int a, int b) { return qRound(a + (b - a) * share); };
  return QColor(mix(base.red(), ink.red()), mix(base.green(), ink.green()), mix(base.blue(), ink.blue()));
}

Colors ColorsOn(const QPalette& palette) {
  const QColor base = palette.color(QPalette::Base);
  const QColor ink = palette.color(QPalette::Text);
  // A dark palette often leaves the links their dark blue.
  const QColor link = base.lightness() < 128 ? QColor(0x8A, 0xBD, 0xFF) : QColor(0x0B, 0x50, 0xB8);
  return {link, Mixed(base, ink, 0.1), Mixed(base, ink, 0.35), Mixed(base, ink, 0.12)};
}

struct Run {
  int Position, Length;
  QTextCharFormat Format;
};

std::vector<Run> RunsOf(const QTextDocument& page) {
  std::vector<Run> runs;
  for (QTextBlock block = page.begin(); block.isValid(); block = block.next())
    for (auto it = block.begin(); !it.atEnd(); ++it)
      runs.push_back({it.fragment().position(), it.fragment().length(), it.fragment().charFormat()});
  return runs;
}

void StyleRuns(QTextDocument& page, const Colors& colors) {
  const double points = page.defaultFont().pointSizeF();
  QTextCursor cursor(&page);
  for (Run& run : RunsOf(page)) {
    const bool code = run.Format.fontFixedPitch();
    if (!code && !run.Format.isAnchor()) continue;
    if (run.Format.isAnchor()) run.Format.setForeground(colors.Link);
    if (code) {
      run.Format.setFontPointSize(points * 0.95);
      run.Format.setBackground(colors.Code);
    }
    cursor.setPosition(run.Position);
    cursor.setPosition(run.Position + run.Length, QTextCursor::KeepAnchor);
    cursor.setCharFormat(run.Format);
  }
}

void StyleTable(QTextTable& table, const Colors& colors) {
  QTextTableFormat format = table.format();
  format.setBorderCollapse(true);
  format.setBorder(1);
  format.setBorderBrush(colors.Border);
  format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
  format.setCellPadding(kCellPadding);
  format.setCellSpacing(0);
  format.setTopMargin(kCellPadding);
  format.setBottomMargin(2 * kCellPadding);
  table.setFormat(format);
  for (int column = 0; column < table.columns(); ++column) {
    QTextTableCell cell = table.cellAt(0, column);
    QTextCharFormat head = cell.format();
    head.setBackground(colors.Head);
    cell.setFormat(head);
  }
}

}  // namespace

void StyleGuidePage(QTextDocument& page, const QPalette& palette) {
  const Colors colors = ColorsOn(palette);
  QTextCursor cursor(&page);
  cursor.beginEditBlock();
  for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
    QTextBlockFormat lines;
    // A picture's line would grow by a share of the picture.
    const bool picture = !block.begin().atEnd() && block.begin().fragment().charFormat().isImageFormat();
    lines.setLineHeight(picture ? 100 : kLineHeight, QTextBlockFormat::ProportionalHeight);
    cursor.setPosition(block.position());
    cursor.mergeBlockFormat(lines);
  }
  StyleRuns(page, colors);
  for (QTextFrame* frame : page.rootFrame()->childFrames())
    if (auto* table = qobject_cast<QTextTable*>(frame)) StyleTable(*table, colors);
  cursor.endEditBlock();
}

}  // namespace kestrel
