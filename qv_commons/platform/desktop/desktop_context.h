// What all parts of the desktop adapter share.
#pragma once

#include <QObject>
#include <memory>

#include "qv_commons/platform/desktop/desktop_platform.h"

namespace qv_commons::desktop {

struct DesktopContext {
  DesktopSettings settings;

  // Completions wait in this object's event queue, and go with it.
  QObject transitions;

  void reportError(const std::string& problem) const {
    if (settings.onError) settings.onError(problem);
  }
};

using SharedContext = std::shared_ptr<DesktopContext>;

}  // namespace qv_commons::desktop
