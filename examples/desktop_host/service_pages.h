// The pages of the host app, one for each service that shows something.
#pragma once

#include <QStackedWidget>
#include <QString>
#include <QTabWidget>
#include <QWidget>
#include <functional>

#include "qv_commons/platform/desktop/desktop_platform.h"

namespace host {

using Say = std::function<void(const QString&)>;

QWidget* makeAppInfoPage();
QWidget* makeLinksPage(const Say& say);
QWidget* makeTimePage();

// Two tabs, each with a button that presents an alert over it; then the name of the controller that
// is on top of the window is said. `window` is where the look-up starts.
QTabWidget* makeTopControllerPage(const qv_commons::desktop::DesktopPlatform& desktop,
                                  QStackedWidget& window, const std::function<void()>& goHome,
                                  const Say& say);

QWidget* makeSearchPage(const Say& say);

}  // namespace host
