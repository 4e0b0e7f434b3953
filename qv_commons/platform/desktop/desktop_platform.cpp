#include "qv_commons/platform/desktop/desktop_platform.h"

#include <QCoreApplication>
#include <QStackedWidget>
#include <QTabWidget>
#include <utility>

#include "qv_commons/platform/desktop/desktop_bundle.h"
#include "qv_commons/platform/desktop/desktop_context.h"
#include "qv_commons/platform/desktop/desktop_system.h"
#include "qv_commons/platform/desktop/desktop_view_controllers.h"
#include "qv_commons/platform/desktop/host_controller.h"
#include "qv_commons/platform/desktop/icu_calendar.h"
#include "qv_commons/platform/desktop/mail_drafts.h"
#include "qv_commons/platform/desktop/mail_hand_over.h"
#include "qv_commons/platform/desktop/sheet_accessibility.h"
#include "qv_commons/platform/desktop/sqlite_user_defaults.h"

namespace qv_commons::desktop {

struct DesktopPlatform::Parts {
  explicit Parts(SharedContext shared) : context(std::move(shared)) {}

  ~Parts();

  SharedContext context;
  DesktopBundles bundles{*context};
  DesktopDevice device{context->look, context->settings};
  DesktopClock clock;
  IcuCalendar calendar{context->settings.calendar, context->settings.onError};
  SqliteUserDefaults userDefaults{context->dataDirectory(),
                                  bundles.mainBundle().bundleIdentifier().value_or(""),
                                  context->settings.onError};
  DesktopApplication application;
  DesktopViewControllers viewControllers{context, {calendar, application, device}};
  Platform platform{.bundles = bundles,
                    .device = device,
                    .clock = clock,
                    .calendar = calendar,
                    .userDefaults = userDefaults,
                    .application = application,
                    .viewControllers = viewControllers};
};

// A screen and the host that shows it keep each other. What still waits refers to screens, and
// those to the parts that are about to go.
DesktopPlatform::Parts::~Parts() {
  dismissAll(context->presentations);
  for (const auto& unfinished : std::exchange(context->unfinished, {})) unfinished->finish();
  QCoreApplication::removePostedEvents(&context->transitions);
}

DesktopPlatform::DesktopPlatform(DesktopSettings settings) {
  installAccessibility();
  auto context = std::make_shared<DesktopContext>(std::move(settings));
  removeUnfinishedDrafts(context->draftDirectory());
  removeOldHandedMail(context->handedMailDirectory());
  parts_ = std::make_unique<Parts>(std::move(context));
}

DesktopPlatform::~DesktopPlatform() = default;

const Platform& DesktopPlatform::platform() const {
  return parts_->platform;
}

std::shared_ptr<ViewController> DesktopPlatform::viewController(QWidget& windowOrPage) const {
  return hostViewController(parts_->context, windowOrPage);
}

std::shared_ptr<ViewController> DesktopPlatform::navigationController(QStackedWidget& pages) const {
  return hostViewController(parts_->context, pages, ViewControllerKind::navigation,
                            [&pages] { return pages.currentWidget(); });
}

std::shared_ptr<ViewController> DesktopPlatform::tabBarController(QTabWidget& tabs) const {
  return hostViewController(parts_->context, tabs, ViewControllerKind::tabBar,
                            [&tabs] { return tabs.currentWidget(); });
}

}  // namespace qv_commons::desktop
