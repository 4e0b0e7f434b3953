// One QApplication for all tests of a program.
#include <QApplication>
#include <QFont>
#include <gtest/gtest.h>
#include <memory>

#include "tests/desktop/own_language.h"

namespace {

class QtEnvironment : public testing::Environment {
 public:
  void SetUp() override {
    QApplication::setStyle("Fusion");
    application_ = std::make_unique<QApplication>(count_, arguments_);
    speakEnglish();
    QFont font("Inter");
    const int pixels = qEnvironmentVariableIntValue("QV_COMMONS_TEST_FONT_PIXELS");
    font.setPixelSize(pixels > 0 ? pixels : 15);
    QApplication::setFont(font);
    QApplication::setQuitOnLastWindowClosed(false);
  }
  void TearDown() override { application_.reset(); }

 private:
  char name_[5] = "test";
  char* arguments_[2] = {name_, nullptr};
  int count_ = 1;
  std::unique_ptr<QApplication> application_;
};

[[maybe_unused]] const auto* const environment =
    testing::AddGlobalTestEnvironment(new QtEnvironment);

}  // namespace
