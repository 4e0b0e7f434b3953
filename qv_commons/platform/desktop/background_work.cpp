#include "qv_commons/platform/desktop/background_work.h"

#include <QCoreApplication>
#include <QMetaObject>
#include <utility>

namespace qv_commons::desktop {

BackgroundWork::~BackgroundWork() {
  stop();
  finish();
}

void BackgroundWork::finish() {
  if (!isRunning()) return;
  thread_.join();
  QCoreApplication::removePostedEvents(&receiver_);
}

void BackgroundWork::start(Work work, std::function<void()> done) {
  isStopped_ = false;
  thread_ = std::thread([this, work = std::move(work), done = std::move(done)]() mutable {
    work(isStopped_);
    QMetaObject::invokeMethod(
        &receiver_,
        [this, done = std::move(done)] {
          thread_.join();
          done();
        },
        Qt::QueuedConnection);
  });
}

}  // namespace qv_commons::desktop
