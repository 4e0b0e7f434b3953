// What the host app says of itself in its main bundle: version text, identifier, display name.
//
//     std::string version = qv_commons::QV_AppInfoHelper::appVersion();  // "2.4.1(317)"
//     std::string name = qv_commons::QV_AppInfoHelper::appName();        // "Notes"
//
// Every call reads the main bundle afresh. Nothing fails: what is missing, or is no text (a number
// under a version key, say), becomes the empty text. Main thread.
#pragma once

#include <string>

namespace qv_commons {

class QV_AppInfoHelper {
 public:
  // "CFBundleShortVersionString", then "CFBundleVersion" in parentheses, with nothing between them:
  // "2.4.1(317)". The parentheses are always there: "()" where both keys are missing.
  static std::string appVersion();

  // The main bundle's identifier, for example "com.example.notes", or "" where it has none.
  static std::string appId();

  // "CFBundleDisplayName", for example "Notes", or "". No other key stands in for it.
  static std::string appName();
};

}  // namespace qv_commons
