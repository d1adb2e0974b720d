#include "ui/CommandColumn.h"

#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include "ui/Controls.h"
#include "ui/Keys.h"

namespace kestrel {

CommandColumn::CommandColumn(QWidget* parent) : QScrollArea(parent), column_(new QWidget) {
  layout_ = new QVBoxLayout(column_);
  // So much that all commands fit a screen of 640 by 480.
  layout_->setSpacing(2);
  layout_->setContentsMargins(9, 5, 9, 5);
  setWidget(column_);
  setWidgetResizable(true);
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFocusPolicy(Qt::NoFocus);
}

QPushButton* CommandColumn::AddCommand(const char* name, const QString& caption,
                                       std::function<void()> action) {
  QPushButton* button = MakeButton(name, caption, KeysOf(*window(), name).Tip(), std::move(action));
  button->setAutoDefault(true);  // Enter presses it too
  AddShortcuts(*window(), name, [button] { button->click(); });
  button->setIconSize(QSize(1, 1) * (fontMetrics().height() - 2));
  layout_->addWidget(button);
  return button;
}

void CommandColumn::AddGap() {
  layout_->addSpacing(fontMetrics().height() / 3);
}

void CommandColumn::AddWidget(QWidget* widget) {
  layout_->addWidget(widget);
}

void CommandColumn::Finish() {
  layout_->addStretch();
  setFixedWidth(column_->sizeHint().width() + verticalScrollBar()->sizeHint().width());
}

}  // namespace kestrel
