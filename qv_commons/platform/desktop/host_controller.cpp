#include "qv_commons/platform/desktop/host_controller.h"

#include <QEvent>
#include <QKeyEvent>
#include <QWindow>
#include <utility>

namespace qv_commons::desktop {
namespace {

// Another widget may have taken the place in memory of one that is gone.
HostController* findHost(const DesktopContext& context, const QWidget& widget,
                         ViewControllerKind kind) {
  const auto found = context.hosts.find(&widget);
  const bool isSame = found != context.hosts.end() && found->second->isOf(widget, kind);
  return isSame ? found->second : nullptr;
}

}  // namespace

HostController::HostController(ViewControllerKind kind, SharedContext context, QWidget& widget,
                               ShownPage shownPage)
    : NativeOf(kind, std::move(context)),
      widget_(&widget),
      key_(&widget),
      shownPage_(std::move(shownPage)) {
  this->context().hosts[&widget] = this;
  // What is shown over a window goes with it.
  QObject::connect(&widget, &QObject::destroyed, &watcher_, [this] {
    afterTransition([weak = weak_from_this()] {
      const std::shared_ptr<ViewController> self = weak.lock();
      if (self != nullptr && self->presentedViewController() != nullptr) {
        self->dismissViewController(false, nullptr);
      }
    });
  });
}

HostController::~HostController() {
  auto& hosts = context().hosts;
  const auto found = hosts.find(key_);
  if (found != hosts.end() && found->second == this) hosts.erase(found);
}

bool HostController::Watcher::eventFilter(QObject* watched, QEvent* event) {
  const bool isEscape = event->type() == QEvent::KeyPress &&
                        static_cast<QKeyEvent*>(event)->matches(QKeySequence::Cancel);
  const bool isClose = event->type() == QEvent::Close && event->spontaneous();
  if (!isEscape && !isClose) return QObject::eventFilter(watched, event);
  event->ignore();
  controller_.later([this] { controller_.userLeaves(); });
  return true;
}

void HostController::show(bool) {
  QWidget* shown = window();
  if (shown == nullptr) return;
  shown->installEventFilter(&watcher_);
  shown->setWindowModality(Qt::WindowModal);
  // It gets no parent, which would own it and dress it; the system learns from the transient parent
  // alone which window it belongs to and blocks.
  if (const QWidget* below = presenterWindow()) {
    shown->setGeometry(below->geometry());
    shown->winId();
    shown->windowHandle()->setTransientParent(below->windowHandle());
  }
  shown->show();
  shown->activateWindow();
}

void HostController::hide(bool) {
  QWidget* shown = window();
  if (shown == nullptr) return;
  shown->removeEventFilter(&watcher_);
  shown->hide();
}

ViewController* HostController::childViewController() const {
  const auto& hosts = context().hosts;
  const QWidget* page = shownPage_ && widget_ != nullptr ? shownPage_() : nullptr;
  const auto found = hosts.find(page);
  const bool isThere = found != hosts.end() && found->second->widget_ == page;
  return isThere ? found->second : nullptr;
}

std::shared_ptr<ViewController> hostViewController(const SharedContext& context, QWidget& widget,
                                                   ViewControllerKind kind, ShownPage shownPage) {
  if (HostController* host = findHost(*context, widget, kind)) return host->retained();
  return std::make_shared<HostController>(kind, context, widget, std::move(shownPage));
}

}  // namespace qv_commons::desktop
