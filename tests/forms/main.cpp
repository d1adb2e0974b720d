#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>
#include <QSettings>
#include <QTemporaryDir>

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  // The forms show and read numbers the same way in every locale; a comma locale would tell.
  QLocale::setDefault(QLocale(QLocale::German));
  QApplication app(argc, argv);
  QTemporaryDir settings;  // not the user's own
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
  QApplication::setOrganizationName("kestrel");
  return RUN_ALL_TESTS();
}
