#include "ui/Controls.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QVBoxLayout>

#include "ui/FitToScreen.h"

namespace kestrel {
namespace {

TEST(ControlsTest, AButtonLooksTheSameWhereTheDesktopReadsFromTheRight) {
  QPixmap icon(16, 16);
  icon.fill(Qt::red);
  std::vector<QImage> seen;
  for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
    QApplication::setLayoutDirection(direction);
    QWidget window;
    auto* rows = new QVBoxLayout(&window);
    rows->addWidget(MakeButton("cmdAdd", "&Add files...", "", [] {}));
    QPushButton* zoom = MakeButton("cmdIn", "&In", "", [] {});
    zoom->setIcon(icon);
    rows->addWidget(zoom);
    window.resize(200, 100);
    seen.push_back(window.grab().toImage());
  }
  QApplication::setLayoutDirection(Qt::LeftToRight);
  EXPECT_EQ(seen[0], seen[1]);
}

TEST(ControlsTest, NumbersAreReadInTheDigitsOfEveryScript) {
  QLineEdit box;
  const struct {
    const char8_t* text;
    const char* number;
  } rows[] = {
      {u8"٤٥٫٥", "45.5"}, {u8"-۹۶٫۵۴", "-96.54"}, {u8"१२३०", "1230"}, {u8"\u221242\u00a021", "-42 21"}};
  for (const auto& row : rows) {
    box.setText(QString::fromUtf8(row.text));
    EXPECT_EQ(TypedNumber(box), row.number);
    EXPECT_EQ(box.text(), QString::fromUtf8(row.text)) << "what was typed stays";
  }
}

TEST(FitToScreenTest, ADialogTooLargeForItsScreenScrollsToWhatHasTheFocus) {
  QDialog dialog;
  auto* rows = new QVBoxLayout(&dialog);
  auto* first = new QPushButton("first");
  auto* space = new QWidget;
  auto* last = new QPushButton("last");
  const QSize screen = QApplication::primaryScreen()->availableSize();
  space->setMinimumHeight(2 * screen.height());
  for (QWidget* widget : {static_cast<QWidget*>(first), space, static_cast<QWidget*>(last)})
    rows->addWidget(widget);
  FitToScreen(dialog);
  dialog.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  EXPECT_LT(dialog.height(), screen.height());
  EXPECT_LT(dialog.width(), screen.width());
  for (QPushButton* button : {last, first}) {
    button->setFocus();
    const QPoint middle = button->mapTo(&dialog, button->rect().center());
    EXPECT_EQ(dialog.childAt(middle), button) << button->text().toStdString();
  }
}

TEST(FitToScreenTest, ADialogThatFitsStaysAsItIs) {
  const QSize screen = QApplication::primaryScreen()->availableSize();
  QDialog small;
  auto* rows = new QVBoxLayout(&small);
  rows->addWidget(new QPushButton("only"));
  FitToScreen(small);
  EXPECT_EQ(small.layout(), rows);
  EXPECT_FALSE(small.testAttribute(Qt::WA_Resized)) << "it takes the size it asks for";
  small.resize(screen.width() / 2, 2 * screen.height());
  FitToScreen(small);
  EXPECT_EQ(small.layout(), rows);
  EXPECT_EQ(small.width(), screen.width() / 2);
  EXPECT_LT(small.height(), screen.height());
}

}  // namespace
}  // namespace kestrel
