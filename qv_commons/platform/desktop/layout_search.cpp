#include "qv_commons/platform/desktop/layout_search.h"

#include <QFile>
#include <filesystem>
#include <optional>

#include "qv_commons/platform/desktop/qt_text.h"
#include "qv_commons/platform/desktop/resource_search.h"
#include "qv_commons/platform/fatal_error.h"

// A static library's resources are linked only where they are asked for, outside of any namespace.
static void linkLayouts() {
  Q_INIT_RESOURCE(qv_commons_layouts);
}

namespace qv_commons::desktop {
namespace {

[[noreturn]] void failToFind(const std::string& file, const std::string& resourceDirectory) {
  std::string places;
  for (const std::filesystem::path& folder : resourceFolders(resourceDirectory)) {
    places += "\n  " + (folder / kResourceBundle / file).string();
  }
  if (resourceDirectory.empty()) places += "\n  the library itself";
  fatalError("the layout " + file + " is missing. DesktopSettings::resourceDirectory is \"" +
             resourceDirectory + "\"; searched:" + places);
}

}  // namespace

std::string findLayout(std::string_view name, const Bundle* bundle,
                       const std::string& resourceDirectory) {
  if (bundle != nullptr) {
    if (const auto onDisk = bundle->URLForResource(name, "ui")) return *onDisk;
  }
  linkLayouts();
  const std::string file = std::string(name) + ".ui";
  std::string own = ":/qv_commons/" + file;
  if (!resourceDirectory.empty() || !QFile::exists(fromUtf8(own))) {
    failToFind(file, resourceDirectory);
  }
  return own;
}

}  // namespace qv_commons::desktop
