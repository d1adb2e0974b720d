#include <gtest/gtest.h>

#include <QGuiApplication>
#include <memory>

namespace {

/// Fonts need the platform for as long as the tests run.
class PlatformEnvironment : public testing::Environment {
 public:
  void SetUp() override {
    static int count = 1;
    static char name[] = "draw_test";
    static char* arguments[] = {name, nullptr};
    application_ = std::make_unique<QGuiApplication>(count, arguments);
  }
  void TearDown() override { application_.reset(); }

 private:
  std::unique_ptr<QGuiApplication> application_;
};

[[maybe_unused]] const auto* const environment = testing::AddGlobalTestEnvironment(new PlatformEnvironment);

}  // namespace
