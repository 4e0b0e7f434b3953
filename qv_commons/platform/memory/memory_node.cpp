#include "qv_commons/platform/memory/memory_node.h"

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

MemoryNode::MemoryNode(Record& record, Transitions& transitions, std::string name,
                       ViewControllerKind kind)
    : PresentationNode(kind), record_(record), transitions_(transitions), name_(std::move(name)) {}

MemoryNode& MemoryNode::of(const ViewController& controller) {
  return static_cast<MemoryNode&>(controller.native());
}

bool MemoryNode::swipeAway() {
  if (!isOnScreen() || modalInPresentation_) return false;
  leave(nullptr);
  return true;
}

void MemoryNode::leave(Completion completion) {
  PresentationNode::dismissViewController(true, std::move(completion));
}

void MemoryNode::presentViewController(std::shared_ptr<ViewController> controller, bool animated,
                                       Completion completion) {
  record_.add(name_, ".presentViewController ", of(*controller).name(),
              transitionText(animated, completion));
  PresentationNode::presentViewController(std::move(controller), animated, std::move(completion));
}

void MemoryNode::dismissViewController(bool animated, Completion completion) {
  record_.add(name_, ".dismissViewController", transitionText(animated, completion));
  PresentationNode::dismissViewController(animated, std::move(completion));
}

void MemoryNode::setModalInPresentation(bool modal) {
  record_.add(name_, ".setModalInPresentation ", modal ? "true" : "false");
  modalInPresentation_ = modal;
}

void MemoryNode::setOverrideUserInterfaceStyle(UserInterfaceStyle style) {
  record_.add(name_, ".setOverrideUserInterfaceStyle ", nameOf(style));
  overrideStyle_ = style;
}

void MemoryNode::afterTransition(Completion transitionDone) {
  transitions_.finish(std::move(transitionDone));
}

}  // namespace qv_commons::memory
