// How composers and alerts look: one style sheet for all, light or dark.
#pragma once

#include <QString>

#include "qv_commons/platform/user_interface_style.h"

namespace qv_commons::desktop {

// Colours as "#rrggbb".
struct Theme {
  QString background;
  QString field;  // behind what can be typed into
  QString text;
  QString caption;
  QString line;
  QString accent;
  QString onAccent;
  QString error;
};

// The dark one for `dark`, else the light one. Every text is at least 4.5 times as light or as dark
// as what it stands on.
Theme themeFor(UserInterfaceStyle style);

// By how much the user enlarges texts: the size of the application's font against the usual 15
// pixels, which are 11 points at 96 dots per inch. 2 for a font of 30 pixels; never below 1.
double textScale();

// Distances in pixels.
inline constexpr int kSideMargin = 20;
inline constexpr int kBottomMargin = 24;
inline constexpr int kGap = 16;
inline constexpr int kCaptionGap = 4;
inline constexpr int kButtonPadding = 10;  // of a plain one, its border included

// For a page whose widgets carry the property "role": title, heading, caption, error, primary or
// plain.
QString styleSheet(const Theme& theme, double scale);

// `text` with places to break lines within words that are too long for a narrow window.
QString breakable(const QString& text);

}  // namespace qv_commons::desktop
