#include "qv_commons/platform/desktop/link_text_view.h"

#include <QEvent>
#include <QFocusEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTextDocument>
#include <cmath>
#include <memory>

namespace qv_commons::desktop {

namespace {

constexpr int kReach = 22;  // half of what a finger hits
constexpr int kSmallestWidth = 120;

int heightOf(const QTextDocument& document) {
  return static_cast<int>(std::ceil(document.size().height()));
}

}  // namespace

LinkTextView::LinkTextView(QWidget* parent) : QTextBrowser(parent) {
  setOpenLinks(false);
  setFrameShape(QFrame::NoFrame);
  setContextMenuPolicy(Qt::NoContextMenu);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setTextInteractionFlags(Qt::TextBrowserInteraction);
  document()->setDocumentMargin(0);
  viewport()->setAutoFillBackground(false);
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
  connect(this, &QTextEdit::textChanged, this, [this] { updateGeometry(); });
}

int LinkTextView::heightForWidth(int width) const {
  if (document()->textWidth() == width) return heightOf(*document());
  // A copy: laying out the document itself would move what is on the screen.
  const std::unique_ptr<QTextDocument> copy(document()->clone());
  copy->setDefaultFont(font());
  copy->setTextWidth(width);
  return heightOf(*copy);
}

// The height follows from the width alone.
QSize LinkTextView::sizeHint() const {
  return minimumSizeHint();
}

QSize LinkTextView::minimumSizeHint() const {
  return {kSmallestWidth, 0};
}

void LinkTextView::changeEvent(QEvent* event) {
  QTextBrowser::changeEvent(event);
  if (event->type() == QEvent::FontChange) updateGeometry();
}

void LinkTextView::paintEvent(QPaintEvent* event) {
  QTextBrowser::paintEvent(event);
  const QTextCursor focused = textCursor();
  if (!hasFocus() || !focused.hasSelection()) return;
  QTextCursor start(document());
  start.setPosition(focused.selectionStart());
  QTextCursor end(document());
  end.setPosition(focused.selectionEnd());
  if (cursorRect(start).top() != cursorRect(end).top()) return;
  const QRect link = cursorRect(start).united(cursorRect(end));
  QPainter painter(viewport());
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(palette().color(QPalette::Text), 2));
  painter.drawRoundedRect(QRectF(link).adjusted(-1, 1, 1, -1), 4, 4);
}

void LinkTextView::mouseReleaseEvent(QMouseEvent* event) {
  const QPoint place = event->position().toPoint();
  const bool isSelecting = textCursor().hasSelection();
  const bool isBeside = event->button() == Qt::LeftButton && anchorAt(place).isEmpty();
  QTextBrowser::mouseReleaseEvent(event);
  if (!isBeside || isSelecting) return;
  const QString link = linkNear(place);
  if (!link.isEmpty()) emit anchorClicked(QUrl(link));
}

// By Tab to the first link, by Shift and Tab to the last one, instead of to the text as a whole.
void LinkTextView::focusInEvent(QFocusEvent* event) {
  QTextBrowser::focusInEvent(event);
  if (event->reason() == Qt::TabFocusReason) focusNextPrevChild(true);
  if (event->reason() == Qt::BacktabFocusReason) focusNextPrevChild(false);
}

// In growing squares around `place`.
QString LinkTextView::linkNear(const QPoint& place) const {
  constexpr int kStep = 4;
  for (int distance = kStep; distance <= kReach; distance += kStep) {
    for (int along = -distance; along <= distance; along += kStep) {
      for (const QPoint& offset : {QPoint(along, -distance), QPoint(along, distance),
                                   QPoint(-distance, along), QPoint(distance, along)}) {
        QString link = anchorAt(place + offset);
        if (!link.isEmpty()) return link;
      }
    }
  }
  return {};
}

}  // namespace qv_commons::desktop
