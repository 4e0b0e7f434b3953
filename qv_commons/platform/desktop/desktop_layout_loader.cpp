#include "qv_commons/platform/desktop/desktop_layout_loader.h"

#include <string>

#include "qv_commons/platform/desktop/layout_search.h"

namespace qv_commons::desktop {

std::shared_ptr<LayoutScreen> DesktopLayoutLoader::initWithNibName(
    std::string_view name, std::shared_ptr<Bundle> bundle, const LayoutScreenFactory& make) {
  const std::string layout =
      findLayout(name, bundle.get(), context_->settings.resourceDirectory);
  auto node = std::make_shared<LayoutNode>(context_, services_, layout);
  node->setScreen(make(*node));
  LayoutScreen& screen = node->screen();
  return {std::move(node), &screen};
}

}  // namespace qv_commons::desktop
