#include "qv_commons/platform/desktop/sheet.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QMenuBar>
#include <QPainter>
#include <QScrollArea>
#include <QShortcut>
#include <QToolTip>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "qv_commons/platform/desktop/desktop_style.h"
#include "qv_commons/platform/desktop/sheet_accessibility.h"
#include "qv_commons/platform/desktop/sheet_guard.h"
#include "qv_commons/platform/desktop/style_boundary.h"
#include "qv_commons/platform/desktop/thin_scroll_bar.h"

namespace qv_commons::desktop {
namespace {

constexpr int kWidestPhone = 600;
constexpr int kPanelWidth = 560;
constexpr int kPanelHeight = 720;
constexpr int kCardWidth = 290;
constexpr int kLeastMargin = 24;
constexpr QSize kSmallestContent(320, 320);  // scrolled where there is less room
constexpr double kRadius = 12;
constexpr QColor kDimmed(0, 0, 0, 115);

// By Escape: for that a menu bar gives the focus back, which it does not for being closed.
void endMenus(const QWidget& window) {
  QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
  while (QWidget* popup = QApplication::activePopupWidget()) {
    QCoreApplication::sendEvent(popup, &escape);
    if (QApplication::activePopupWidget() == popup && !popup->close()) break;
  }
  if (auto* menus = qobject_cast<QMenuBar*>(window.focusWidget())) {
    QCoreApplication::sendEvent(menus, &escape);
  }
}

// Such a child lies over every widget that has no window of the system's for itself.
bool hasNativeChild(const QWidget& window) {
  const auto widgets = window.findChildren<QWidget*>();
  return std::any_of(widgets.begin(), widgets.end(), [](const QWidget* widget) {
    return !widget->isWindow() && widget->testAttribute(Qt::WA_NativeWindow);
  });
}

}  // namespace

Sheet& Sheet::show(QWidget* window, std::shared_ptr<QWidget> content, Form form) {
  if (window != nullptr) endMenus(*window);
  QToolTip::hideText();
  const QPointer<QWidget> first = content->focusWidget();
  auto* sheet = new Sheet(std::move(content), form);
  SheetGuard::instance().add(*sheet);
  if (window == nullptr) {
    sheet->resize(kPanelWidth, kPanelHeight);
  } else {
    sheet->hadFocusBefore_ = window->focusWidget() != nullptr;
    sheet->focusBefore_ = window->focusWidget();
    SheetGuard::instance().takeMenusIn(*window);
    sheet->setParent(window, Qt::SubWindow);  // Tab stays in a sub-window
    if (hasNativeChild(*window)) sheet->winId();
    sheet->fit();
    sheet->raise();
  }
  if (first != nullptr) sheet->setFocusProxy(first);
  sheet->QWidget::show();
  if (window == nullptr) {
    sheet->activateWindow();
  } else {
    forgetCovered(*window);
  }
  sheet->takeFocus();
  if (window != nullptr) announceTop(*window);
  return *sheet;
}

Sheet::Sheet(std::shared_ptr<QWidget> content, Form form)
    : content_(std::move(content)), form_(form) {
  setCursor(Qt::ArrowCursor);
  setAttribute(Qt::WA_NoMousePropagation);
  setWindowTitle(content_->windowTitle());
  setAccessibleName(content_->windowTitle());
  setAccessibleDescription(content_->accessibleDescription());
  panel_ = new StyleBoundary(this);
  dressAsApplication();
  auto* scroll = new QScrollArea(panel_);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setFocusPolicy(Qt::NoFocus);
  scroll->setWidgetResizable(true);
  scroll->setVerticalScrollBar(new ThinScrollBar(Qt::Vertical));
  scroll->setHorizontalScrollBar(new ThinScrollBar(Qt::Horizontal));
  scroll->setCornerWidget(new QWidget);  // which shows nothing between the bars
  scroll->viewport()->setAutoFillBackground(false);
  if (form_ == Form::panel) content_->setMinimumSize(kSmallestContent);
  scroll->setWidget(content_.get());
  content_->setAutoFillBackground(false);
  auto* layout = new QVBoxLayout(panel_);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(scroll);
}

// The content is its controller's; only what is around it goes with the window.
Sheet::~Sheet() {
  SheetGuard::instance().remove(*this);
  if (isAncestorOf(content_.get())) {
    content_->hide();
    content_->setParent(nullptr);
  }
}

void Sheet::dismiss() {
  QWidget* window = parentWidget();
  Sheet* upper = window == nullptr ? nullptr : SheetGuard::instance().above(*this);
  SheetGuard::instance().remove(*this);
  if (window != nullptr) SheetGuard::instance().giveMenusBack(*window);
  if (window != nullptr) forgetCovered(*window);
  if (upper != nullptr) {
    upper->focusBefore_ = focusBefore_;
    upper->hadFocusBefore_ = hadFocusBefore_;
  } else if (window != nullptr) {
    giveBackFocus();
  }
  hide();
  deleteLater();
  if (window != nullptr) announceTop(*window);
}

void Sheet::giveBackFocus() {
  QWidget* focused = parentWidget()->focusWidget();
  if (focused != this && !isAncestorOf(focused)) return;
  // A line edit keeps its selection for this reason.
  if (focusBefore_ != nullptr) {
    focusBefore_->setFocus(Qt::ActiveWindowFocusReason);
  } else if (!hadFocusBefore_ && focused != nullptr) {
    focused->clearFocus();
  }
}

void Sheet::takeFocus() {
  setFocus(Qt::ActiveWindowFocusReason);
  if (focusProxy() == nullptr) focusNextChild();
}

void Sheet::setGround(const QColor& color) {
  ground_ = color;
  setAttribute(Qt::WA_OpaquePaintEvent, isOpaque());
  update();
}

// What lies beneath need not be painted then.
bool Sheet::isOpaque() const {
  return panel_->geometry() == rect() && ground_.alpha() == 255;
}

// What the host has set on its window is not for the sheet.
void Sheet::dressAsApplication() {
  QPalette palette = QApplication::palette();
  palette.setResolveMask(~QPalette::ResolveMask{0});
  QFont font = QApplication::font();
  font.setResolveMask(QFont::AllPropertiesResolved);
  panel_->setPalette(palette);
  panel_->setFont(font);
}

Sheet* Sheet::topOf(const QWidget& window) {
  return SheetGuard::instance().topOf(window);
}

bool Sheet::isCovered(const QObject& object) {
  if (const auto* action = qobject_cast<const QAction*>(&object)) {
    const QList<QObject*> users = action->associatedObjects();
    return !users.isEmpty() && std::all_of(users.begin(), users.end(),
                                           [](const QObject* user) { return isCovered(*user); });
  }
  const QObject* place = &object;
  while (place != nullptr && !place->isWidgetType()) place = place->parent();
  for (auto* widget = static_cast<const QWidget*>(place); widget != nullptr;
       widget = widget->parentWidget()) {
    const auto* sheet = qobject_cast<const Sheet*>(widget);
    if (sheet != nullptr && !sheet->isWindow()) return topOf(*sheet->parentWidget()) != sheet;
    // A menu belongs to what opens it, and so does a tool window, like a dock widget that floats.
    const bool belongs = widget->windowType() == Qt::Popup || widget->windowType() == Qt::Tool;
    if (widget->isWindow() && !belongs) return topOf(*widget) != nullptr;
  }
  return false;
}

bool Sheet::showsFocus(const QWidget& widget) {
  return widget.hasFocus() && SheetGuard::instance().isKeyboardInUse();
}

bool Sheet::event(QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QWidget::event(event);
  // No key goes on to the window: neither Tab where nothing takes the focus, nor the host's.
  if (static_cast<QKeyEvent*>(event)->matches(QKeySequence::Cancel)) {
    emit left();
  } else {
    QWidget::event(event);
  }
  event->accept();
  return true;
}

// The system's own request, when the application quits, is not refused.
void Sheet::closeEvent(QCloseEvent* event) {
  if (!event->spontaneous()) return;
  event->ignore();
  emit left();
}

void Sheet::fit() {
  setGeometry(parentWidget()->rect());
}

QRect Sheet::panelPlace() const {
  const auto scaled = [](int length) { return qRound(length * textScale()); };
  const QSize room = size() - QSize(2 * kLeastMargin, 2 * kLeastMargin);
  QRect place = rect();
  if (form_ == Form::card) {
    const int width = std::min(scaled(kCardWidth), this->width() - kLeastMargin);
    const int height = content_->layout()->totalHeightForWidth(width);
    content_->setMinimumSize(0, height);
    place.setSize({width, std::min(height, room.height())});
  } else if (width() > kWidestPhone) {
    place.setSize(QSize(scaled(kPanelWidth), scaled(kPanelHeight)).boundedTo(room));
  }
  place.moveCenter(rect().center());
  return place;
}

void Sheet::resizeEvent(QResizeEvent*) {
  panel_->setGeometry(panelPlace());
  setAttribute(Qt::WA_OpaquePaintEvent, isOpaque());
}

void Sheet::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  // A window of the system's own has nothing beneath it to be seen through.
  if (isWindow() || internalWinId() != 0) painter.fillRect(rect(), Qt::darkGray);
  const bool isFilled = panel_->geometry() == rect();
  if (!isFilled) painter.fillRect(rect(), kDimmed);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ground_);
  const double radius = isFilled ? 0 : kRadius;
  painter.drawRoundedRect(panel_->geometry(), radius, radius);
}

QObject* Sheet::shortcutFor(const QKeySequence& keys) const {
  for (QShortcut* shortcut : findChildren<QShortcut*>()) {
    if (shortcut->isEnabled() && shortcut->keys().contains(keys)) return shortcut;
  }
  for (QWidget* widget : findChildren<QWidget*>()) {
    if (!widget->isVisible() || !widget->isEnabled()) continue;
    const auto* button = qobject_cast<QAbstractButton*>(widget);
    if (button != nullptr && button->shortcut() == keys) return widget;
    for (QAction* action : widget->actions()) {
      if (action->isEnabled() && action->shortcuts().contains(keys)) return action;
    }
  }
  return nullptr;
}

}  // namespace qv_commons::desktop
