#include "qv_commons/age_gate/age_gate_color_theme.h"

#include "qv_commons/platform/device.h"
#include "qv_commons/platform/platform.h"

namespace qv_commons {
namespace {

Color grey(double level) {
  return {level, level, level, 1};
}

}  // namespace

// By reference: five colours to be moved twice would take three times the code.
// NOLINTBEGIN(modernize-pass-by-value)
QV_AgeGateColorTheme::QV_AgeGateColorTheme(const Color& background, const Color& buttonBackground,
                                           const Color& buttonText, const Color& text,
                                           const Color& policiesText)
    : buttonBGColor(buttonBackground),
      buttonTextColor(buttonText),
      backgroundColor(background),
      textColor(text),
      policiesTextColor(policiesText) {}
// NOLINTEND(modernize-pass-by-value)

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
  const Device& device = platform.device;
  const bool isAtLeast13 = device.isSystemVersionAtLeast(13);
  return defaultThemeFor(isAtLeast13,
                         isAtLeast13 && device.userInterfaceStyle() == UserInterfaceStyle::dark);
}

}  // namespace qv_commons
