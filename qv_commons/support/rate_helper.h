// The app store's page for writing a review of an app.
//
//     qv_commons::QV_RateHelper::openWriteReviewOnAppStore("id123456789");
#pragma once

#include <string>

namespace qv_commons {

class QV_RateHelper {
 public:
  // Asks the system to open
  // "itms-apps://apps.apple.com/app/" + `appId` + "?mt=8&action=write-review".
  //
  // `appId` goes in exactly as passed, for example "id123456789": no prefix is added, nothing is
  // encoded; an empty one opens the page "/app/". Where the link is no valid URL (a space in
  // `appId`, say), nothing is opened. Nothing is reported in any case. Main thread.
  static void openWriteReviewOnAppStore(const std::string& appId);
};

}  // namespace qv_commons
