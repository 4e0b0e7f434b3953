// What the age gate's outcome costs on the desktop: read at a returning user's start, written at
// the confirm.
#include <QTemporaryDir>

#include "qv_commons/platform/desktop/sqlite_user_defaults.h"

#include "bench/contest.h"

namespace qv_commons::bench {
namespace {

using desktop::SqliteUserDefaults;

std::string folder() {
  static const QTemporaryDir made;
  return made.path().toStdString();
}

// The store is opened anew, as by a process that has just started.
std::int64_t byOpeningAndReading(int) {
  const SqliteUserDefaults defaults(folder(), "com.example.notes", nullptr);
  const bool shown = defaults.boolForKey("QV_AgeGate_Shown");
  return (shown ? 1 : 0) + (defaults.boolForKey("QV_AgeGate_Blocked") ? 2 : 0);
}

// Both are on the disk when this returns.
std::int64_t byWriting(int) {
  static SqliteUserDefaults defaults(folder(), "com.example.notes", nullptr);
  defaults.setBool(true, "QV_AgeGate_Shown");
  defaults.setBool(true, "QV_AgeGate_Blocked");
  defaults.commit();
  return 3;
}

}  // namespace

void addUserDefaultsContests() {
  Contest<int>("refusal's two flags written", "desktop, to the disk", {0})
      .enter("QV Commons", byWriting);
  Contest<int>("returning user's two reads", "desktop, the store opened anew", {0})
      .enter("QV Commons", byOpeningAndReading);
}

}  // namespace qv_commons::bench
