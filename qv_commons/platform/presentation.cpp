#include "qv_commons/platform/presentation.h"

#include "qv_commons/platform/fatal_error.h"

namespace qv_commons {

void Presentations::dismissAll() {
  while (!presenting_.empty()) {
    const std::shared_ptr<ViewController> presenter = presenting_.begin()->second;
    NativeController::of(*presenter).NativeController::dismiss(false, nullptr);
  }
}

NativeController& NativeController::of(ViewController& controller) {
  auto* native = dynamic_cast<NativeController*>(&controller.native());
  if (native == nullptr) fatalError("a view controller belongs to another adapter");
  return *native;
}

void NativeController::present(std::shared_ptr<ViewController> controller, bool animated,
                               Completion completion) {
  NativeController& native = of(*controller);
  if (native.presenter_ != nullptr) fatalError("a view controller is presented twice");
  native.presenter_ = this;
  native.before_ = std::exchange(presented_, std::move(controller));
  presentations_.presenting_.insert_or_assign(this, controller_->retained());
  native.show(animated);
  if (completion) afterTransition(std::move(completion));
}

void NativeController::dismiss(bool animated, Completion completion) {
  Removed removed;
  if (presented_) {
    removeAllPresented(removed);
  } else if (presenter_ != nullptr) {
    presenter_->removePresented(*this, removed);
  } else {
    return;
  }
  for (const auto& screen : removed.screens) of(*screen).hide(animated);
  afterTransition([removed = std::move(removed), completion = std::move(completion)] {
    if (completion) completion();
  });
}

void NativeController::removeAllPresented(Removed& removed) {
  while (presented_) {
    NativeController& last = of(*presented_);
    last.removeAllPresented(removed);
    removePresented(last, removed);
  }
}

void NativeController::removePresented(NativeController& native, Removed& removed) {
  std::shared_ptr<ViewController>* place = &presented_;
  while (&of(**place) != &native) place = &of(**place).before_;
  removed.screens.push_back(std::exchange(*place, std::exchange(native.before_, nullptr)));
  native.presenter_ = nullptr;
  if (presented_) return;
  const auto self = presentations_.presenting_.find(this);
  removed.presenters.push_back(std::move(self->second));
  presentations_.presenting_.erase(self);
}

}  // namespace qv_commons
