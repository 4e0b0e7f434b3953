// The refusal: the screen for a user who is under the host app's minimum age.
//
// It has no way back to the app. The age gate makes and presents it; by itself, with its defaults:
//
//     qv_commons::ScopedPlatform scope(platform.platform());
//     auto refusal = qv_commons::QV_AgeGateRefusedViewController::create(platform.platform());
//     refusal->privacyLink = "https://example.com/privacy";
//     platform.makeViewController("home")->presentViewController(refusal, true, nullptr);
//
// Main thread only.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "qv_commons/age_gate/age_gate_screen.h"
#include "qv_commons/export.h"
#include "qv_commons/platform/text_view_delegate.h"

namespace qv_commons {

class QV_COMMONS_EXPORT QV_AgeGateRefusedViewController final : public AgeGateScreen,
                                                                public TextViewDelegate {
 public:
  // Also the name of its layout.
  static constexpr std::string_view kClassName = "QV_AgeGateRefusedViewController";

  // A new screen, not yet loaded, from the layout in the library's resource bundle. `platform` must
  // outlive it.
  static std::shared_ptr<QV_AgeGateRefusedViewController> create(const Platform& platform);

  // For adapters: with every field at its default. `native` shows the screen.
  QV_AgeGateRefusedViewController(std::unique_ptr<ViewController> native, const Platform& platform);

  // Connected by the layout: the text with the contact link.
  std::weak_ptr<TextView> contact;

  std::vector<Outlet> outlets() override;
  std::vector<Action> actions() override;

  // Dresses the views, and puts the app's name for "[APPNAME]" in the header. An outlet that is not
  // connected, a header without a text, and texts that don't fit the links are fatal errors.
  void viewDidLoad() override;

  // A chosen link that contains "mailto" goes to `contactUsHandler`, if there is one. The answer is
  // always no: the system takes no action of its own.
  bool shouldInteractWithURL(TextView& textView, std::string_view url, TextRange range) override;
};

}  // namespace qv_commons
