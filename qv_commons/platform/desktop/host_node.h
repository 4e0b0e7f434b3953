// The native side of what the host owns: a window, a page of it, or a container of pages.
#pragma once

#include <functional>

#include "qv_commons/platform/desktop/desktop_node.h"

namespace qv_commons::desktop {

class HostNode final : public DesktopNode {
 public:
  // The page that a container shows at the moment, or null.
  using ShownPage = std::function<QWidget*()>;

  // `widget` with the controllers of its pages found through `shownPage`, which may be absent.
  HostNode(SharedContext context, QWidget& widget, ViewControllerKind kind, ShownPage shownPage);
  ~HostNode() override;

  // Whether this is still the node of `widget`, of that kind.
  bool isOf(const QWidget& widget, ViewControllerKind kind) const {
    return widget_ == &widget && this->kind() == kind;
  }

  ViewController& controller() override { return controller_; }
  ViewController* childViewController() const override;

 private:
  QPointer<QWidget> widget_;  // null once it has been destroyed
  const QWidget* place_;      // what it is known by among the host's nodes
  ShownPage shownPage_;
  ViewController controller_{*this};
};

// The controller of that widget: the same one for as long as somebody holds it.
std::shared_ptr<ViewController> hostViewController(
    const SharedContext& context, QWidget& widget,
    ViewControllerKind kind = ViewControllerKind::plain, HostNode::ShownPage shownPage = nullptr);

}  // namespace qv_commons::desktop
