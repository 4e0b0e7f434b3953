#include "qv_commons/platform/presentation.h"

#include <algorithm>
#include <utility>

#include "qv_commons/platform/fatal_error.h"

namespace qv_commons {

void dismissAll(Presentations& presentations) {
  while (!presentations.empty()) {
    NativeController::of(*presentations.front().presenter)
        .NativeController::dismiss(false, nullptr);
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
  presented_ = controller.get();
  presentations_.push_back({controller_->retained(), std::move(controller)});
  native.show(animated);
  if (completion) afterTransition(std::move(completion));
}

void NativeController::dismiss(bool animated, Completion completion) {
  const bool isBelow = presented_ != nullptr;
  Presentations kept;
  for (auto at = presentations_.begin(); at != presentations_.end();) {
    const NativeController& native = of(*at->presented);
    const bool goes = isBelow ? native.isAbove(*this) : &native == this;
    if (goes) kept.push_back(std::move(*at));
    at = goes ? presentations_.erase(at) : at + 1;
  }
  if (kept.empty()) return;
  for (auto top = kept.rbegin(); top != kept.rend(); ++top) {
    NativeController& native = of(*top->presented);
    native.leave();
    native.hide(animated);
  }
  afterTransition([kept = std::move(kept), completion = std::move(completion)] {
    if (completion) completion();
  });
}

bool NativeController::isAbove(const NativeController& other) const {
  return presenter_ != nullptr && (presenter_ == &other || presenter_->isAbove(other));
}

void NativeController::leave() {
  NativeController& presenter = *std::exchange(presenter_, nullptr);
  const auto last = std::find_if(presentations_.rbegin(), presentations_.rend(), [&](auto& other) {
    return other.presenter.get() == presenter.controller_;
  });
  presenter.presented_ = last == presentations_.rend() ? nullptr : last->presented.get();
}

}  // namespace qv_commons
