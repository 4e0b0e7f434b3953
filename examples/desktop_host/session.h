// One run of the host app: its window, the library's desktop adapter, and a row for each service.
#pragma once

#include <memory>

#include "qv_commons/platform/desktop/desktop_platform.h"
#include "qv_commons/qv_commons.h"

#include "examples/desktop_host/host_window.h"
#include "examples/desktop_host/played_phone.h"

namespace host {

// Which device the services are told that they run on.
enum class Device { thisDesktop, playedPhone };

class Session final {
 public:
  Session(qv_commons::desktop::DesktopSettings settings, Device device);

  HostWindow& window() { return *window_; }

  // How often the host has been told that the support e-mail's composer is gone.
  int supportCompletions() const { return support_->completions; }

 private:
  struct SupportObserver final : qv_commons::QV_SupportHelperDelegate {
    explicit SupportObserver(HostWindow& told) : window(told) {}
    void onCompletion() override;
    HostWindow& window;
    int completions = 0;
  };

  void addServices();
  void contactSupport();

  qv_commons::desktop::DesktopPlatform desktop_;
  PlayedPhone phone_;
  qv_commons::ScopedPlatform scope_;
  std::unique_ptr<HostWindow> window_;
  std::shared_ptr<qv_commons::ViewController> home_;
  std::shared_ptr<SupportObserver> support_;
};

}  // namespace host
