#include "qv_commons/platform/desktop/desktop_layout_loader.h"

#include <optional>
#include <string>

#include "qv_commons/platform/fatal_error.h"

namespace qv_commons::desktop {

std::shared_ptr<LayoutScreen> DesktopLayoutLoader::initWithNibName(
    std::string_view name, std::shared_ptr<Bundle> bundle, const LayoutScreenFactory& make) {
  const std::optional<FileLocation> layout =
      bundle == nullptr ? std::nullopt : bundle->URLForResource(name, "ui");
  if (!layout) {
    fatalError("the layout " + std::string(name) + ".ui is missing" +
               (bundle == nullptr ? ": there is no bundle" : " in its bundle"));
  }
  auto node = std::make_shared<LayoutNode>(context_, services_, *layout);
  node->setScreen(make(*node));
  LayoutScreen& screen = node->screen();
  return {std::move(node), &screen};
}

}  // namespace qv_commons::desktop
