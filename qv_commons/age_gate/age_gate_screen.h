// What the age gate's two screens have in common.
//
//     qv_commons::ScopedPlatform scope(platform.platform());
//     auto refusal = qv_commons::QV_AgeGateRefusedViewController::create(platform.platform());
//     refusal->setContent(nullptr, "https://example.com/privacy", "https://example.com/terms",
//                         qv_commons::QV_AgeGateColorTheme::defaultTheme());
//
// Main thread only.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "qv_commons/age_gate/age_gate_color_theme.h"
#include "qv_commons/age_gate/contact_us_handler.h"
#include "qv_commons/export.h"
#include "qv_commons/platform/layout_screen.h"

namespace qv_commons {

class Label;
class TextView;

class QV_COMMONS_EXPORT AgeGateScreen : public LayoutScreen {
 public:
  // Connected by the layout.
  std::weak_ptr<View> bg;       // the panel
  std::weak_ptr<TextView> tos;  // the policy text with its two links
  std::weak_ptr<Label> header;

  // To be set before the screen loads.
  std::string privacyLink;
  std::string termsOfServiceLink;
  std::shared_ptr<QV_AgeGateColorTheme> colorTheme;  // at first `defaultTheme()`
  ContactUsHandler contactUsHandler;                 // the age gate hands it on to the refusal

  // Sets these four.
  void setContent(ContactUsHandler contactUs, std::string_view privacy,
                  std::string_view termsOfService, std::shared_ptr<QV_AgeGateColorTheme> theme);

  std::string_view headingOutlet() const final { return "header"; }

 protected:
  // A new screen, not yet loaded, from the layout in the library's resource bundle that has its
  // class's name.
  template <class Screen>
  static std::shared_ptr<Screen> fromLayout(const Platform& platform) {
    const Maker make = [](auto native, auto& to) -> std::unique_ptr<LayoutScreen> {
      return std::make_unique<Screen>(std::move(native), to);
    };
    return std::static_pointer_cast<Screen>(fromLayout(Screen::kClassName, platform, make));
  }

  // `className` outlives the screen.
  AgeGateScreen(std::string_view className, std::unique_ptr<ViewController> native,
                const Platform& platform);

  void setUpPanel();
  void setUpPolicyLinks();
  static void roundCorners(View& view);

  // The view behind the outlet `name`, which belongs to the screen; a fatal error if it is not
  // connected.
  template <class ViewType>
  ViewType& connected(const std::weak_ptr<ViewType>& outlet, std::string_view name) const {
    const std::shared_ptr<ViewType> view = outlet.lock();
    if (!view) stopAtOutlet(name);
    return *view;
  }

  const Platform& platform_;

 private:
  using Maker = std::unique_ptr<LayoutScreen> (*)(std::unique_ptr<ViewController> native,
                                                  const Platform& platform);
  static std::shared_ptr<LayoutScreen> fromLayout(std::string_view name, const Platform& platform,
                                                  Maker make);
  [[noreturn]] void stopAtOutlet(std::string_view name) const;

  const std::string_view className_;
};

}  // namespace qv_commons
