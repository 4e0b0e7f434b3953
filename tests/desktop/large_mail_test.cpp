// A receipt of 100 MB and ten megabytes of short lines: what the main thread has to do with them,
// and how much memory they take.
//
// The main thread's share is counted in pages that it touches for the first time. With
// QV_PRINT_TIMES=1 in the environment, the longest time that the window was held is printed too.
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTextEdit>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <sys/prctl.h>
#include <sys/resource.h>

#include "tests/desktop/support_mail_fixture.h"
#include "tests/support_code/sanitized.h"

namespace qv_commons::desktop {
namespace {

constexpr std::size_t kReceipt = 99'999'999;
constexpr long kPage = 4096;

long mainThreadPages() {
  rusage usage = {};
  ::getrusage(RUSAGE_THREAD, &usage);
  return usage.ru_minflt;
}

// From /proc/self/status, in KB.
long memory(const std::string& name) {
  const std::string status = readFile("/proc/self/status");
  return std::stol(status.substr(status.find("\n" + name + ":") + name.size() + 2));
}

double milliseconds(clockid_t clock) {
  timespec now = {};
  ::clock_gettime(clock, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

// The event loop's longest turn, by the clock on the wall or by what the main thread did itself.
class Heartbeat {
 public:
  explicit Heartbeat(clockid_t clock) : clock_(clock) {
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] {
      const double now = milliseconds(clock_);
      longest_ = std::max(longest_, now - std::exchange(last_, now));
    });
    timer_.start(0);
  }

  double take() { return std::exchange(longest_, 0); }

 private:
  clockid_t clock_;
  QTimer timer_;
  double last_ = milliseconds(clock_);
  double longest_ = 0;
};

class LargeMail : public SupportMailTest {
 protected:
  void SetUp() override {
    if (test::kIsSanitized) GTEST_SKIP() << "a sanitizer's memory is its own";
    ::prctl(PR_SET_THP_DISABLE, 1, 0, 0, 0);  // one page is one page
    // What is loaded and made once is there afterwards.
    const std::string draft = folder_.write("data/drafts/small.eml", "Subject: Help\n\n");
    contactSupport();
    ASSERT_TRUE(waitForLong([&] { return find<QPushButton>(composer(), "drafts").isVisible(); }));
    ASSERT_EQ(std::remove(draft.c_str()), 0);
    click(composer(), "cancel");
    ASSERT_TRUE(waitForLong([&] { return host_->completions == 1; }));
    start();
  }
  void TearDown() override { ::prctl(PR_SET_THP_DISABLE, 0, 0, 0, 0); }

  void start() {
    std::ofstream("/proc/self/clear_refs") << "5";  // forgets the most that was taken so far
    base_ = memory("VmRSS");
    finishStep("");
  }

  ViewController& composer() { return *screen_->presentedViewController(); }

  void contactSupport(const std::string& metadata = "") {
    request(metadata);
    ASSERT_TRUE(waitForLong([&] { return find<QLabel>(composer(), "attaching").isHidden(); }));
  }

  // A slow disk, on a machine that others use.
  static bool waitForLong(const std::function<bool()>& condition) {
    for (int i = 0; i < 6; ++i) {
      if (waitUntil(condition)) return true;
    }
    return false;
  }

  // The pages that the main thread has touched since the last step; and says how long it took.
  long finishStep(const char* name) {
    settle();
    const double held = onTheWall_.take();
    const double own = ofTheThread_.take();
    if (qEnvironmentVariableIsSet("QV_PRINT_TIMES") && *name != '\0') {
      std::printf("%-16s held the window for %5.1f ms at most, %5.1f of its own; %3ld MB at most\n",
                  name, held, own, (memory("VmHWM") - base_) / 1000);
    }
    return mainThreadPages() - std::exchange(pages_, mainThreadPages());
  }

