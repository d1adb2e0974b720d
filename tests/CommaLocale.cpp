#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <locale>
#ifdef QT_CORE_LIB
#include <QLocale>
#endif

namespace {

/// With KESTREL_COMMA_LOCALE the tests of a program run under the locale of the environment, in C, C++ and
/// Qt, and fail when that does not write numbers with a comma.
class CommaLocale final : public ::testing::Environment {
 public:
  void SetUp() override {
    if (std::getenv("KESTREL_COMMA_LOCALE") == nullptr) return;
    ASSERT_NE(std::setlocale(LC_ALL, ""), nullptr);
    std::locale::global(std::locale(""));
    char text[8];
    std::snprintf(text, sizeof text, "%.1f", 0.5);
    ASSERT_STREQ(text, "0,5");
#ifdef QT_CORE_LIB
    ASSERT_EQ(QLocale().decimalPoint(), ",");
#endif
  }
};

const ::testing::Environment* const Surroundings = ::testing::AddGlobalTestEnvironment(new CommaLocale);

}  // namespace
