#include "qv_commons/platform/desktop/desktop_controller.h"

#include <QEvent>
#include <QKeyEvent>
#include <QMetaObject>
#include <QWindow>
#include <utility>

namespace qv_commons::desktop {
namespace {

bool isEscape(const QEvent& event) {
  return event.type() == QEvent::KeyPress &&
         static_cast<const QKeyEvent&>(event).matches(QKeySequence::Cancel);
}

}  // namespace

bool DesktopController::Watcher::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ApplicationPaletteChange ||
      event->type() == QEvent::ApplicationFontChange) {
    controller_.redress();
  }
  const bool leaves = event->type() == QEvent::Close || isEscape(*event);
  if (!leaves || controller_.presenter() == nullptr) return QObject::eventFilter(watched, event);
  event->ignore();
  controller_.userLeaves();
  return true;
}

void DesktopController::attachWindow(QWidget& window) {
  window_ = &window;
  window.installEventFilter(&watcher_);
}

void DesktopController::setOverrideUserInterfaceStyle(UserInterfaceStyle style) {
  overrideStyle_ = style;
  redress();
}

void DesktopController::redress() {
  const UserInterfaceStyle wish = overrideStyle_ != UserInterfaceStyle::unspecified
                                      ? overrideStyle_
                                      : context_->settings.userInterfaceStyle;
  if (window_ != nullptr) dress(context_->look.style(wish));
}

void DesktopController::place(QWidget& window, const QWidget& presenterWindow) {
  window.setGeometry(presenterWindow.geometry());
}

void DesktopController::userLeaves() {
  if (!modalInPresentation_) dismiss(true, nullptr);
}

void DesktopController::show(bool) {
  if (window_ == nullptr) return;
  redress();
  window_->setWindowModality(Qt::WindowModal);
  // The window has no parent, which would own it and dress it; the system learns from the transient
  // parent alone which window it belongs to and blocks.
  const QWidget* below = static_cast<DesktopController*>(presenter())->window();
  if (below != nullptr) {
    place(*window_, *below);
    window_->winId();
    window_->windowHandle()->setTransientParent(below->windowHandle());
  }
  window_->show();
  window_->activateWindow();
}

void DesktopController::hide(bool) {
  if (window_ != nullptr) window_->hide();
}

void DesktopController::afterTransition(Completion transitionDone) {
  QMetaObject::invokeMethod(&context_->transitions, std::move(transitionDone),
                            Qt::QueuedConnection);
}

}  // namespace qv_commons::desktop
