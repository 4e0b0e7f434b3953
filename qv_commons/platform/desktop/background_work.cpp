#include "qv_commons/platform/desktop/background_work.h"

#include <QCoreApplication>
#include <QMetaObject>
#include <utility>

namespace qv_commons::desktop {
namespace {

thread_local const std::atomic<bool>* ofThisThread = nullptr;

}  // namespace

BackgroundWork::~BackgroundWork() {
  stop();
  finish();
}

bool BackgroundWork::isStopRequested() {
  return ofThisThread != nullptr && *ofThisThread;
}

void BackgroundWork::finish() {
  if (!isRunning()) return;
  thread_.join();
  QCoreApplication::removePostedEvents(&receiver_);
}

void BackgroundWork::start(Work work, std::function<void()> done) {
  isStopped_ = false;
  thread_ = std::thread([this, work = std::move(work), done = std::move(done)]() mutable {
    ofThisThread = &isStopped_;
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
