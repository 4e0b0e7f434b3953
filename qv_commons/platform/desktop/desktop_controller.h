// What every view controller of the desktop adapter is.
#pragma once

#include <QWidget>

#include "qv_commons/platform/desktop/desktop_context.h"
#include "qv_commons/platform/presentation.h"

namespace qv_commons::desktop {

class DesktopController : public NativeController {
 public:
  // The window that this controller is shown in, or null.
  virtual QWidget* window() const = 0;

  void setModalInPresentation(bool modal) { modalInPresentation_ = modal; }
  void setOverrideUserInterfaceStyle(UserInterfaceStyle style);
  ViewController* childViewController() const { return nullptr; }

 protected:
  DesktopController(ViewController& controller, SharedContext context)
      : NativeController(controller, context->presentations), context_(std::move(context)) {}

  DesktopContext& context() const { return *context_; }
  const SharedContext& sharedContext() const { return context_; }
  bool isModalInPresentation() const { return modalInPresentation_; }

  // The window of who presents this controller, or null.
  QWidget* presenterWindow() const;

  // Gives the screen the look that it was told or the desktop has.
  void restyle();
  virtual void dress(UserInterfaceStyle) {}

  // The user pressed Escape or the like; the screen stays unless this dismisses it.
  virtual void userLeaves();

  // Runs what the user asked for from the event loop, with this controller kept alive: a widget may
  // be destroyed by it, and nothing of the widget's own may then be running. Dropped if the screen
  // is gone by then.
  void later(Completion action);

  void afterTransition(Completion transitionDone) override;

 private:
  SharedContext context_;
  bool modalInPresentation_ = false;
  UserInterfaceStyle requestedStyle_ = UserInterfaceStyle::unspecified;
};

}  // namespace qv_commons::desktop
