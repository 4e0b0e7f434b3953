// What a screen reader learns of sheets: a sheet is a dialog named by its header, and the only
// thing in its window; and what is announced wherever the keyboard's focus is.
#pragma once

class QString;
class QWidget;

namespace qv_commons::desktop {

// Once, after the QApplication is made, whose own factory would else come first.
void installAccessibility();

// What a sheet covers leaves the tree, or comes back: to be called as soon as it is covered or free
// and before the focus moves, else a reader hears of the old ones.
void forgetCovered(QWidget& window);

// Tells that another sheet, or none, is on top; to be called when the focus has moved.
void announceTop(QWidget& window);

// Reads `text` out.
void announce(const QString& text);

}  // namespace qv_commons::desktop
