#include "examples/desktop_host/service_pages.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QVBoxLayout>

#include "qv_commons/platform/application.h"
#include "qv_commons/platform/desktop/desktop_search_bar.h"
#include "qv_commons/platform/platform.h"
#include "qv_commons/platform/view_controllers.h"
#include "qv_commons/qv_commons.h"

#include "examples/desktop_host/host_window.h"

namespace host {
namespace {

using namespace qv_commons;

QString toQt(const std::string& text) {
  return QString::fromStdString(text);
}

QVBoxLayout* columnOf(QWidget* page) {
  auto* column = new QVBoxLayout(page);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(10);
  return column;
}

QPushButton* makeButton(const QString& name, const QString& text, std::function<void()> use) {
  auto* button = new QPushButton(text);
  button->setObjectName(name);
  QObject::connect(button, &QPushButton::clicked, button, std::move(use));
  return button;
}

void addFact(QVBoxLayout& column, const QString& caption, const QString& fact) {
  column.addWidget(makeLabel(caption, "hint"));
  column.addWidget(makeLabel(fact, "rowTitle"));
}

QString inSeconds(const QString& text) {
  const auto seconds = QV_TimeHelper::tryHmsToSeconds(text.toStdString());
  if (!seconds) return "“" + text + "” is no duration. Try 1:02:05.";
  return QString("%1 seconds, or %2 minutes, or %3 days\nas a clock: %4\nin digits: %5")
      .arg(*seconds)
      .arg(QV_TimeHelper::secondsToMinutes(*seconds, true))
      .arg(QV_TimeHelper::secondsToDays(static_cast<PlatformInteger>(*seconds)))
      .arg(toQt(QV_TimeHelper::secondsToHms(*seconds)),
           toQt(QV_TimeHelper::secondsToHmsDigits(*seconds)));
}

}  // namespace

QWidget* makeAppInfoPage() {
  auto* page = new QWidget;
  auto* column = columnOf(page);
  addFact(*column, "Name", toQt(QV_AppInfoHelper::appName()));
  addFact(*column, "Version", toQt(QV_AppInfoHelper::appVersion()));
  addFact(*column, "Identifier", toQt(QV_AppInfoHelper::appId()));
  column->addStretch();
  return page;
}

QWidget* makeLinksPage(const Say& say) {
  auto* page = new QWidget;
  auto* column = columnOf(page);
  column->addWidget(makeLabel("Each opens in the program that your system has for it.", "text"));
  column->addWidget(makeButton("review", "Write a review", [say] {
    QV_RateHelper::openWriteReviewOnAppStore("id123456789");
    say("Asked the system for the store's review page.");
  }));
  const auto addLink = [&](const QString& name, const QString& text, const URL& url) {
    column->addWidget(makeButton(name, text, [say, url] {
      currentPlatform().application.openURL(url);
      say("Asked the system for " + toQt(url.text()));
    }));
  };
  addLink("privacyPolicy", "Privacy policy", QV_Links::privacyPolicy());
  addLink("termsOfService", "Terms of service", QV_Links::termsOfService());
  column->addStretch();
  return page;
}

QWidget* makeTimePage() {
  auto* page = new QWidget;
  auto* column = columnOf(page);
  auto* now = makeLabel("", "rowTitle");
  now->setObjectName("now");
  const auto showNow = [now] {
    now->setText(QString::number(QV_TimeHelper::currentTimeInMilliseconds()) + " ms\n" +
                 QString::number(QV_TimeHelper::currentTimeInSeconds()) + " s");
  };
  showNow();
  column->addWidget(makeLabel("Since 1 January 1970, 00:00 UTC", "hint"));
  column->addWidget(now);
  column->addWidget(makeButton("readClock", "Read the clock again", showNow));

  auto* duration = new QLineEdit("1:02:05");
  duration->setObjectName("duration");
  duration->setAccessibleName("A duration in hours, minutes and seconds");
  auto* reading = makeLabel(inSeconds(duration->text()), "text");
  reading->setObjectName("reading");
  QObject::connect(duration, &QLineEdit::textChanged, reading,
                   [reading](const QString& text) { reading->setText(inSeconds(text)); });
  column->addSpacing(12);
  column->addWidget(makeLabel("A duration in hours, minutes and seconds", "hint"));
  column->addWidget(duration);
  column->addWidget(reading);
  column->addStretch();
  return page;
}

QTabWidget* makeTopControllerPage(const desktop::DesktopPlatform& desktop, QStackedWidget& window,
                                  const std::function<void()>& goHome, const Say& say) {
  auto* tabs = new QTabWidget;
  tabs->setDocumentMode(true);
  tabs->tabBar()->setDrawBase(false);
  for (const QString& name : {QString("First"), QString("Second")}) {
    auto* tab = new QWidget;
    tab->setObjectName(name);
    tab->setProperty("role", "page");
    auto* column = columnOf(tab);
    column->setContentsMargins(20, 16, 20, 0);
    column->addWidget(makeBackButton(goHome), 0, Qt::AlignLeading);
    column->addWidget(
        makeLabel("The look-up starts at the window and ends at what is on top of "
                  "it. An alert counts as the page that shows it.",
                  "text"));
    column->addWidget(makeButton("showAlert", "Show an alert", [tab, &desktop, &window, say] {
      const auto page = desktop.viewController(*tab);
      auto alert = currentPlatform().viewControllers.makeAlertController(
          "An alert", "The page below it is what counts.", AlertStyle::alert);
      alert->addAction("OK", AlertActionStyle::standard, nullptr);
      page->presentViewController(std::move(alert), true, [tab, page, &desktop, &window, say] {
        const auto start = desktop.navigationController(window);
        const bool found = QV_ViewControllerHelper::topViewController(start.get()) == page.get();
        say(found ? "On top: the page “" + tab->objectName() + "”."
                  : "On top: another controller.");
      });
    }));
    column->addStretch();
    tabs->addTab(tab, name);
  }
  return tabs;
}

QWidget* makeSearchPage(const Say& say) {
  auto* page = new QWidget;
  auto* column = columnOf(page);
  auto* bar = new desktop::DesktopSearchBar("Search notes");
  bar->setObjectName("searchBar");
  column->addWidget(bar);
  column->addWidget(makeLabel("The button reaches the bar's own text field.", "text"));
  column->addWidget(makeButton("fillIn", "Fill in “birthday”", [bar, say] {
    QLineEdit* field = qv_searchTextField_all_iOS_versions(*bar);
    field->setText("birthday");
    say("The field holds “" + field->text() + "”.");
  }));
  column->addStretch();
  return page;
}

}  // namespace host
