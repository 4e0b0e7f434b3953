// What the age gate's two screens have in common. Not for hosts.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "qv_commons/platform/view_controllers.h"
#include "qv_commons/platform/views.h"

namespace qv_commons {

struct Platform;

// A new screen from the layout of that name in the library's resource bundle.
std::shared_ptr<LayoutScreen> makeScreen(const Platform& platform, std::string_view layout,
                                         const LayoutScreenFactory& make);

// A new screen from the layout that has its class's name.
template <class Screen>
std::shared_ptr<Screen> makeScreen(const Platform& platform) {
  return std::static_pointer_cast<Screen>(
      makeScreen(platform, Screen::kClassName, [&platform](std::unique_ptr<ViewController> native) {
        return std::make_shared<Screen>(std::move(native), platform);
      }));
}

[[noreturn]] void stopAtOutlet(std::string_view screen, std::string_view name);

// The view behind the outlet `name`; a fatal error if it is not connected.
template <class Screen, class ViewType>
std::shared_ptr<ViewType> connected(const Screen&, const std::weak_ptr<ViewType>& outlet,
                                    std::string_view name) {
  std::shared_ptr<ViewType> view = outlet.lock();
  if (!view) stopAtOutlet(Screen::kClassName, name);
  return view;
}

inline void roundCorners(View& view) {
  view.setCornerRadius(8);
  view.setClipsToBounds(true);
}

}  // namespace qv_commons
