#include "qv_commons/platform/desktop/data_folder.h"

#include <QCoreApplication>
#include <pwd.h>
#include <unistd.h>

#include "qv_commons/platform/desktop/qt_text.h"

namespace qv_commons::desktop {
namespace {

// "" where the variable is not set or relative: a relative path means another folder for each
// start.
std::string absolutePath(const char* variable) {
  const std::string path = qgetenv(variable).toStdString();
  return path.starts_with('/') ? path : "";
}

std::string homeFolder() {
  if (std::string home = absolutePath("HOME"); !home.empty()) return home;
  const passwd* user = ::getpwuid(::getuid());
  return user == nullptr ? "/" : user->pw_dir;
}

}  // namespace

std::string appDataFolder() {
  std::string folder = absolutePath("XDG_DATA_HOME");
  if (folder.empty()) folder = homeFolder() + "/.local/share";
  for (const QString& name :
       {QCoreApplication::organizationName(), QCoreApplication::applicationName()}) {
    if (!name.isEmpty()) folder.append("/").append(toUtf8(name));
  }
  return folder;
}

}  // namespace qv_commons::desktop
