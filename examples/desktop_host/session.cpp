#include "examples/desktop_host/session.h"

#include <utility>

#include "examples/desktop_host/service_pages.h"

namespace host {

using namespace qv_commons;

Session::Session(desktop::DesktopSettings settings, Device device, std::int64_t minimumAge)
    : desktop_(std::move(settings)),
      phone_(desktop_.platform()),
      scope_(device == Device::playedPhone ? phone_.platform() : desktop_.platform()),
      minimumAge_(minimumAge),
      window_(std::make_unique<HostWindow>(
          QString::fromStdString(QV_AppInfoHelper::appName()),
          currentPlatform().device.userInterfaceStyle() == UserInterfaceStyle::dark)),
      home_(desktop_.viewController(*window_)),
      support_(std::make_shared<SupportObserver>(*window_)) {
  addServices();
}

void Session::addServices() {
  const auto say = [this](const QString& text) { window_->say(text); };
  window_->addService("start", "Start", "The age gate, then the app.", [this] { startAgeGate(); });
  window_->addService("contactSupport", "Contact support",
                      "Write to us. What we need to know is filled in.",
                      [this] { contactSupport(*home_); });
  window_->addPage("links", "Review and legal", "The store's review page, the two policies.",
                   makeLinksPage(say));
  window_->addPage("appInfo", "About this app", "Its name, version and identifier.",
                   makeAppInfoPage());
  window_->addPage("time", "Time", "The clock, and durations as text.", makeTimePage());
  addTopControllerPage();
  window_->addPage("search", "Search", "A search bar and the field in it.", makeSearchPage(say));
}

void Session::addTopControllerPage() {
  QTabWidget* tabs = makeTopControllerPage(
      desktop_, window_->pages(), [this] { window_->goHome(); },
      [this](const QString& text) { window_->say(text); });
  window_->addBarePage("topController", "What is on top", "Through pages, tabs and alerts.", tabs);
  // The library's look-up follows the pages that have a controller.
  pages_ = {desktop_.navigationController(window_->pages()), desktop_.tabBarController(*tabs)};
  for (int i = 0; i < tabs->count(); ++i)
    pages_.push_back(desktop_.viewController(*tabs->widget(i)));
}

void Session::startAgeGate() {
  QV_AgeGateHelper::startAgeGateProcess(
      home_, minimumAge_,
      [this] {
        ++ageGateCompletions_;
        window_->say("Welcome. You are in.");
      },
      [this](ViewController& screen) { contactSupport(screen); },
      QV_AgeGateColorTheme::defaultTheme(), QV_Links::privacyPolicy().text(),
      QV_Links::termsOfService().text());
}

void Session::contactSupport(ViewController& screen) {
  QV_SupportHelper::shared().contactSupport(screen, "support@example.com", "Help with Notes",
                                            {"pro_monthly", "remove_ads"}, std::nullopt, "User: 42",
                                            support_);
}

void Session::SupportObserver::onCompletion() {
  ++completions;
  window.say("The message window has closed.");
}

}  // namespace host
