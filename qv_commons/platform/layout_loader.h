// Screens whose views come from a layout in a resource bundle.
//
// A native screen loads its layout when it is first shown: it connects the outlets by name, the
// actions by selector name, and then calls `viewDidLoad`.
//
//     class Greeting final : public qv_commons::LayoutScreen {
//      public:
//       using LayoutScreen::LayoutScreen;
//       std::weak_ptr<qv_commons::Label> title;
//
//       std::vector<qv_commons::Outlet> outlets() override { return {{"title", &title}}; }
//       std::vector<qv_commons::Action> actions() override { return {}; }
//       void viewDidLoad() override { title.lock()->setText("Hello"); }
//     };
#pragma once

#include <functional>
#include <memory>
#include <string_view>
#include <variant>
#include <vector>

#include "qv_commons/platform/bundle.h"
#include "qv_commons/platform/view_controller.h"
#include "qv_commons/platform/views.h"

namespace qv_commons {

// A view of the layout by its name, and the screen's reference to it. The reference stays empty
// where the layout has no view of that name and class.
struct Outlet {
  std::string_view name;
  std::variant<std::weak_ptr<View>*, std::weak_ptr<Label>*, std::weak_ptr<Button>*,
               std::weak_ptr<DatePicker>*, std::weak_ptr<TextView>*>
      reference;
};

// What a view of the layout triggers by its selector name, for example "onConfirmPressed:".
struct Action {
  std::string_view selector;
  Completion run;
};

class LayoutScreen : public ViewController {
 public:
  using ViewController::ViewController;

  virtual std::vector<Outlet> outlets() = 0;
  virtual std::vector<Action> actions() = 0;

  // Called once, after the outlets and actions have been connected.
  virtual void viewDidLoad() = 0;
};

// Makes the C++ side of a screen for the native side that is to own it.
using LayoutScreenFactory =
    std::function<std::unique_ptr<LayoutScreen>(NativeViewController& native)>;

class LayoutLoader {
 public:
  virtual ~LayoutLoader() = default;

  // A new screen, not yet loaded, whose views will come from the layout `name` in `bundle`; null
  // stands for the main bundle. A layout that is missing or unreadable is a fatal error, when the
  // screen loads at the latest.
  virtual std::shared_ptr<LayoutScreen> initWithNibName(std::string_view name,
                                                        std::shared_ptr<Bundle> bundle,
                                                        const LayoutScreenFactory& make) = 0;
};

}  // namespace qv_commons
