#include "qv_commons/platform/desktop/host_node.h"

#include <utility>

namespace qv_commons::desktop {

HostNode::HostNode(SharedContext context, QWidget& widget, ViewControllerKind kind,
                   ShownPage shownPage)
    : DesktopNode(std::move(context), kind),
      widget_(&widget),
      place_(&widget),
      shownPage_(std::move(shownPage)) {
  attachWindow(*widget.window());
  this->context().hostNodes[&widget] = this;
}

HostNode::~HostNode() {
  auto& nodes = context().hostNodes;
  const auto found = nodes.find(place_);
  if (found != nodes.end() && found->second == this) nodes.erase(found);
}

ViewController* HostNode::childViewController() const {
  const auto& nodes = context().hostNodes;
  const QWidget* page = shownPage_ && widget_ != nullptr ? shownPage_() : nullptr;
  const auto found = nodes.find(page);
  return found == nodes.end() ? nullptr : &found->second->controller();
}

std::shared_ptr<ViewController> hostViewController(const SharedContext& context, QWidget& widget,
                                                   ViewControllerKind kind,
                                                   HostNode::ShownPage shownPage) {
  const auto found = context->hostNodes.find(&widget);
  // A widget may have taken the place in memory of one that is gone.
  const bool same = found != context->hostNodes.end() && found->second->isOf(widget, kind);
  if (same) return found->second->retained();
  auto node = std::make_shared<HostNode>(context, widget, kind, std::move(shownPage));
  ViewController& controller = node->controller();
  return {std::move(node), &controller};
}

}  // namespace qv_commons::desktop
