#include "qv_commons/age_gate/age_gate_color_theme.h"

#include <utility>

#include "qv_commons/platform/device.h"
#include "qv_commons/platform/platform.h"

namespace qv_commons {
namespace {

Color grey(double level) {
  return {level, level, level, 1};
}

}  // namespace

QV_AgeGateColorTheme::QV_AgeGateColorTheme(Color background, Color buttonBackground,
                                           Color buttonText, Color text, Color policiesText)
    : buttonBGColor(std::move(buttonBackground)),
      buttonTextColor(std::move(buttonText)),
      backgroundColor(std::move(background)),
      textColor(std::move(text)),
      policiesTextColor(std::move(policiesText)) {}

std::shared_ptr<QV_AgeGateColorTheme> QV_AgeGateColorTheme::defaultTheme() {
  return defaultThemeOf(currentPlatform());
}

std::shared_ptr<QV_AgeGateColorTheme> defaultThemeFor(bool systemIsAtLeast13, bool styleIsDark) {
  const bool isDark = systemIsAtLeast13 && styleIsDark;
  return std::make_shared<QV_AgeGateColorTheme>(grey(isDark ? 0.118 : 1), grey(isDark ? 1 : 0),
                                                grey(isDark ? 0 : 1), grey(isDark ? 1 : 0.29),
                                                grey(isDark ? 0.541 : 0.514));
}

std::shared_ptr<QV_AgeGateColorTheme> defaultThemeOf(const Platform& platform) {
  const bool systemIsAtLeast13 = platform.device.isSystemVersionAtLeast(13);
  const bool styleIsDark =
      systemIsAtLeast13 && platform.device.userInterfaceStyle() == UserInterfaceStyle::dark;
  return defaultThemeFor(systemIsAtLeast13, styleIsDark);
}

}  // namespace qv_commons
