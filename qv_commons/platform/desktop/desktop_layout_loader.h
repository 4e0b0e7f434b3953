// Screens from layout files, as windows.
#pragma once

#include "qv_commons/platform/desktop/layout_node.h"
#include "qv_commons/platform/layout_loader.h"

namespace qv_commons::desktop {

class DesktopLayoutLoader final : public LayoutLoader {
 public:
  DesktopLayoutLoader(SharedContext context, const ScreenServices& services)
      : context_(std::move(context)), services_(services) {}

  // A layout that findLayout doesn't find is a fatal error here; a file that can't be read or makes
  // no sense is one when the screen is shown.
  std::shared_ptr<LayoutScreen> initWithNibName(std::string_view name,
                                                std::shared_ptr<Bundle> bundle,
                                                const LayoutScreenFactory& make) override;

 private:
  SharedContext context_;
  ScreenServices services_;
};

}  // namespace qv_commons::desktop
