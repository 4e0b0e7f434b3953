#include "qv_commons/platform/desktop/host_controller.h"

#include <utility>

namespace qv_commons::desktop {
namespace {

// Another widget may have taken the place in memory of one that is gone.
HostController* findHost(const DesktopContext& context, const QWidget& widget,
                         ViewControllerKind kind) {
  const auto found = context.hosts.find(&widget);
  const bool isSame = found != context.hosts.end() && found->second->isOf(widget, kind);
  return isSame ? found->second : nullptr;
}

}  // namespace

HostController::HostController(ViewControllerKind kind, SharedContext context, QWidget& widget,
                               ShownPage shownPage)
    : NativeOf(kind, std::move(context)),
      widget_(&widget),
      key_(&widget),
      shownPage_(std::move(shownPage)) {
  attachWindow(*widget.window());
  this->context().hosts[&widget] = this;
}

HostController::~HostController() {
  auto& hosts = context().hosts;
  const auto found = hosts.find(key_);
  if (found != hosts.end() && found->second == this) hosts.erase(found);
}

ViewController* HostController::childViewController() const {
  const auto& hosts = context().hosts;
  const QWidget* page = shownPage_ && widget_ != nullptr ? shownPage_() : nullptr;
  const auto found = hosts.find(page);
  const bool isThere = found != hosts.end() && found->second->widget_ == page;
  return isThere ? found->second : nullptr;
}

std::shared_ptr<ViewController> hostViewController(const SharedContext& context, QWidget& widget,
                                                   ViewControllerKind kind, ShownPage shownPage) {
  if (HostController* host = findHost(*context, widget, kind)) return host->retained();
  return std::make_shared<HostController>(kind, context, widget, std::move(shownPage));
}

}  // namespace qv_commons::desktop
