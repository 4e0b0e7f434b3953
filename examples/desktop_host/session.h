// One run of the host app: its window, the library's desktop adapter, and a row for each service.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "qv_commons/platform/desktop/desktop_platform.h"
#include "qv_commons/qv_commons.h"

#include "examples/desktop_host/host_window.h"
#include "examples/desktop_host/played_phone.h"

namespace host {

// Which device the services are told that they run on.
enum class Device { thisDesktop, playedPhone };

class Session final {
 public:
  Session(qv_commons::desktop::DesktopSettings settings, Device device, std::int64_t minimumAge);

  HostWindow& window() { return *window_; }
  const PlayedPhone& phone() const { return phone_; }

  // How often the host has been told that the support e-mail's composer is gone, and that the user
  // may go on past the age gate.
  int supportCompletions() const { return support_->completions; }
  int ageGateCompletions() const { return ageGateCompletions_; }

 private:
  struct SupportObserver final : qv_commons::QV_SupportHelperDelegate {
    explicit SupportObserver(HostWindow& told) : window(told) {}
    void onCompletion() override;
    HostWindow& window;
    int completions = 0;
  };

  void addServices();
  void addTopControllerPage();
  void startAgeGate();
  void contactSupport(qv_commons::ViewController& screen);

  qv_commons::desktop::DesktopPlatform desktop_;
  PlayedPhone phone_;
  qv_commons::ScopedPlatform scope_;
  std::int64_t minimumAge_;
  std::unique_ptr<HostWindow> window_;
  std::shared_ptr<qv_commons::ViewController> home_;
  std::vector<std::shared_ptr<qv_commons::ViewController>> pages_;
  std::shared_ptr<SupportObserver> support_;
  int ageGateCompletions_ = 0;
};

}  // namespace host
