// Presentation for adapters whose system has none of its own: who is shown over whom.
//
// An adapter derives from `PresentationNode` and says how a screen is shown and hidden:
//
//     class Window : public qv_commons::PresentationNode {
//       void show(bool) override { /* put it on the screen */ }
//       void hide(bool) override { /* take it away */ }
//       void afterTransition(qv_commons::Completion completion) override { completion(); }
//       // and what the rest of NativeViewController asks for
//     };
//
// Main thread only.
#pragma once

#include <memory>
#include <vector>

#include "qv_commons/platform/view_controller.h"

namespace qv_commons {

class PresentationNode : public NativeViewController,
                         public std::enable_shared_from_this<PresentationNode> {
 public:
  using NativeViewController::NativeViewController;
  ~PresentationNode() override;

  // Presenting over a controller that presents something already puts the new one on top of that;
  // each of them can be dismissed by itself. Presenting what is on the screen already is a fatal
  // error.
  void presentViewController(std::shared_ptr<ViewController> controller, bool animated,
                             Completion completion) override;

  // What is taken away is hidden from the top down and stays alive until `completion` has run.
  void dismissViewController(bool animated, Completion completion) override;

  ViewController* presentedViewController() const override;
  ViewController* presentingViewController() const override;

  // Nodes are held by shared pointers.
  std::shared_ptr<ViewController> retained() override;

 protected:
  // The C++ side of this node.
  virtual ViewController& controller() = 0;

  virtual void show(bool animated) = 0;
  virtual void hide(bool animated) = 0;

  // Runs `transitionDone` when the transition that was just started has ended. Never empty.
  virtual void afterTransition(Completion transitionDone) = 0;

  // The node that this one is shown over, or null.
  PresentationNode* presenter() const { return presenter_; }

 private:
  using Controllers = std::vector<std::shared_ptr<ViewController>>;

  static PresentationNode& nodeOf(const ViewController& controller);
  Controllers takeAway(const PresentationNode& presented);
  void takeAllAbove(Controllers& taken);  // from the bottom up

  PresentationNode* presenter_ = nullptr;
  Controllers presented_;  // the last one on top
};

}  // namespace qv_commons
