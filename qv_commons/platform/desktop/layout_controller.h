// The native of the library's screens: a sheet whose views come from a layout.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "qv_commons/platform/application.h"
#include "qv_commons/platform/desktop/icu_calendar.h"
#include "qv_commons/platform/desktop/sheet_controller.h"
#include "qv_commons/platform/device.h"
#include "qv_commons/platform/layout_screen.h"

namespace qv_commons::desktop {

// What the screens need of the platform; all of it outlives them.
struct ScreenServices {
  const IcuCalendar& calendar;
  Application& application;  // opens links
  const Device& device;      // knows the user's languages
};

class LayoutController final : public NativeOf<ViewController, SheetController> {
 public:
  // `path` is the layout file. It is read when the screen is first shown.
  LayoutController(SharedContext context, const ScreenServices& services, std::string path);
  ~LayoutController() override;

  // To be called once, before the first show; `screen` owns this.
  void setScreen(LayoutScreen& screen);

 protected:
  void show(bool animated) override;
  void dress(UserInterfaceStyle style) override;

 private:
  void load();

  ScreenServices services_;
  std::string path_;
  std::vector<std::shared_ptr<View>> views_;  // gone before the widgets that they refer to
  LayoutScreen* screen_ = nullptr;
  bool isLoaded_ = false;
};

}  // namespace qv_commons::desktop
