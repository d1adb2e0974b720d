#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  // The forms show and read numbers the same way in every locale; a comma locale would tell.
  QLocale::setDefault(QLocale(QLocale::German));
  QApplication app(argc, argv);
  return RUN_ALL_TESTS();
}
