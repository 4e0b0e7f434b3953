// A platform in memory, for hosts that test their own code and for the library's own tests:
// scripted answers, recorded effects, no screen, no file.
//
//     qv_commons::memory::MemoryPlatform platform;
//     qv_commons::ScopedPlatform scope(platform.platform());
//     platform.mainBundle().identifier = "com.example.notes";
//     std::shared_ptr<qv_commons::ViewController> home = platform.makeViewController("home");
//
//     qv_commons::QV_SupportHelper::shared().contactSupport(
//         *home, "support@example.com", "Help", {}, std::nullopt, std::nullopt, {});
//
//     auto& composer = *platform.viewControllers().composers().back();
//     bool addressed = composer.message().toRecipients.front() == "support@example.com";
//     composer.finish(qv_commons::MailComposeResult::sent);  // the user sends
//
// Every operation of every interface is recorded in `record()`, in order. One thread at a time.
#pragma once

#include <memory>
#include <string>

#include "qv_commons/export.h"
#include "qv_commons/platform/memory/memory_calendar.h"
#include "qv_commons/platform/memory/memory_host.h"
#include "qv_commons/platform/memory/memory_user_defaults.h"
#include "qv_commons/platform/memory/memory_view_controllers.h"
#include "qv_commons/platform/memory/record.h"
#include "qv_commons/platform/memory/transitions.h"
#include "qv_commons/platform/platform.h"

namespace qv_commons::memory {

class QV_COMMONS_EXPORT MemoryPlatform {
 public:
  MemoryPlatform();

  // Dismisses everything that is presented.
  ~MemoryPlatform();
  MemoryPlatform(const MemoryPlatform&) = delete;
  MemoryPlatform& operator=(const MemoryPlatform&) = delete;

  // Install it: `ScopedPlatform scope(memory.platform())`.
  const Platform& platform() const { return platform_; }

  Record& record() { return record_; }
  Transitions& transitions() { return transitions_; }

  MemoryBundles& bundles() { return bundles_; }
  MemoryBundle& mainBundle() { return bundles_.main(); }
  MemoryBundle& resourceBundle() { return bundles_.resources(); }  // the library's
  MemoryDevice& device() { return device_; }
  MemoryClock& clock() { return clock_; }
  MemoryCalendar& calendar() { return calendar_; }
  MemoryUserDefaults& userDefaults() { return userDefaults_; }
  MemoryApplication& application() { return application_; }
  MemoryViewControllers& viewControllers() { return viewControllers_; }

  // A screen of the host's, of that kind; `name` stands for it in the record.
  std::shared_ptr<ViewController> makeViewController(
      std::string name, ViewControllerKind kind = ViewControllerKind::plain);

 private:
  Record record_;
  Transitions transitions_;
  MemoryBundles bundles_{record_};
  MemoryDevice device_{record_};
  MemoryClock clock_{record_};
  MemoryCalendar calendar_{record_};
  MemoryUserDefaults userDefaults_{record_};
  MemoryApplication application_{record_};
  MemoryViewControllers viewControllers_{record_, transitions_, application_, bundles_};
  Platform platform_;
};

}  // namespace qv_commons::memory
