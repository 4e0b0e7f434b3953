// A screen of the memory adapter whose views come from a layout, and the user in front of it.
//
//     auto host = platform.makeViewController("home");
//     qv_commons::ScopedPlatform scope(platform.platform());
//     qv_commons::QV_AgeGateHelper::startAgeGateProcess(
//         host, 18, nullptr, nullptr, qv_commons::QV_AgeGateColorTheme::defaultTheme(),
//         "https://example.com/privacy", "https://example.com/terms");
//
//     auto screen = platform.layoutLoader().lastScreen();
//     screen->pick("datePicker", 951782400);  // 2000-02-29
//     screen->tap("confirmBtn");
//
// It loads its views when it is first presented.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "qv_commons/platform/application.h"
#include "qv_commons/platform/layout_loader.h"
#include "qv_commons/platform/memory/memory_host.h"
#include "qv_commons/platform/memory/memory_node.h"
#include "qv_commons/platform/memory/memory_text_view.h"

namespace qv_commons::memory {

class MemoryScreen final : public MemoryNode {
 public:
  struct Source {
    std::shared_ptr<const MemoryBundle> bundle;
    std::string layout;
  };

  MemoryScreen(Record& record, Transitions& transitions, Application& application, std::string name,
               Source source);

  // Connects the views and calls `viewDidLoad`, the first time. A layout that the bundle doesn't
  // have is a fatal error.
  void load();

  // The view of that name, by its class: `view<MemoryLabel>("header").text()`. A fatal error where
  // the loaded screen has none of that name and class.
  template <class ViewType>
  ViewType& view(std::string_view name) const {
    auto* found = dynamic_cast<ViewType*>(findView(name));
    if (found == nullptr) failWithoutView(name);
    return *found;
  }

  // What the user does. False, and nothing happens, where the screen is not on top, the button is
  // disabled, or there is no link over that UTF-16 unit of a text whose links can be chosen.
  bool tap(std::string_view button);
  bool pick(std::string_view datePicker, double date);  // past the maximum: the maximum
  bool tapLink(std::string_view textView, std::size_t unit);

  LayoutScreen& controller() override { return *screen_; }

 private:
  friend class MemoryLayoutLoader;

  bool isOnTop() const { return isOnScreen() && presentedViewController() == nullptr; }
  void connect(const Outlet& outlet);
  void trigger(std::string_view view);
  View* findView(std::string_view name) const;
  [[noreturn]] void failWithoutView(std::string_view view) const;
  void show(bool) override { load(); }

  Application& application_;
  Source source_;
  std::unique_ptr<LayoutScreen> screen_;
  bool loaded_ = false;
  MemoryLayout layout_;
  std::map<std::string, std::shared_ptr<View>, std::less<>> views_;
};

class MemoryLayoutLoader final : public LayoutLoader {
 public:
  MemoryLayoutLoader(Record& record, Transitions& transitions, Application& application,
                     MemoryBundles& bundles)
      : record_(record), transitions_(transitions), application_(application), bundles_(bundles) {}

  // Takes what it made off the screen: a screen that keeps its host would keep itself alive.
  ~MemoryLayoutLoader() override;

  // The newest screen that lives, or null. In the record they are screen1, screen2 and so on.
  std::shared_ptr<MemoryScreen> lastScreen() const;

  std::shared_ptr<LayoutScreen> initWithNibName(std::string_view name,
                                                std::shared_ptr<Bundle> bundle,
                                                const LayoutScreenFactory& make) override;

 private:
  Record& record_;
  Transitions& transitions_;
  Application& application_;
  MemoryBundles& bundles_;
  std::vector<std::weak_ptr<MemoryScreen>> screens_;
};

}  // namespace qv_commons::memory