  Heartbeat onTheWall_{CLOCK_MONOTONIC};
  Heartbeat ofTheThread_{CLOCK_THREAD_CPUTIME_ID};
  long base_ = 0;
  long pages_ = 0;
};

// A twentieth of the receipt, on the way of all 233 MB that a step touches at least.
constexpr long kFewPages = static_cast<long>(kReceipt) / 20 / kPage;

TEST_F(LargeMail, WithAReceiptIsNotTheMainThreadsWork) {
  folder_.write("bundle/StoreKit/receipt", std::string(kReceipt, 'x'));
  start();
  contactSupport();
  EXPECT_EQ(find<QLabel>(composer(), "attachmentSize").text(), "133.3 MB");
  EXPECT_LT(finishStep("open"), kFewPages);

  saveDraft(composer());
  ASSERT_TRUE(waitForLong([&] { return host_->completions == 2; }));
  EXPECT_LT(finishStep("save"), kFewPages);
  const std::uintmax_t message =
      std::filesystem::file_size(folder_.path("data/drafts/" + folder_.list("data/drafts").at(0)));

  contactSupport();
  finishStep("open again");
  auto& drafts = find<QPushButton>(composer(), "drafts");
  ASSERT_TRUE(waitForLong([&] { return drafts.isVisible(); }));
  drafts.menu()->actions().at(0)->trigger();
  ASSERT_TRUE(waitForLong([&] { return !drafts.isEnabled(); }));
  ASSERT_TRUE(waitForLong([&] { return drafts.isEnabled(); }));
  EXPECT_LT(finishStep("open the draft"), kFewPages);

  click(composer(), "send");
  ASSERT_TRUE(waitForLong([&] { return host_->completions == 3; }));
  EXPECT_LT(finishStep("send"), kFewPages);
  EXPECT_LT(memory("VmHWM") - base_, static_cast<long>(2 * message / 1024));
}

TEST_F(LargeMail, IsHandedOverBesideTheMainThread) {
  folder_.write("bundle/StoreKit/receipt", std::string(kReceipt, 'x'));
  folder_.write("bin/xdg-email", "");
  folder_.writeProgram("bin/xdg-email", "exit 0");
  const QByteArray path = qgetenv("PATH");
  qputenv("PATH", QByteArray::fromStdString(folder_.path("bin") + ":") + path);
  const DesktopPlatform desktop({.bundleDirectory = folder_.path("bundle"),
                                 .languages = {"en"},
                                 .dataDirectory = folder_.path("data"),
                                 .mailWays = {MailWay::xdgEmail}});
  const ScopedPlatform scope(desktop.platform());
  const auto screen = desktop.viewController(window_);
  start();
  helper_->contactSupport(*screen, "support@example.com", "Help", {}, std::nullopt, "", host_);
  EXPECT_TRUE(waitForLong([&] { return host_->completions == 2; }));
  EXPECT_LT(finishStep("hand over"), kFewPages);
  qputenv("PATH", path);
  const std::vector<std::string> folders = folder_.list("data/handed-over");
  ASSERT_EQ(folders.size(), 1U);
  EXPECT_EQ(std::filesystem::file_size(
                folder_.path("data/handed-over/" + folders[0] + "/Receipt-Data.txt")),
            133'333'332U);
  EXPECT_LT(memory("VmHWM") - base_, 2 * 133'333'332 / 1024);
}

TEST_F(LargeMail, ShowsHowFarItIsAndCanBeStopped) {
  folder_.write("bundle/StoreKit/receipt", std::string(kReceipt, 'x'));
  contactSupport();
  const auto& progress = find<QProgressBar>(composer(), "progress");
  EXPECT_TRUE(progress.isHidden());
  click(composer(), "save");
  std::vector<int> shown;
  ASSERT_TRUE(waitForLong([&] {
    if (progress.isVisible()) shown.push_back(progress.value());
    return !shown.empty() && shown.back() > 0;
  }));
  EXPECT_TRUE(std::is_sorted(shown.begin(), shown.end()));
  EXPECT_LT(shown.back(), 100);
  click(composer(), "cancel");  // Stop
  const auto& notice = find<QTextEdit>(composer(), "notice");
  ASSERT_TRUE(
      waitForLong([&] { return notice.toPlainText() == "Not saved. Saving was stopped."; }));
  EXPECT_TRUE(progress.isHidden());
  EXPECT_TRUE(find<QPushButton>(composer(), "save").isEnabled());
  EXPECT_THAT(folder_.list("data/drafts"), testing::IsEmpty());
}

// As many lines as the text field takes in at once, however many there are; and all are sent.
TEST_F(LargeMail, OfShortLinesShowsItsBeginning) {
  std::string metadata;
  for (int i = 0; i < 1'000'000; ++i) metadata += "a line ##\n";
  start();
  contactSupport(metadata);
  finishStep("a million lines");
  EXPECT_EQ(find<QPlainTextEdit>(composer(), "body").blockCount(), 2000);
  EXPECT_EQ(find<QLabel>(composer(), "hidden").text(),
            "And 10.0 MB more of this text, which are sent as they are.");
  EXPECT_TRUE(find<QLabel>(composer(), "hidden").isVisible());

  press(composer(), Qt::Key_X);
  finishStep("type");
  saveDraft(composer());
  ASSERT_TRUE(waitForLong([&] { return host_->completions == 2; }));
  finishStep("save");
  const std::string draft =
      readFile(folder_.path("data/drafts/" + folder_.list("data/drafts").at(0)));
  EXPECT_THAT(draft.substr(0, 2000),
              testing::HasSubstr("\n\nReason for contacting support:\nx\n\n"));
  EXPECT_TRUE(draft.ends_with("\nIAP: No=20\n" + metadata));
}

}  // namespace
}  // namespace qv_commons::desktop
