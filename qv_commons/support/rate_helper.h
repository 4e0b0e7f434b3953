// The app store's page for writing a review of an app.
//
//     qv_commons::QV_RateHelper::openWriteReviewOnAppStore("id123456789");
#pragma once

#include <string>

#include "qv_commons/export.h"

namespace qv_commons {

class QV_COMMONS_EXPORT QV_RateHelper {
 public:
  // Asks the system to open
  // "itms-apps://apps.apple.com/app/" + `appId` + "?mt=8&action=write-review".
  //
  // `appId` goes in exactly as passed, for example "id123456789", without a prefix or encoding; an
  // empty one opens the page "/app/". If the link is not a valid URL (because of a space in
  // `appId`, say), nothing is opened. No failure is reported. Main thread.
  static void openWriteReviewOnAppStore(const std::string& appId);
};

}  // namespace qv_commons
