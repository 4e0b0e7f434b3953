// Files that come with the app: the library's own resources, and JSON files of the host's.
//
//     std::optional<std::string> words =
//         qv_commons::QV_BundleFileHelper::loadJsonFromBundle("words");  // "words.json"
//     std::shared_ptr<qv_commons::Bundle> resources =
//         qv_commons::QV_BundleFileHelper::getQVCommonsResourceBundle();
//
// The two look in different places: the resource bundle is next to the library's own code, the JSON
// files are in the host app's main bundle. Nothing is cached. Main thread.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "qv_commons/export.h"
#include "qv_commons/platform/bundle.h"

namespace qv_commons {

class QV_COMMONS_EXPORT QV_BundleFileHelper {
 public:
  // "QV_Commons_iOS.bundle" next to the library's code; null, without a message, if it is missing
  // or can't be opened.
  static std::shared_ptr<Bundle> getQVCommonsResourceBundle();

  // The text of the main bundle's file `filename` with ".json" after it, exactly as it is in the
  // file, not parsed. `filename` is the name without the extension: "words.json"
  // looks for "words.json.json". std::nullopt if there is no such file; std::nullopt and one line
  // on the console if it can't be read or is not UTF-8.
  static std::optional<std::string> loadJsonFromBundle(std::string_view filename);
};

// `getQVCommonsResourceBundle()` for given bundles.
std::shared_ptr<Bundle> resourceBundleOf(const Bundles& bundles);

}  // namespace qv_commons
