// What a composer does while its attachment is yet to come.
#include <future>
#include <thread>

#include "tests/desktop/composer_fixture.h"

namespace qv_commons::desktop {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

// Calls back when the body can't be changed any more, as in sending and in saving.
class WhenLocked final : public QObject {
 public:
  explicit WhenLocked(std::function<void()> callback) : callback_(std::move(callback)) {
    QCoreApplication::instance()->installEventFilter(this);
  }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::ReadOnlyChange && watched->objectName() == "body") callback_();
    return false;
  }

 private:
  std::function<void()> callback_;
};

class ComposerPreparing : public ComposerTest {
 protected:
  // A composer whose attachment comes when the test lets it.
  void openPreparing() {
    desktop_.emplace(settings_);
    screen_ = desktop_->viewController(host_);
    composer_ = desktop_->platform().viewControllers.makeMailComposer();
    composer_->setToRecipients({"support@example.com"});
    composer_->setMessageBody("Reason:\n\nApp: x\n", false);
    composer_->setMailComposeDelegate(delegate_);
    composer_->prepare(
        [this, come = come_.get_future().share()] {
          come.wait();
          worker_ = std::this_thread::get_id();
        },
        [this, composer = composer_.get()] {
          ++attached_;
          EXPECT_NE(worker_, std::thread::id());  // not before
          EXPECT_EQ(std::this_thread::get_id(), main_);
          composer->addAttachment({"Zm9v", "Text/XML", "Receipt-Data.txt"});
        });
    screen_->presentViewController(composer_, true, nullptr);
    ASSERT_TRUE(waitUntil([&] { return QApplication::focusWidget() != nullptr; }));
  }

  ~ComposerPreparing() override { letCome(); }

  void letCome() {
    if (!std::exchange(hasCome_, true)) come_.set_value();
  }
  bool isAttaching() { return find<QLabel>(*composer_, "attaching").isVisible(); }

  const std::thread::id main_ = std::this_thread::get_id();
  std::thread::id worker_;
  std::promise<void> come_;
  bool hasCome_ = false;
  int attached_ = 0;
};

TEST_F(ComposerPreparing, IsTheUsersMeanwhile) {
  openPreparing();
  EXPECT_TRUE(isAttaching());
  press(*composer_, Qt::Key_X);
  EXPECT_EQ(body(), "Reason:\nx\nApp: x\n");
  letCome();
  ASSERT_TRUE(waitUntil([&] { return attached_ == 1; }));
  EXPECT_NE(worker_, main_);
  EXPECT_FALSE(isAttaching());
  EXPECT_EQ(find<QLabel>(*composer_, "attachmentSize").text(), "4 bytes");
}

TEST_F(ComposerPreparing, SendsNothingBefore) {
  openPreparing();
  click(*composer_, "send");
  settle();
  EXPECT_EQ(noticeText(), "Sending…");
  EXPECT_TRUE(isOpen());
  letCome();
  ASSERT_TRUE(waitUntil([&] { return !isOpen(); })) << noticeText();
  EXPECT_THAT(delegate_->results, ElementsAre(MailComposeResult::sent));
  EXPECT_THAT(readFile(folder_.path("sent")), HasSubstr("\n\nWm05dg==\n"));
}

TEST_F(ComposerPreparing, CanBeStoppedInWaiting) {
  openPreparing();
  click(*composer_, "send");
  click(*composer_, "cancel");
  settle();
  EXPECT_EQ(noticeText(), "Stopped. Your message is still here.");
  EXPECT_TRUE(find<QAbstractButton>(*composer_, "send").isEnabled());
  letCome();
  ASSERT_TRUE(waitUntil([&] { return attached_ == 1; }));
  EXPECT_EQ(readFile(folder_.path("sent")), "");
}

TEST_F(ComposerPreparing, IsLeftAtOnce) {
  openPreparing();
  click(*composer_, "cancel");
  settle();
  EXPECT_FALSE(isOpen());
  EXPECT_THAT(delegate_->results, ElementsAre(MailComposeResult::cancelled));
  const std::weak_ptr<MailComposer> observed = composer_;
  composer_.reset();
  EXPECT_FALSE(observed.expired());  // without anybody who waits for what it does
  letCome();
  EXPECT_TRUE(waitUntil([&] { return observed.expired(); }));
  EXPECT_EQ(attached_, 0);
  EXPECT_THAT(drafts(), IsEmpty());
}

TEST_F(ComposerPreparing, KeepsTextAndAttachmentWhereItIsTakenAway) {
  openPreparing();
  press(*composer_, Qt::Key_X);
  screen_->dismissViewController(true, nullptr);
  const std::weak_ptr<MailComposer> observed = composer_;
  composer_.reset();
  settle();
  EXPECT_THAT(drafts(), IsEmpty());
  letCome();
  ASSERT_TRUE(waitUntil([&] { return observed.expired(); }));
  EXPECT_THAT(onlyDraft(), HasSubstr("\n\nReason:\nx\nApp: x\n"));
  EXPECT_THAT(onlyDraft(), HasSubstr("\n\nWm05dg==\n"));
}

TEST_F(ComposerPreparing, KeepsTextAndAttachmentWhereThePlatformGoes) {
  openPreparing();
  press(*composer_, Qt::Key_X);
  composer_.reset();
  screen_.reset();
  const WhenLocked locked([this] { letCome(); });
  desktop_.reset();
  EXPECT_TRUE(hasCome_);
  EXPECT_THAT(onlyDraft(), HasSubstr("\n\nReason:\nx\nApp: x\n"));
  EXPECT_THAT(onlyDraft(), HasSubstr("\n\nWm05dg==\n"));
}

TEST_F(ComposerPreparing, SendsNothingOfAComposerThatIsTakenAwayInWaiting) {
  openPreparing();
  click(*composer_, "send");
  screen_->dismissViewController(true, nullptr);
  const std::weak_ptr<MailComposer> observed = composer_;
  composer_.reset();
  letCome();
  ASSERT_TRUE(waitUntil([&] { return observed.expired(); }));
  EXPECT_EQ(readFile(folder_.path("sent")), "");
  EXPECT_THAT(onlyDraft(), HasSubstr("\n\nWm05dg==\n"));
  EXPECT_THAT(delegate_->results, IsEmpty());
}

}  // namespace
}  // namespace qv_commons::desktop
