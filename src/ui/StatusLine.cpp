#include "ui/StatusLine.h"

namespace kestrel {

StatusLine::StatusLine(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  setContentsMargins(6, 1, 6, 1);
}

void StatusLine::SetRest(const QString& text) {
  rest_ = text;
  Show();
}

void StatusLine::SetPassing(const QString& text) {
  if (text == passing_) return;
  passing_ = text;
  Show();
}

void StatusLine::Show() {
  setText(fontMetrics().elidedText(Whole(), Qt::ElideRight, contentsRect().width()));
  setAccessibleName(Whole());
  // What stands in a file is text, also where it looks like markup.
  setToolTip(Qt::mightBeRichText(rest_) ? Qt::convertFromPlainText(rest_) : rest_);
}

void StatusLine::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  Show();
}

}  // namespace kestrel
