// A view controller that knows only the one it presents: chains of any length are made of them, at
// any address.
#pragma once

#include <memory>

#include "qv_commons/platform/view_controller.h"

namespace qv_commons::test {

class ChainLink : public ViewController {
 public:
  ChainLink* next() const { return next_; }
  void present(ChainLink& next) { next_ = &next; }

  void presentViewController(std::shared_ptr<ViewController>, bool, Completion) override {}
  void dismissViewController(bool, Completion) override {}
  void setModalInPresentation(bool) override {}
  void setOverrideUserInterfaceStyle(UserInterfaceStyle) override {}
  std::shared_ptr<ViewController> retained() override { return nullptr; }
  ViewController* presentedViewController() const override { return next_; }
  ViewController* presentingViewController() const override { return nullptr; }
  ViewController* childViewController() const override { return nullptr; }

 private:
  ChainLink* next_ = nullptr;
};

}  // namespace qv_commons::test
