#include "qv_commons/platform/memory/transitions.h"

#include <utility>

namespace qv_commons::memory {

void Transitions::finish(Completion completion) {
  if (byHand_) {
    waiting_.push_back(std::move(completion));
  } else {
    completion();
  }
}

void Transitions::runNext() {
  if (waiting_.empty()) return;
  const Completion next = std::move(waiting_.front());
  waiting_.pop_front();
  next();
}

void Transitions::runAll() {
  while (!waiting_.empty()) runNext();
}

}  // namespace qv_commons::memory
