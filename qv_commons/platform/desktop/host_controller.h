// The view controllers of what the host owns: a window, a page of it, or a container of pages.
#pragma once

#include <QObject>
#include <QPointer>
#include <functional>

#include "qv_commons/platform/desktop/desktop_controller.h"

namespace qv_commons::desktop {

// The page that a container shows at the moment, or null.
using ShownPage = std::function<QWidget*()>;

class HostController final : public NativeOf<ViewController, DesktopController> {
 public:
  // `widget` with the controllers of its pages found through `shownPage`, which may be absent.
  HostController(ViewControllerKind kind, SharedContext context, QWidget& widget,
                 ShownPage shownPage);
  ~HostController() override;

  // Whether this is still the controller of `widget`, of that kind.
  bool isOf(const QWidget& widget, ViewControllerKind kind) const {
    return widget_ == &widget && this->kind() == kind;
  }

  ViewController* childViewController() const override;
  QWidget* window() const override { return widget_ == nullptr ? nullptr : widget_->window(); }

 protected:
  // One that is presented is a window already, and comes up as one over the presenter's.
  void show(bool animated) override;
  void hide(bool animated) override;

 private:
  // Sees the keys of the widget's window, and its end.
  class Watcher final : public QObject {
   public:
    explicit Watcher(HostController& controller) : controller_(controller) {}
    bool eventFilter(QObject* watched, QEvent* event) override;

   private:
    HostController& controller_;
  };

  Watcher watcher_{*this};
  QPointer<QWidget> widget_;  // null once it has been destroyed
  const QWidget* key_;        // what it is known by among the hosts
  ShownPage shownPage_;
};

// The controller of that widget: the same one for as long as somebody holds it.
std::shared_ptr<ViewController> hostViewController(
    const SharedContext& context, QWidget& widget,
    ViewControllerKind kind = ViewControllerKind::plain, ShownPage shownPage = nullptr);

}  // namespace qv_commons::desktop
