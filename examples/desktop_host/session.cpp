#include "examples/desktop_host/session.h"

#include <utility>

namespace host {

using namespace qv_commons;

Session::Session(desktop::DesktopSettings settings, Device device)
    : desktop_(std::move(settings)),
      phone_(desktop_.platform()),
      scope_(device == Device::playedPhone ? phone_.platform() : desktop_.platform()),
      window_(std::make_unique<HostWindow>(QString::fromStdString(QV_AppInfoHelper::appName()))),
      home_(desktop_.viewController(*window_)),
      support_(std::make_shared<SupportObserver>(*window_)) {
  addServices();
}

void Session::addServices() {
  window_->addService("contactSupport", "Contact support",
                      "Write to us. What we need to know is filled in.",
                      [this] { contactSupport(); });
}

void Session::contactSupport() {
  QV_SupportHelper::shared().contactSupport(*home_, "support@example.com", "Help with Notes",
                                            {"pro_monthly", "remove_ads"}, std::nullopt, "User: 42",
                                            support_);
}

void Session::SupportObserver::onCompletion() {
  ++completions;
  window.say("The message window has closed.");
}

}  // namespace host
