#include "qv_commons/platform/desktop/mail_ways.h"

#include <QStandardPaths>
#include <algorithm>
#include <iterator>

#include "qv_commons/platform/desktop/mail_sender.h"
#include "qv_commons/platform/desktop/portal_mail.h"
#include "qv_commons/platform/desktop/xdg_email.h"

namespace qv_commons::desktop {

MailWays::MailWays(const DesktopSettings& settings) : settings_(settings) {
  const std::vector<MailWay>& ways = settings.mailWays;
  if (std::find(ways.begin(), ways.end(), MailWay::portal) == ways.end()) return;
  portal_.emplace("org.freedesktop.DBus.Properties", "Get",
                  QVariantList{kMailPortalInterface, "version"});
}

bool MailWays::has(MailWay way) const {
  switch (way) {
    case MailWay::sendmail:
      return !findMailProgram(settings_.sendmailProgram).isEmpty();
    case MailWay::portal:
      return portal_ && (portal_->isOpen() || portal_->answer());
    case MailWay::xdgEmail:
      return !findXdgEmail().isEmpty();
  }
  return false;
}

std::vector<MailWay> MailWays::present() const {
  std::vector<MailWay> ways;
  std::copy_if(settings_.mailWays.begin(), settings_.mailWays.end(), std::back_inserter(ways),
               [this](MailWay way) { return has(way); });
  return ways;
}

}  // namespace qv_commons::desktop
