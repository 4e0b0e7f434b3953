// Hosts' windows, pages and containers as view controllers, and what the look-up makes of them.
#include <QApplication>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTest>
#include <gtest/gtest.h>
#include <optional>

#include "qv_commons/age_gate/age_gate_helper.h"
#include "qv_commons/platform/desktop/desktop_platform.h"
#include "qv_commons/platform/desktop/sheet.h"
#include "qv_commons/platform/platform.h"
#include "qv_commons/platform/view_controllers.h"
#include "qv_commons/view_utils/view_controller_helper.h"

namespace qv_commons::desktop {
namespace {

class HostControllers : public testing::Test {
 protected:
  HostControllers() {
    pages.addWidget(first);
    pages.addWidget(tabs);
    tabs->addTab(left, "Left");
    tabs->addTab(right, "Right");
    pages.resize(390, 844);
    pages.show();
  }

  std::shared_ptr<ViewController> makeAlert() {
    auto alert =
        desktop.platform().viewControllers.makeAlertController("Title", "Text", AlertStyle::alert);
    alert->addAction("OK", AlertActionStyle::standard, nullptr);
    return alert;
  }

  ViewController* top() const { return QV_ViewControllerHelper::topViewController(window.get()); }

  DesktopPlatform desktop{{.mailWays = {}}};
  QStackedWidget pages;
  QWidget* first = new QWidget;
  QTabWidget* tabs = new QTabWidget;
  QWidget* left = new QWidget;
  QWidget* right = new QWidget;
  std::shared_ptr<ViewController> window = desktop.navigationController(pages);
};

TEST_F(HostControllers, AreTheSameAsLongAsSomebodyHoldsThem) {
  const auto page = desktop.viewController(*first);
  EXPECT_EQ(desktop.viewController(*first), page);
  EXPECT_NE(desktop.viewController(*left), page);
  EXPECT_EQ(desktop.navigationController(pages), window);
  EXPECT_EQ(window->kind(), ViewControllerKind::navigation);
  EXPECT_EQ(page->kind(), ViewControllerKind::plain);
}

TEST_F(HostControllers, OfANavigationShowTheCurrentPage) {
  const auto page = desktop.viewController(*first);
  EXPECT_EQ(window->childViewController(), page.get());
  EXPECT_EQ(top(), page.get());
  pages.setCurrentWidget(tabs);
  EXPECT_EQ(window->childViewController(), nullptr) << "nobody holds a controller of the tabs";
  EXPECT_EQ(top(), nullptr);
}

TEST_F(HostControllers, OfTabsShowTheSelectedOne) {
  const auto tabBar = desktop.tabBarController(*tabs);
  const auto leftPage = desktop.viewController(*left);
  const auto rightPage = desktop.viewController(*right);
  pages.setCurrentWidget(tabs);
  EXPECT_EQ(tabBar->kind(), ViewControllerKind::tabBar);
  EXPECT_EQ(top(), leftPage.get());
  tabs->setCurrentIndex(1);
  EXPECT_EQ(top(), rightPage.get());
}

TEST_F(HostControllers, StayOnTopOfTheAlertsTheyShow) {
  const auto page = desktop.viewController(*first);
  const auto alert = makeAlert();
  page->presentViewController(alert, true, nullptr);
  EXPECT_EQ(page->presentedViewController(), alert.get());
  EXPECT_EQ(alert->kind(), ViewControllerKind::alert);
  EXPECT_EQ(top(), page.get());

  ASSERT_NE(Sheet::topOf(pages), nullptr);
  QTest::keyClick(pages.windowHandle(), Qt::Key_Return);
  EXPECT_TRUE(QTest::qWaitFor([&] { return page->presentedViewController() == nullptr; }));
}

TEST(HostsOfAPlatformThatGoes, LetGoOfTheScreensThatKeepThem) {
  QWidget window;
  window.show();
  std::optional<DesktopPlatform> desktop(DesktopSettings{});
  std::weak_ptr<ViewController> screen;
  {
    const ScopedPlatform scope(desktop->platform());
    const auto host = desktop->viewController(window);
    QV_AgeGateHelper::startAgeGateProcess(host, 16, nullptr, nullptr,
                                          QV_AgeGateColorTheme::defaultTheme(), "", "");
    screen = host->presentedViewController()->retained();
  }
  EXPECT_FALSE(screen.expired()) << "the screen and its host keep each other";
  EXPECT_NE(Sheet::topOf(window), nullptr);
  desktop.reset();
  EXPECT_TRUE(screen.expired());
  EXPECT_EQ(Sheet::topOf(window), nullptr);
}

TEST_F(HostControllers, OfAWidgetThatIsGoneShowNothing) {
  const auto page = desktop.viewController(*first);
  delete first;
  EXPECT_EQ(window->childViewController(), nullptr);
  auto replacement = std::make_unique<QWidget>();
  EXPECT_NE(desktop.viewController(*replacement), page);
}

TEST_F(HostControllers, AreOthersForAnotherWidgetAtTheSameAddress) {
  std::optional<QWidget> page(std::in_place);
  const auto before = desktop.viewController(*page);
  page.emplace();
  EXPECT_NE(desktop.viewController(*page), before);
}

TEST_F(HostControllers, CanGoBeforeTheirWidgets) {
  desktop.viewController(*first).reset();
  EXPECT_EQ(window->childViewController(), nullptr);
  EXPECT_NE(desktop.viewController(*first), nullptr);
}

}  // namespace
}  // namespace qv_commons::desktop
