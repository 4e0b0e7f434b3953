// What a screen reader learns of the screens' own widgets: links are links in their text, wheels
// are spin boxes of a group.
#pragma once

#include <QString>

class QAccessibleInterface;
class QWidget;

namespace qv_commons::desktop {

class LinkTextView;
class Wheel;

// The interface of a widget of ours; null for every other.
QAccessibleInterface* makeAccessibleView(QWidget& widget);

// Tells that a link of `text` has the focus now, that the links are others now, and that a wheel
// was turned on from the row that read `before`.
void reportLinkFocus(const LinkTextView& text);
void forgetLinks(const LinkTextView& text);
void reportTurn(Wheel& wheel, const QString& before);

}  // namespace qv_commons::desktop
