#include "qv_commons/platform/memory/memory_controller.h"

#include <utility>

namespace qv_commons::memory {
namespace {

std::string_view nameOf(UserInterfaceStyle style) {
  switch (style) {
    case UserInterfaceStyle::light:
      return "light";
    case UserInterfaceStyle::dark:
      return "dark";
    case UserInterfaceStyle::unspecified:
      break;
  }
  return "unspecified";
}

std::string_view transitionText(bool animated, const Completion& completion) {
  if (animated) return completion ? " animated, with completion" : " animated, no completion";
  return completion ? " at once, with completion" : " at once, no completion";
}

}  // namespace

MemoryController& MemoryController::of(ViewController& controller) {
  return static_cast<MemoryController&>(NativeController::of(controller));
}

bool MemoryController::swipeAway() {
  if (!isOnScreen() || modalInPresentation_) return false;
  NativeController::dismiss(true, nullptr);
  return true;
}

void MemoryController::present(std::shared_ptr<ViewController> controller, bool animated,
                               Completion completion) {
  record_.add(name_, ".presentViewController ", of(*controller).name(),
              transitionText(animated, completion));
  NativeController::present(std::move(controller), animated, std::move(completion));
}

void MemoryController::dismiss(bool animated, Completion completion) {
  record_.add(name_, ".dismissViewController", transitionText(animated, completion));
  NativeController::dismiss(animated, std::move(completion));
}

void MemoryController::setModalInPresentation(bool modal) {
  record_.add(name_, ".setModalInPresentation ", modal ? "true" : "false");
  modalInPresentation_ = modal;
}

void MemoryController::setOverrideUserInterfaceStyle(UserInterfaceStyle style) {
  record_.add(name_, ".setOverrideUserInterfaceStyle ", nameOf(style));
  overrideStyle_ = style;
}

void MemoryController::afterTransition(Completion transitionDone) {
  transitions_.finish(std::move(transitionDone));
}

}  // namespace qv_commons::memory
