// The host app's version, identifier and display name, from its main bundle.
//
//     std::string version = qv_commons::QV_AppInfoHelper::appVersion();  // "2.4.1(317)"
//     std::string name = qv_commons::QV_AppInfoHelper::appName();        // "Notes"
//
// Every call reads the main bundle again. No call fails: a value that is missing or not a text (a
// number under a version key, say) becomes "". Main thread.
#pragma once

#include <string>

#include "qv_commons/export.h"

namespace qv_commons {

class Bundle;

class QV_COMMONS_EXPORT QV_AppInfoHelper {
 public:
  // "CFBundleShortVersionString", then "CFBundleVersion" in parentheses, with nothing between them:
  // "2.4.1(317)". The parentheses are always there: "()" if both keys are missing.
  static std::string appVersion();

  // The main bundle's identifier, for example "com.example.notes", or "" if it has none.
  static std::string appId();

  // "CFBundleDisplayName", for example "Notes", or "". No other key is read in its place.
  static std::string appName();
};

// The same of a given bundle.
std::string appVersionOf(const Bundle& bundle);
std::string appIdOf(const Bundle& bundle);
std::string appNameOf(const Bundle& bundle);

}  // namespace qv_commons
