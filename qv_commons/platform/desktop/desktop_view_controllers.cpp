#include "qv_commons/platform/desktop/desktop_view_controllers.h"

#include <string>
#include <utility>

#include "qv_commons/platform/desktop/desktop_alert.h"
#include "qv_commons/platform/desktop/desktop_composer.h"
#include "qv_commons/platform/desktop/layout_search.h"

namespace qv_commons::desktop {

bool DesktopViewControllers::canSendMail() const {
  return !context_->mailWays.present().empty();
}

std::shared_ptr<MailComposer> DesktopViewControllers::makeMailComposer() {
  return std::make_shared<DesktopComposer>(context_);
}

std::shared_ptr<AlertController> DesktopViewControllers::makeAlertController(std::string title,
                                                                             std::string message,
                                                                             AlertStyle) {
  return std::make_shared<DesktopAlert>(context_, title, message);
}

std::shared_ptr<LayoutScreen> DesktopViewControllers::initWithNibName(
    std::string_view name, std::shared_ptr<Bundle> bundle, const LayoutScreenFactory& make) {
  const std::string layout = findLayout(name, bundle.get(), context_->settings.resourceDirectory);
  auto native = std::make_unique<LayoutController>(context_, services_, layout);
  LayoutController& owned = *native;
  std::shared_ptr<LayoutScreen> screen = make(std::move(native));
  owned.setScreen(*screen);
  return screen;
}

}  // namespace qv_commons::desktop
