#include "ui/CommandColumn.h"

#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include "ui/Controls.h"
#include "ui/Keys.h"

namespace kestrel {

CommandColumn::CommandColumn(QWidget* parent) : QScrollArea(parent), column_(new QWidget) {
  layout_ = new QVBoxLayout(column_);
  layout_->setSpacing(3);
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
  layout_->addWidget(button);
  return button;
}

void CommandColumn::AddGap() {
  layout_->addSpacing(fontMetrics().height() / 2);
}

void CommandColumn::AddWidget(QWidget* widget) {
  layout_->addWidget(widget);
}

void CommandColumn::Finish() {
  layout_->addStretch();
  setFixedWidth(column_->sizeHint().width() + verticalScrollBar()->sizeHint().width());
}

}  // namespace kestrel
