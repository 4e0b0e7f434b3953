#include "qv_commons/platform/presentation.h"

#include <algorithm>
#include <iterator>

#include "qv_commons/platform/fatal_error.h"

namespace qv_commons {

void Presentations::dismissAll() {
  while (!current_.empty()) {
    NativeController::of(*current_.front().presenter).NativeController::dismiss(false, nullptr);
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
  const auto stays = [&](const Presentations::Presentation& presentation) {
    const NativeController& native = of(*presentation.presented);
    return isBelow ? !native.isAbove(*this) : &native != this;
  };
  const auto removed = std::stable_partition(presentations_.begin(), presentations_.end(), stays);
  std::vector kept(std::make_move_iterator(removed), std::make_move_iterator(presentations_.end()));
  presentations_.erase(removed, presentations_.end());
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
