#include "qv_commons/platform/desktop/desktop_style.h"

#include <QFont>
#include <QFontInfo>
#include <QGuiApplication>
#include <algorithm>

namespace qv_commons::desktop {
namespace {

// %1 to %7: the colours in the theme's order, without the background, which the sheet paints; %8:
// the font; then the sizes of title, button, text and caption, and the padding of a field.
constexpr char kSheet[] = R"(
* { font-family: %8; font-size: %11px; color: %2; }
QScrollArea, QWidget[role="page"] { background: transparent; border: none; }
QLabel[role="title"] { font-size: %9px; font-weight: 600; }
QLabel[role="heading"] { font-size: %10px; font-weight: 600; }
QLabel[role="caption"] { font-size: %12px; color: %3; }
QTextBrowser { font-size: %11px; background: transparent; border: none; padding: 0;
  selection-background-color: %5; selection-color: %6; }
QTextBrowser[role="error"] { color: %7; }
QLineEdit, QPlainTextEdit {
  font-size: %10px; background: %1; border: 2px solid %4; border-radius: 10px; padding: %13px;
  selection-background-color: %5; selection-color: %6;
}
QLineEdit:focus, QPlainTextEdit:focus { border-color: %5; }
QPushButton {
  font-size: %10px; background: transparent; color: %5; border: 2px solid %4; border-radius: 10px;
  padding: %13px 16px;
}
QPushButton[role="plain"] { border-color: transparent; padding-left: 8px; padding-right: 8px; }
QPushButton[role="primary"] {
  background: %5; color: %6; border-color: %5; font-weight: 600;
}
QPushButton[role="destructive"] { color: %7; }
*:focus { outline: none; }
QPushButton:pressed { border-color: %3; }
QPushButton:disabled { background: transparent; color: %3; border-color: %4; }
)";

QString pixels(double size, double scale) {
  return QString::number(qRound(size * scale));
}

}  // namespace

Theme themeFor(UserInterfaceStyle style) {
  if (style == UserInterfaceStyle::dark) {
    return {.background = "#1c1c1e",
            .field = "#2c2c2e",
            .text = "#f2f2f7",
            .caption = "#aeaeb2",
            .line = "#48484a",
            .accent = "#6cb1ff",
            .onAccent = "#0b1c30",
            .error = "#ff9a92"};
  }
  return {.background = "#ffffff",
          .field = "#f7f7f9",
          .text = "#1c1c1e",
          .caption = "#5f5f66",
          .line = "#c7c7cc",
          .accent = "#0a58c2",
          .onAccent = "#ffffff",
          .error = "#b3261e"};
}

double textScale() {
  constexpr double kUsualPixels = 15;
  return std::max(1.0, QFontInfo(QGuiApplication::font()).pixelSize() / kUsualPixels);
}

QString styleSheet(const Theme& theme, double scale) {
  // Inter comes first for its clear figures; the user's own font takes over where it is missing.
  const QString font = QString("Inter, \"%1\"").arg(QGuiApplication::font().family());
  return QString(kSheet)
      .arg(theme.field, theme.text, theme.caption, theme.line, theme.accent, theme.onAccent,
           theme.error, font)
      .arg(pixels(24, scale), pixels(17, scale), pixels(15, scale), pixels(13, scale),
           pixels(8, scale));
}

QString breakable(const QString& text) {
  constexpr QChar kZeroWidthSpace(0x200b);
  constexpr int kLongWord = 10;
  QString result;
  int sinceBreak = 0;
  for (const QChar character : text) {
    if (sinceBreak >= kLongWord && !character.isLowSurrogate()) {
      result.append(kZeroWidthSpace);
      sinceBreak = 0;
    }
    result.append(character);
    sinceBreak = character.isSpace() ? 0 : sinceBreak + 1;
  }
  return result;
}

}  // namespace qv_commons::desktop
