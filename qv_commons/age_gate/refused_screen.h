// Making the refusal and naming the app in it, alike for a start that finds the user refused and
// for the confirm that refuses. Not for hosts.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "qv_commons/age_gate/age_gate_refused_view_controller.h"

namespace qv_commons {

struct RefusedScreenContent {
  ContactUsHandler contactUsHandler;
  std::string privacyLink;
  std::string termsOfServiceLink;
  std::shared_ptr<QV_AgeGateColorTheme> colorTheme;
};

// Straight after the confirm the refusal keeps the look of that moment; at a later start it follows
// the system.
enum class RefusedScreenLook : std::uint8_t { followsSystem, pinned };

// Not yet presented. Modal in presentation, and its look pinned, from version 13.0 on only.
std::shared_ptr<QV_AgeGateRefusedViewController> makeRefusedScreen(const Platform& platform,
                                                                   RefusedScreenContent content,
                                                                   RefusedScreenLook look);

// `text` with every "[APPNAME]", spelled exactly so, replaced by `appName`. A placeholder within
// the app's name is not replaced again. Any thread.
std::string fillInAppName(std::string_view text, std::string_view appName);

}  // namespace qv_commons
