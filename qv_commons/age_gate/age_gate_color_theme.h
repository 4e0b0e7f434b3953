// The five colours of the age gate's screens.
//
//     auto stock = qv_commons::QV_AgeGateColorTheme::defaultTheme();  // light or dark
//     auto own = std::make_shared<qv_commons::QV_AgeGateColorTheme>(
//         /*backgroundColor=*/qv_commons::Color{1, 1, 1},
//         /*buttonBackgroundColor=*/qv_commons::Color{0.1, 0.3, 0.8},
//         /*buttonTextColor=*/qv_commons::Color{1, 1, 1},
//         /*textColor=*/qv_commons::Color{0.2, 0.2, 0.2},
//         /*policiesTextColor=*/qv_commons::Color{0.1, 0.3, 0.8});
//     own->textColor = qv_commons::Color{0, 0, 0};
//
// A theme is one object, shared by the host and the screens. A screen reads the colours once, when
// it loads: later changes don't reach it, nor does a change of the system's look.
#pragma once

#include <memory>

#include "qv_commons/export.h"
#include "qv_commons/platform/color.h"

namespace qv_commons {

struct Platform;

class QV_COMMONS_EXPORT QV_AgeGateColorTheme {
 public:
  // The order differs from that of the fields: the panel's background comes first, and
  // `buttonBackgroundColor` is kept in `buttonBGColor`.
  QV_AgeGateColorTheme(const Color& backgroundColor, const Color& buttonBackgroundColor,
                       const Color& buttonTextColor, const Color& textColor,
                       const Color& policiesTextColor);
  QV_AgeGateColorTheme(const QV_AgeGateColorTheme&) = delete;
  QV_AgeGateColorTheme& operator=(const QV_AgeGateColorTheme&) = delete;

  // A new theme at each call: the dark palette if the system's version is 13.0 or later and its
  // look is dark at this moment, otherwise the light one. Never null. Main thread.
  static std::shared_ptr<QV_AgeGateColorTheme> defaultTheme();

  Color buttonBGColor;      // of the confirm button
  Color buttonTextColor;    // the confirm button's title while it is enabled
  Color backgroundColor;    // of a screen's panel
  Color textColor;          // headings, and all text that is not a link
  Color policiesTextColor;  // links, and the confirm button's title while it is disabled
};

// What `defaultTheme()` decides, from its two inputs alone. Any thread.
QV_COMMONS_EXPORT std::shared_ptr<QV_AgeGateColorTheme> defaultThemeFor(bool systemIsAtLeast13,
                                                                        bool styleIsDark);

// `defaultTheme()` for a given platform. The look is read from version 13.0 on only.
QV_COMMONS_EXPORT std::shared_ptr<QV_AgeGateColorTheme> defaultThemeOf(const Platform& platform);

}  // namespace qv_commons
