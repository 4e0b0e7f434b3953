#include "qv_commons/platform/presentation.h"

#include <algorithm>
#include <utility>

#include "qv_commons/platform/fatal_error.h"

namespace qv_commons {

PresentationNode::~PresentationNode() {
  for (const auto& presented : presented_) nodeOf(*presented).presenter_ = nullptr;
}

void PresentationNode::presentViewController(std::shared_ptr<ViewController> controller,
                                             bool animated, Completion completion) {
  PresentationNode& node = nodeOf(*controller);
  if (node.presenter_ != nullptr) fatalError("a view controller is presented twice");
  node.presenter_ = this;
  presented_.push_back(std::move(controller));
  node.show(animated);
  if (completion) afterTransition(std::move(completion));
}

void PresentationNode::dismissViewController(bool animated, Completion completion) {
  Controllers taken;
  if (!presented_.empty()) {
    takeAllAbove(taken);
  } else if (presenter_ != nullptr) {
    taken = presenter_->takeAway(*this);
  } else {
    return;
  }
  for (auto top = taken.rbegin(); top != taken.rend(); ++top) {
    nodeOf(**top).presenter_ = nullptr;
    nodeOf(**top).hide(animated);
  }
  afterTransition([taken = std::move(taken), completion = std::move(completion)] {
    if (completion) completion();
  });
}

ViewController* PresentationNode::presentedViewController() const {
  return presented_.empty() ? nullptr : presented_.back().get();
}

ViewController* PresentationNode::presentingViewController() const {
  return presenter_ == nullptr ? nullptr : &presenter_->controller();
}

std::shared_ptr<ViewController> PresentationNode::retained() {
  return {shared_from_this(), &controller()};
}

// One process has one adapter, so every native that comes in is one of its nodes.
PresentationNode& PresentationNode::nodeOf(const ViewController& controller) {
  return static_cast<PresentationNode&>(controller.native());
}

PresentationNode::Controllers PresentationNode::takeAway(const PresentationNode& presented) {
  const auto found =
      std::find_if(presented_.begin(), presented_.end(),
                   [&](const auto& controller) { return &nodeOf(*controller) == &presented; });
  Controllers taken{std::move(*found)};
  presented_.erase(found);
  return taken;
}

void PresentationNode::takeAllAbove(Controllers& taken) {
  for (std::shared_ptr<ViewController>& controller : std::exchange(presented_, {})) {
    PresentationNode& node = nodeOf(*controller);
    taken.push_back(std::move(controller));
    node.takeAllAbove(taken);
  }
}

}  // namespace qv_commons
