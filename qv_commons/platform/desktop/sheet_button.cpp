#include "qv_commons/platform/desktop/sheet_button.h"

#include <QPainter>

#include "qv_commons/platform/desktop/sheet.h"

namespace qv_commons::desktop {

// An ampersand is one, and no mark of a key.
SheetButton::SheetButton(const QString& text, const QKeySequence& keys) {
  setAutoDefault(true);
  setShortcut(keys);
  rename(text);
}

void SheetButton::rename(const QString& text) {
  const QKeySequence keys = shortcut();
  setText(QString(text).replace('&', "&&"));
  setAccessibleName(text);
  setShortcut(keys);
}

void SheetButton::paintEvent(QPaintEvent* event) {
  QPushButton::paintEvent(event);
  if (!Sheet::showsFocus(*this)) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(palette().color(QPalette::ButtonText), 2));
  painter.drawRoundedRect(QRectF(rect()).adjusted(4, 4, -4, -4), 7, 7);
}

}  // namespace qv_commons::desktop
