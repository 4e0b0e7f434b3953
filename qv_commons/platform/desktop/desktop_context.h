// What all parts of the desktop adapter share.
#pragma once

#include <QObject>
#include <map>
#include <memory>
#include <utility>
#include <vector>

#include "qv_commons/platform/desktop/data_folder.h"
#include "qv_commons/platform/desktop/desktop_look.h"
#include "qv_commons/platform/desktop/desktop_platform.h"
#include "qv_commons/platform/desktop/mail_ways.h"
#include "qv_commons/platform/desktop/words.h"
#include "qv_commons/platform/presentation.h"

namespace qv_commons::desktop {

class HostController;

// What goes on after its screen has left.
class Unfinished {
 public:
  virtual ~Unfinished() = default;

  // Brings it to its end, and waits for that.
  virtual void finish() = 0;
};

struct DesktopContext {
  explicit DesktopContext(DesktopSettings given) : settings(std::move(given)) {}

  DesktopSettings settings;

  Words words{settings};

  // The controllers of the host's own widgets that somebody holds.
  std::map<const QWidget*, HostController*> hosts;

  Presentations presentations;

  DesktopLook look;

  MailWays mailWays{settings};

  // They leave the list by themselves.
  std::vector<std::shared_ptr<Unfinished>> unfinished;

  // Completions wait in this object's event queue, and go with it.
  QObject transitions;

  // Where what lasts is kept.
  std::string dataDirectory() const {
    if (!settings.dataDirectory.empty()) return settings.dataDirectory;
    return appDataFolder();
  }

  std::string draftDirectory() const { return dataDirectory() + "/drafts"; }

  // The attachments of messages that the desktop's mail program has.
  std::string handedMailDirectory() const { return dataDirectory() + "/handed-over"; }

  void reportError(const std::string& problem) const {
    if (settings.onError) settings.onError(problem);
  }
};

using SharedContext = std::shared_ptr<DesktopContext>;

}  // namespace qv_commons::desktop
