// What all parts of the desktop adapter share.
#pragma once

#include <QObject>
#include <map>
#include <memory>

#include "qv_commons/platform/desktop/data_folder.h"
#include "qv_commons/platform/desktop/desktop_look.h"
#include "qv_commons/platform/desktop/desktop_platform.h"
#include "qv_commons/platform/presentation.h"

namespace qv_commons::desktop {

class HostController;

struct DesktopContext {
  DesktopSettings settings;

  // The controllers of the host's own widgets that somebody holds.
  std::map<const QWidget*, HostController*> hosts;

  Presentations presentations;

  DesktopLook look;

  // Completions wait in this object's event queue, and go with it.
  QObject transitions;

  // Where what lasts is kept.
  std::string dataDirectory() const {
    if (!settings.dataDirectory.empty()) return settings.dataDirectory;
    return appDataFolder();
  }

  std::string draftDirectory() const { return dataDirectory() + "/drafts"; }

  void reportError(const std::string& problem) const {
    if (settings.onError) settings.onError(problem);
  }
};

using SharedContext = std::shared_ptr<DesktopContext>;

}  // namespace qv_commons::desktop
