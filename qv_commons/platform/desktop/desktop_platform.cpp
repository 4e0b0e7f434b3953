#include "qv_commons/platform/desktop/desktop_platform.h"

#include <QCoreApplication>
#include <QStackedWidget>
#include <QTabWidget>
#include <utility>
#include <vector>

#include "qv_commons/platform/desktop/desktop_alert.h"
#include "qv_commons/platform/desktop/desktop_bundle.h"
#include "qv_commons/platform/desktop/desktop_context.h"
#include "qv_commons/platform/desktop/desktop_files.h"
#include "qv_commons/platform/desktop/desktop_layout_loader.h"
#include "qv_commons/platform/desktop/desktop_mail.h"
#include "qv_commons/platform/desktop/desktop_screen.h"
#include "qv_commons/platform/desktop/desktop_system.h"
#include "qv_commons/platform/desktop/host_node.h"
#include "qv_commons/platform/desktop/icu_calendar.h"
#include "qv_commons/platform/desktop/mail_drafts.h"
#include "qv_commons/platform/desktop/sqlite_user_defaults.h"

namespace qv_commons::desktop {

struct DesktopPlatform::Parts {
  explicit Parts(SharedContext shared) : context(std::move(shared)) {}

  ~Parts();

  SharedContext context;
  DesktopBundles bundles{*context};
  DesktopFiles files;
  DesktopConsole console;
  DesktopDevice device;
  DesktopLanguages languages;
  DesktopScreen screen{context->settings.userInterfaceStyle};
  DesktopSystemVersion systemVersion{context->settings.systemVersion};
  DesktopClock clock;
  IcuCalendar calendar{context->settings.calendar};
  SqliteUserDefaults userDefaults{context->dataDirectory(),
                                  bundles.mainBundle().bundleIdentifier().value_or(""),
                                  context->settings.onError};
  DesktopApplication application;
  DesktopMail mail{context};
  DesktopAlerts alerts{context};
  DesktopLayoutLoader layoutLoader{context, {calendar, application}};
  Platform platform{.bundles = bundles,
                    .files = files,
                    .console = console,
                    .device = device,
                    .languages = languages,
                    .screen = screen,
                    .systemVersion = systemVersion,
                    .clock = clock,
                    .calendar = calendar,
                    .userDefaults = userDefaults,
                    .application = application,
                    .mailComposers = mail,
                    .alerts = alerts,
                    .layoutLoader = layoutLoader};
};

// A screen may keep the host that shows it, which keeps the screen: taking the screens away lets go
// of both. What still waits refers to screens, and those to the parts that are about to go.
DesktopPlatform::Parts::~Parts() {
  std::vector<std::shared_ptr<ViewController>> hosts;
  for (const auto& [widget, node] : context->hostNodes) hosts.push_back(node->retained());
  for (const auto& host : hosts) host->dismissViewController(false, nullptr);
  QCoreApplication::removePostedEvents(&context->transitions);
}

DesktopPlatform::DesktopPlatform(DesktopSettings settings) {
  auto context = std::make_shared<DesktopContext>();
  context->settings = std::move(settings);
  removeUnfinishedDrafts(context->draftDirectory());
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
