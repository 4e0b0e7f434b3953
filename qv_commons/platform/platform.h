// The outside world, as the library sees it: one reference for each capability.
//
// An adapter owns the implementations, makes a `Platform` of them and installs it once, at the
// start of the process. A test swaps another in for a scope:
//
//     qv_commons::memory::MemoryPlatform fake;
//     qv_commons::ScopedPlatform scope(fake.platform());
//     std::string version = qv_commons::QV_AppInfoHelper::appVersion();  // asks `fake`
//
// The current platform is the library's only mutable global. A class-level operation reads it once,
// at its entry, and hands down what is needed.
#pragma once

#include "qv_commons/platform/alert.h"
#include "qv_commons/platform/application.h"
#include "qv_commons/platform/bundle.h"
#include "qv_commons/platform/calendar.h"
#include "qv_commons/platform/clock.h"
#include "qv_commons/platform/console.h"
#include "qv_commons/platform/device.h"
#include "qv_commons/platform/files.h"
#include "qv_commons/platform/layout_loader.h"
#include "qv_commons/platform/mail_composer.h"
#include "qv_commons/platform/screen.h"
#include "qv_commons/platform/system_version.h"
#include "qv_commons/platform/user_defaults.h"

namespace qv_commons {

struct Platform {
  Bundles& bundles;
  Files& files;
  Console& console;
  Device& device;
  Languages& languages;
  Screen& screen;
  SystemVersion& systemVersion;
  Clock& clock;
  Calendar& calendar;
  UserDefaults& userDefaults;
  Application& application;
  MailComposers& mailComposers;
  Alerts& alerts;
  LayoutLoader& layoutLoader;
};

// Makes `platform` the current one until another is installed. It must outlive its installation.
// Install before other threads use the library.
void installPlatform(const Platform& platform);

// The current platform; a fatal error where none is installed. Any thread.
const Platform& currentPlatform();

// Installs a platform for a scope and puts back the one before.
class ScopedPlatform {
 public:
  explicit ScopedPlatform(const Platform& platform);
  ~ScopedPlatform();
  ScopedPlatform(const ScopedPlatform&) = delete;
  ScopedPlatform& operator=(const ScopedPlatform&) = delete;

 private:
  const Platform* previous_;
};

}  // namespace qv_commons
