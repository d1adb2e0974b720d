#include "ui/Controls.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QStylePainter>

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

/// A button whose caption is English on every desktop: the icon stands before it, the dots after it.
class CaptionButton final : public QPushButton {
 public:
  explicit CaptionButton(const QString& caption) : QPushButton(caption) {
    setLayoutDirection(Qt::LeftToRight);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QStylePainter painter(this);
    painter.setLayoutDirection(Qt::LeftToRight);  // which is the desktop's otherwise
    QStyleOptionButton option;
    initStyleOption(&option);
    painter.drawControl(QStyle::CE_PushButton, option);
  }
};

}  // namespace

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QPushButton* MakeButton(const char* name, const QString& caption, const QString& tip,
                        std::function<void()> action) {
  auto* button = new CaptionButton(caption);
  button->setObjectName(name);
  button->setToolTip(tip);
  QObject::connect(button, &QPushButton::clicked, button, std::move(action));
  return button;
}

QLabel* MakeLabel(const char* name, const QString& caption, QWidget* buddy) {
  auto* label = new QLabel(caption);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setBuddy(buddy);
  return label;
}

void ChangeFont(QWidget& widget, QFont::Weight weight, double growth) {
  QFont font = widget.font();
  font.setWeight(weight);
  if (growth != 1) font.setPointSizeF(font.pointSizeF() * growth);
  widget.setFont(font);
}

QLineEdit* MakeBox(const char* name, const QString& tip) {
  auto* box = new QLineEdit;
  box->setObjectName(name);
  box->setToolTip(tip);
  box->setLayoutDirection(Qt::LeftToRight);  // or a minus would stand after its number
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

std::string TypedNumber(const QLineEdit& box) {
  constexpr QChar kArabicDecimalSeparator(0x066B);
  constexpr QChar kMinusSign(0x2212);
  QString text = box.text();
  for (QChar& character : text) {
    if (character.isDigit()) character = QChar('0' + character.digitValue());
    if (character == kArabicDecimalSeparator) character = '.';
    if (character == kMinusSign) character = '-';
    if (character.isSpace()) character = ' ';
  }
  return text.toStdString();
}

}  // namespace kestrel
