// The outside world, as the library sees it: one reference for each capability.
//
// An adapter owns the implementations, makes a `Platform` of them and installs it once, at the
// start of the process. A test installs another one for a scope:
//
//     qv_commons::memory::MemoryPlatform fake;
//     qv_commons::ScopedPlatform scope(fake.platform());
//     std::string version = qv_commons::QV_AppInfoHelper::appVersion();  // asks `fake`
//
// The current platform is the library's only mutable global. A class-level operation reads it once,
// at its entry, and passes on what is needed.
#pragma once

#include "qv_commons/export.h"

namespace qv_commons {

struct Platform {
  class Bundles& bundles;
  class Device& device;
  class Clock& clock;
  class Calendar& calendar;
  class UserDefaults& userDefaults;
  class Application& application;
  class ViewControllers& viewControllers;
};

// Makes `platform` the current one until another is installed. It must outlive its installation.
// Install before other threads use the library.
QV_COMMONS_EXPORT void installPlatform(const Platform& platform);

// The current platform; a fatal error if none is installed. Any thread.
QV_COMMONS_EXPORT const Platform& currentPlatform();

// Installs a platform for a scope and then restores the one before.
class QV_COMMONS_EXPORT ScopedPlatform {
 public:
  explicit ScopedPlatform(const Platform& platform);
  ~ScopedPlatform();
  ScopedPlatform(const ScopedPlatform&) = delete;
  ScopedPlatform& operator=(const ScopedPlatform&) = delete;

 private:
  const Platform* previous_;
};

}  // namespace qv_commons
