// Screens that are opened and closed again and again leave nothing behind.
#include <QApplication>
#include <QDir>
#include <QTest>
#include <cstdlib>
#include <functional>
#include <malloc.h>

#include "qv_commons/age_gate/age_gate_view_controller.h"
#include "qv_commons/platform/view_controllers.h"

#include "tests/desktop/age_gate_fixture.h"

namespace qv_commons::desktop {
namespace {

struct Held {
  qsizetype widgets = QApplication::allWidgets().size();
  qsizetype descriptors = QDir("/proc/self/fd").count();
  qsizetype threads = QDir("/proc/self/task").count();
  std::size_t bytes = ::mallinfo2().uordblks;
};

class ManyScreens : public AgeGateTest {
 protected:
  void expectNothingLeft(const std::function<std::shared_ptr<ViewController>()>& make) {
    constexpr int kWarmUp = 30;
    const int times = std::getenv("QV_LONG_TESTS") != nullptr ? 1000 : 150;
    openAndClose(make, kWarmUp);
    const Held before;
    openAndClose(make, times);
    // What works beside the window may need a moment more.
    const auto isDone = [&] { return Held().threads <= before.threads; };
    EXPECT_TRUE(QTest::qWaitFor(isDone, 20'000));
    const Held after;
    EXPECT_LE(after.widgets, before.widgets);
    EXPECT_LE(after.descriptors, before.descriptors);
    EXPECT_LT(after.bytes, before.bytes + 512 * 1024);
  }

 private:
  void openAndClose(const std::function<std::shared_ptr<ViewController>()>& make, int times) {
    for (int time = 0; time < times; ++time) {
      host_->presentViewController(make(), true, nullptr);
      QCoreApplication::processEvents();
      host_->dismissViewController(true, nullptr);
      QCoreApplication::processEvents();
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QTest::qWait(50);
  }
};

TEST_F(ManyScreens, OfTheAgeGateLeaveNothingBehind) {
  expectNothingLeft([this] { return QV_AgeGateViewController::create(*platform_); });
}

TEST_F(ManyScreens, OfTheComposerLeaveNothingBehind) {
  expectNothingLeft([this] { return platform_->viewControllers.makeMailComposer(); });
}

TEST_F(ManyScreens, OfTheAlertLeaveNothingBehind) {
  expectNothingLeft([this] {
    auto alert =
        platform_->viewControllers.makeAlertController("Error", "It broke.", AlertStyle::alert);
    alert->addAction("OK", AlertActionStyle::standard, nullptr);
    return alert;
  });
}

}  // namespace
}  // namespace qv_commons::desktop
