// A screen of the memory adapter whose views come from a layout, and the user in front of it.
//
//     auto host = platform.makeViewController("home");
//     qv_commons::ScopedPlatform scope(platform.platform());
//     qv_commons::QV_AgeGateHelper::startAgeGateProcess(
//         host, 18, nullptr, nullptr, qv_commons::QV_AgeGateColorTheme::defaultTheme(),
//         "https://example.com/privacy", "https://example.com/terms");
//
//     auto& screen = *platform.viewControllers().lastScreen();
//     screen.pick("datePicker", qv_commons::memory::utcDate(2000, 2, 29));
//     screen.tap("confirmBtn");
//
// It loads its views when it is first presented.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "qv_commons/export.h"
#include "qv_commons/platform/application.h"
#include "qv_commons/platform/layout_screen.h"
#include "qv_commons/platform/memory/memory_controller.h"
#include "qv_commons/platform/memory/memory_host.h"
#include "qv_commons/platform/memory/memory_text_view.h"

namespace qv_commons::memory {

class QV_COMMONS_EXPORT MemoryScreen final : public NativeOf<ViewController, MemoryController> {
 public:
  struct Source {
    std::shared_ptr<const MemoryBundle> bundle;
    std::string layout;
  };

  MemoryScreen(Record& record, Transitions& transitions, Application& application, std::string name,
               Source source);

  // The library's screen that this is the native of.
  LayoutScreen& screen() const { return static_cast<LayoutScreen&>(controller()); }

  // Connects the views and calls `viewDidLoad`, the first time. A layout that the bundle doesn't
  // have is a fatal error.
  void load();

  // If set, is told of a name that no view has, with those that there are, before that becomes a
  // fatal error; what it throws goes to the caller. The screen takes it from the factory's.
  std::function<void(const std::string&)> onWrongName;

  // The view of that name, by its class: `view<MemoryLabel>("header").text()`. A fatal error if
  // the loaded screen has none of that name and class.
  template <class ViewType>
  ViewType& view(std::string_view name) const {
    auto* found = dynamic_cast<ViewType*>(findView(name));
    if (found == nullptr) failWithoutView(name);
    return *found;
  }

  // What the user does. False, and nothing happens, if the screen is not on top, the button is
  // disabled, or that UTF-16 unit of the text has no link that can be tapped.
  bool tap(std::string_view button);
  bool pick(std::string_view datePicker, Instant date);  // past the maximum: the maximum
  bool tapLink(std::string_view textView, std::size_t unit);

 private:
  bool isOnTop() const { return isOnScreen() && presented() == nullptr; }
  void trigger(std::string_view view);
  View* findView(std::string_view name) const;
  [[noreturn]] void failWithoutView(std::string_view view) const;
  void show(bool) override { load(); }

  Application& application_;
  Source source_;
  bool loaded_ = false;
  MemoryLayout layout_;
  std::map<std::string, std::shared_ptr<View>, std::less<>> views_;
};

}  // namespace qv_commons::memory
