#include "ui/Controls.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace kestrel {
namespace {

/// The theme's colours; a hint has the text's, paler: some dark themes leave it black.
QPalette BoxPalette() {
  QPalette palette;
  QColor hint = QApplication::palette("QLineEdit").color(QPalette::Text);
  hint.setAlphaF(0.5F);
  palette.setColor(QPalette::PlaceholderText, hint);
  return palette;
}

}  // namespace

QPushButton* MakeButton(const char* name, const QString& caption, const QString& tip) {
  auto* button = new QPushButton(caption);
  button->setObjectName(name);
  button->setToolTip(tip);
  return button;
}

QLabel* MakeLabel(const char* name, const QString& caption, QWidget* buddy) {
  auto* label = new QLabel(caption);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setBuddy(buddy);
  return label;
}

QLineEdit* MakeBox(const char* name, const QString& tip) {
  auto* box = new QLineEdit;
  box->setObjectName(name);
  box->setToolTip(tip);
  box->setLayoutDirection(Qt::LeftToRight);  // or a minus would stand behind its number
  box->setPalette(BoxPalette());
  box->setMinimumWidth(box->fontMetrics().horizontalAdvance("-123.456789 W"));
  return box;
}

void MarkBox(QLineEdit* box, bool marked) {
  QPalette palette = BoxPalette();
  if (marked) {
    palette.setColor(QPalette::Base, QColor(255, 224, 204));
    palette.setColor(QPalette::Text, Qt::black);
  }
  box->setPalette(palette);
}

}  // namespace kestrel
