// What every view controller of the desktop adapter is: a window of its own, shown over the window
// of whoever presents it.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include "qv_commons/platform/desktop/desktop_context.h"
#include "qv_commons/platform/presentation.h"

namespace qv_commons::desktop {

class DesktopController : public NativeController {
 public:
  QWidget* window() const { return window_; }  // null once it has been destroyed

  void setModalInPresentation(bool modal) { modalInPresentation_ = modal; }
  void setOverrideUserInterfaceStyle(UserInterfaceStyle style);
  ViewController* childViewController() const { return nullptr; }

 protected:
  DesktopController(ViewController& controller, SharedContext context)
      : NativeController(controller, context->presentations), context_(std::move(context)) {}

  // Takes `window` as this controller's; to be called once, by the constructor.
  void attachWindow(QWidget& window);

  DesktopContext& context() const { return *context_; }
  bool isModalInPresentation() const { return modalInPresentation_; }

  // Where the window comes up, called before each time that it does.
  virtual void place(QWidget& window, const QWidget& presenterWindow);

  // Dresses the window, which is light or dark as told.
  virtual void dress(UserInterfaceStyle) {}

  // The user pressed Escape or closed the window, which is on the screen and stays there unless
  // this takes it away.
  virtual void userLeaves();

  void show(bool animated) override;
  void hide(bool animated) override;
  void afterTransition(Completion transitionDone) override;

 private:
  // Sees what happens to the window before the window does.
  class Watcher final : public QObject {
   public:
    explicit Watcher(DesktopController& controller) : controller_(controller) {}
    bool eventFilter(QObject* watched, QEvent* event) override;

   private:
    DesktopController& controller_;
  };

  void redress();

  SharedContext context_;
  QPointer<QWidget> window_;
  Watcher watcher_{*this};
  bool modalInPresentation_ = false;
  UserInterfaceStyle overrideStyle_ = UserInterfaceStyle::unspecified;
};

}  // namespace qv_commons::desktop
