#include "qv_commons/platform/desktop/desktop_node.h"

#include <QEvent>
#include <QKeyEvent>
#include <QMetaObject>
#include <QWindow>
#include <utility>

#include "qv_commons/platform/desktop/desktop_screen.h"

namespace qv_commons::desktop {
namespace {

class HostNode final : public DesktopNode {
 public:
  HostNode(SharedContext context, QWidget& hostWindow) : DesktopNode(std::move(context)) {
    attachWindow(*hostWindow.window());
  }

  ViewController& controller() override { return controller_; }

 private:
  ViewController controller_{*this};
};

bool isEscape(const QEvent& event) {
  return event.type() == QEvent::KeyPress &&
         static_cast<const QKeyEvent&>(event).matches(QKeySequence::Cancel);
}

}  // namespace

bool DesktopNode::Watcher::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ApplicationPaletteChange ||
      event->type() == QEvent::ApplicationFontChange) {
    node_.redress();
  }
  const bool leaves = event->type() == QEvent::Close || isEscape(*event);
  if (!leaves || node_.presenter() == nullptr) return QObject::eventFilter(watched, event);
  event->ignore();
  node_.userLeaves();
  return true;
}

void DesktopNode::attachWindow(QWidget& window) {
  window_ = &window;
  window.installEventFilter(&watcher_);
}

void DesktopNode::setOverrideUserInterfaceStyle(UserInterfaceStyle style) {
  overrideStyle_ = style;
  redress();
}

void DesktopNode::redress() {
  const UserInterfaceStyle wish = overrideStyle_ != UserInterfaceStyle::unspecified
                                      ? overrideStyle_
                                      : context_->settings.userInterfaceStyle;
  if (window_ != nullptr) dress(currentUserInterfaceStyle(wish));
}

void DesktopNode::place(QWidget& window, const QWidget& presenterWindow) {
  window.setGeometry(presenterWindow.geometry());
}

void DesktopNode::userLeaves() {
  if (!modalInPresentation_) PresentationNode::dismissViewController(true, nullptr);
}

void DesktopNode::show(bool) {
  if (window_ == nullptr) return;
  redress();
  window_->setWindowModality(Qt::WindowModal);
  // The window has no parent, which would own it and dress it; the system learns from the transient
  // parent alone which window it belongs to and blocks.
  const QWidget* below = static_cast<DesktopNode*>(presenter())->window();
  if (below != nullptr) {
    place(*window_, *below);
    window_->winId();
    window_->windowHandle()->setTransientParent(below->windowHandle());
  }
  window_->show();
  window_->activateWindow();
}

void DesktopNode::hide(bool) {
  if (window_ != nullptr) window_->hide();
}

void DesktopNode::afterTransition(Completion transitionDone) {
  QMetaObject::invokeMethod(&context_->transitions, std::move(transitionDone),
                            Qt::QueuedConnection);
}

std::shared_ptr<ViewController> makeHostViewController(SharedContext context, QWidget& hostWindow) {
  auto node = std::make_shared<HostNode>(std::move(context), hostWindow);
  ViewController& controller = node->controller();
  return {std::move(node), &controller};
}

}  // namespace qv_commons::desktop
