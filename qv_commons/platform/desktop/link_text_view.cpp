#include "qv_commons/platform/desktop/link_text_view.h"

#include <QEvent>
#include <QFocusEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTimer>
#include <cmath>
#include <memory>

#include "qv_commons/platform/desktop/sheet.h"
#include "qv_commons/platform/desktop/view_accessibility.h"

namespace qv_commons::desktop {

namespace {

constexpr int kReach = 22;  // half of what a finger hits
constexpr int kSmallestTextWidth = 120;

QString withoutMarks(QString text) {
  using View = LinkTextView;
  for (const QChar mark : {View::kFiller, View::kIsolate, View::kEndOfIsolate}) text.remove(mark);
  return text;
}

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
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::LinksAccessibleByMouse);
  document()->setDocumentMargin(0);
  viewport()->setAutoFillBackground(false);
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
  connect(this, &QTextEdit::textChanged, this, [this] {
    readLinks();
    updateGeometry();
  });
  connect(this, &QTextBrowser::anchorClicked, this,
          [this](const QUrl& target) { emit linkPressed(target.toString()); });
}

// Neighbouring pieces with one target are one link.
void LinkTextView::readLinks() {
  links_.clear();
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
    for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
      const QTextFragment text = piece.fragment();
      const QString target = text.charFormat().anchorHref();
      if (target.isEmpty()) continue;
      const int start = text.position();
      const bool goesOn =
          !links_.empty() && links_.back().end == start && links_.back().target == target;
      if (!goesOn) links_.push_back({start, start, target, {}});
      links_.back().end += text.length();
      links_.back().words += text.text().remove(kFiller);
    }
  }
  if (focused_ >= static_cast<int>(links_.size())) focused_ = kNone;
  setFocusPolicy(links_.empty() ? Qt::ClickFocus : Qt::StrongFocus);
  forgetLinks(*this);
}

QString LinkTextView::seenText() const {
  return withoutMarks(toPlainText());
}

// Plain: the targets of the links mean nothing elsewhere.
QMimeData* LinkTextView::createMimeDataFromSelection() const {
  auto copied = std::make_unique<QMimeData>();
  copied->setText(withoutMarks(textCursor().selection().toPlainText()));
  return copied.release();
}

std::vector<QRect> LinkTextView::linesOf(const Link& link) const {
  std::vector<QRect> lines;
  QTextCursor cursor(document());
  for (int place = link.start; place < link.end; ++place) {
    cursor.setPosition(place);
    const QRect before = cursorRect(cursor);
    cursor.setPosition(place + 1);
    const QRect after = cursorRect(cursor);
    const QRect letter = after.top() == before.top() ? before.united(after) : before;
    const bool isOnLine = !lines.empty() && lines.back().top() == letter.top();
    if (isOnLine) {
      lines.back() = lines.back().united(letter);
    } else {
      lines.push_back(letter);
    }
  }
  return lines;
}

QRect LinkTextView::linkPlace(int link) const {
  QRect around;
  for (const QRect& line : linesOf(links_[static_cast<std::size_t>(link)])) around |= line;
  return around;
}

int LinkTextView::linkAt(const QPoint& place) const {
  const QString target = anchorAt(place);
  for (std::size_t link = 0; link < links_.size(); ++link) {
    if (links_[link].target == target) return static_cast<int>(link);
  }
  return kNone;
}

void LinkTextView::focusLink(int link) {
  setFocus(Qt::OtherFocusReason);
  moveFocus(link);
}

void LinkTextView::pressLink(int link) {
  emit linkPressed(links_[static_cast<std::size_t>(link)].target);
}

// Reported later: QWidget::setFocus() reports the widget as a whole when all is done, and the last
// one counts.
void LinkTextView::moveFocus(int link) {
  focused_ = link;
  viewport()->update();
  QTimer::singleShot(0, this, [this] { reportLinkFocus(*this); });
}

bool LinkTextView::focusNextPrevChild(bool isNext) {
  const int next = focused_ + (isNext ? 1 : -1);
  const bool isThere =
      hasFocus() && focused_ != kNone && next >= 0 && next < static_cast<int>(links_.size());
  // Not QTextBrowser's, which goes to links of its own.
  if (!isThere) return QWidget::focusNextPrevChild(isNext);  // NOLINT(bugprone-parent-virtual-call)
  moveFocus(next);
  return true;
}

void LinkTextView::keyPressEvent(QKeyEvent* event) {
  const bool isPress = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                       event->key() == Qt::Key_Space;
  if (!isPress || focused_ == kNone) return QTextBrowser::keyPressEvent(event);
  event->accept();
  pressLink(focused_);
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
  return {kSmallestTextWidth, 0};
}

void LinkTextView::changeEvent(QEvent* event) {
  QTextBrowser::changeEvent(event);
  if (event->type() == QEvent::FontChange) updateGeometry();
}

void LinkTextView::paintEvent(QPaintEvent* event) {
  QTextBrowser::paintEvent(event);
  if (focused_ == kNone || !Sheet::showsFocus(*this)) return;
  QPainter painter(viewport());
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(palette().color(QPalette::Text), 2));
  for (const QRect& line : linesOf(links_[static_cast<std::size_t>(focused_)])) {
    painter.drawRoundedRect(QRectF(line).adjusted(-1, 1, 1, -1), 4, 4);
  }
}

void LinkTextView::mouseReleaseEvent(QMouseEvent* event) {
  const QPoint place = event->position().toPoint();
  const bool isSelecting = textCursor().hasSelection();
  const bool isBeside = event->button() == Qt::LeftButton && anchorAt(place).isEmpty();
  QTextBrowser::mouseReleaseEvent(event);
  if (!isBeside || isSelecting) return;
  const QString link = linkNear(place);
  if (!link.isEmpty()) emit linkPressed(link);
}

// By Tab to the first link, by Shift and Tab to the last one; back to where it was when the window
// becomes active again.
void LinkTextView::focusInEvent(QFocusEvent* event) {
  QTextBrowser::focusInEvent(event);
  if (links_.empty()) return;
  if (event->reason() == Qt::TabFocusReason) moveFocus(0);
  if (event->reason() == Qt::BacktabFocusReason) moveFocus(static_cast<int>(links_.size()) - 1);
}

void LinkTextView::focusOutEvent(QFocusEvent* event) {
  QTextBrowser::focusOutEvent(event);
  if (event->reason() != Qt::ActiveWindowFocusReason) focused_ = kNone;
  viewport()->update();
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
