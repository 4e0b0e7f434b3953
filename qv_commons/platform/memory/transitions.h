// The presentations and dismissals of the memory adapter, and when their completions run: at once,
// or by hand.
//
//     qv_commons::memory::Transitions transitions;
//     transitions.setByHand(true);
//     transitions.finish([] {});  // waits
//     transitions.runAll();       // runs it
#pragma once

#include <cstddef>
#include <deque>

#include "qv_commons/export.h"
#include "qv_commons/platform/presentation.h"

namespace qv_commons::memory {

class QV_COMMONS_EXPORT Transitions {
 public:
  // By hand, completions wait for `runNext` or `runAll`; otherwise, and at first, they run at once.
  void setByHand(bool byHand) { byHand_ = byHand; }

  void finish(Completion completion);

  std::size_t waiting() const { return waiting_.size(); }
  void runNext();  // the oldest; nothing if none waits
  void runAll();   // including those that are added meanwhile

  Presentations& presentations() { return presentations_; }

 private:
  Presentations presentations_;
  bool byHand_ = false;
  std::deque<Completion> waiting_;
};

}  // namespace qv_commons::memory
