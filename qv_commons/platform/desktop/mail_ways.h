// Which of the ways for mail this machine has.
#pragma once

#include <optional>
#include <vector>

#include "qv_commons/platform/desktop/desktop_platform.h"
#include "qv_commons/platform/desktop/portal_question.h"

namespace qv_commons::desktop {

// Main thread only.
class MailWays {
 public:
  // Asks for the portal, if it is one of the ways.
  explicit MailWays(const DesktopSettings& settings);

  // At this moment, in the order of the settings. A portal that has not answered yet counts as
  // there: it may be starting, and a user who has mail must not be told to set it up.
  std::vector<MailWay> present() const;

 private:
  bool has(MailWay way) const;

  const DesktopSettings& settings_;
  std::optional<PortalQuestion> portal_;
};

}  // namespace qv_commons::desktop
