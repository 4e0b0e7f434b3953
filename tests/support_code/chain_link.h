// A view controller that knows nothing but the one it presents: chains of any length are made of
// them, at any place in memory.
#pragma once

#include <memory>

#include "qv_commons/platform/view_controller.h"

namespace qv_commons::test {

class ChainLink : public NativeViewController {
 public:
  ViewController* controller() { return &controller_; }
  ChainLink* next() const { return next_; }

  void present(ChainLink& next) {
    next_ = &next;
    presented_ = next.controller();
  }

  void presentViewController(std::shared_ptr<ViewController>, bool, Completion) override {}
  void dismissViewController(bool, Completion) override {}
  void setModalInPresentation(bool) override {}
  void setOverrideUserInterfaceStyle(UserInterfaceStyle) override {}
  std::shared_ptr<ViewController> retained() override { return nullptr; }
  ViewController* presentedViewController() const override { return presented_; }
  ViewController* presentingViewController() const override { return nullptr; }
  ViewController* childViewController() const override { return nullptr; }

 private:
  ChainLink* next_ = nullptr;            // for a walk that knows what the controllers are
  ViewController* presented_ = nullptr;  // the same one, as the library sees it
  ViewController controller_{*this};
};

}  // namespace qv_commons::test
