#include "qv_commons/platform/desktop/desktop_controller.h"

#include <QMetaObject>
#include <utility>

namespace qv_commons::desktop {

void DesktopController::setOverrideUserInterfaceStyle(UserInterfaceStyle style) {
  requestedStyle_ = style;
  restyle();
}

void DesktopController::restyle() {
  const bool isPinned = requestedStyle_ != UserInterfaceStyle::unspecified;
  dress(context_->look.style(isPinned ? requestedStyle_ : context_->settings.userInterfaceStyle));
}

QWidget* DesktopController::presenterWindow() const {
  return presenter() == nullptr ? nullptr : static_cast<DesktopController*>(presenter())->window();
}

void DesktopController::userLeaves() {
  if (!modalInPresentation_) dismiss(true, nullptr);
}

void DesktopController::later(Completion action) {
  QMetaObject::invokeMethod(
      &context_->transitions,
      [this, weak = controller().weak_from_this(), action = std::move(action)] {
        const std::shared_ptr<ViewController> self = weak.lock();
        if (self != nullptr && presenter() != nullptr) action();
      },
      Qt::QueuedConnection);
}

void DesktopController::afterTransition(Completion transitionDone) {
  QMetaObject::invokeMethod(&context_->transitions, std::move(transitionDone),
                            Qt::QueuedConnection);
}

}  // namespace qv_commons::desktop
