// When the completions of presentations and dismissals run: at once, or by hand.
//
//     qv_commons::memory::Transitions transitions;
//     transitions.setByHand(true);
//     transitions.finish([] {});  // waits
//     transitions.runAll();       // runs it
#pragma once

#include <cstddef>
#include <deque>

#include "qv_commons/platform/view_controller.h"

namespace qv_commons::memory {

class Transitions {
 public:
  // By hand, completions wait for `runNext` or `runAll`; otherwise, and at first, they run at once.
  void setByHand(bool byHand) { byHand_ = byHand; }

  void finish(Completion completion);

  std::size_t waiting() const { return waiting_.size(); }
  void runNext();  // the oldest; nothing where none waits
  void runAll();   // those that come up meanwhile included

 private:
  bool byHand_ = false;
  std::deque<Completion> waiting_;
};

}  // namespace qv_commons::memory
