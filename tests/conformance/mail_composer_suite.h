// Conformance of MailComposer.
#pragma once

#include "tests/conformance/adapter.h"

namespace qv_commons::conformance {

class MailComposerConformance : public Suite {
 protected:
  // Records how the user left, and dismisses the composer.
  class Delegate final : public MailComposeDelegate {
   public:
    explicit Delegate(Adapter& adapter) : adapter_(adapter) {}

    void mailComposeController(MailComposer& controller, MailComposeResult result,
                               const std::string& error) override {
      results.push_back(result);
      errors.push_back(error);
      wasOnScreen = adapter_.isOnScreen(controller);
      controller.dismissViewController(true, nullptr);
    }

    std::vector<MailComposeResult> results;
    std::vector<std::string> errors;
    bool wasOnScreen = false;

   private:
    Adapter& adapter_;
  };

  void SetUp() override {
    adapter().useMail(true);
    root_ = adapter().makeRootScreen();
  }

  std::shared_ptr<MailComposer> present() {
    std::shared_ptr<MailComposer> composer = platform().viewControllers.makeMailComposer();
    composer->setToRecipients({"support@example.com"});
    composer->setSubject("Grüße");
    composer->setMailComposeDelegate(delegate_);
    composer->setMessageBody("first\n\nlast ", false);
    composer->addAttachment({"Zm9v", "Text/XML", "Receipt-Data.txt"});
    root_->presentViewController(composer, true, nullptr);
    adapter().settle();
    return composer;
  }

  void expectToldOnceOf(MailComposeResult how) {
    const std::shared_ptr<MailComposer> composer = present();
    adapter().finish(*composer, how);
    adapter().settle();
    EXPECT_THAT(delegate_->results, testing::ElementsAre(how));
    EXPECT_THAT(delegate_->errors, testing::ElementsAre(""));
    EXPECT_TRUE(delegate_->wasOnScreen);
    EXPECT_FALSE(adapter().isOnScreen(*composer));
  }

  std::shared_ptr<ViewController> root_;
  std::shared_ptr<Delegate> delegate_ = std::make_shared<Delegate>(adapter());
};

TEST_P(MailComposerConformance, CanSendMail) {
  EXPECT_TRUE(platform().viewControllers.canSendMail());
}

TEST_P(MailComposerConformance, ShowsWhatWasSet) {
  const std::shared_ptr<MailComposer> composer = present();
  EXPECT_TRUE(adapter().isOnScreen(*composer));
  EXPECT_EQ(adapter().shown(*composer),
            (ShownMessage{"support@example.com", "Grüße", "first\n\nlast ", {"Receipt-Data.txt"}}));
}

TEST_P(MailComposerConformance, TellsItsDelegateThatTheMessageWasSent) {
  expectToldOnceOf(MailComposeResult::sent);
}

TEST_P(MailComposerConformance, TellsItsDelegateThatTheMessageWasSaved) {
  expectToldOnceOf(MailComposeResult::saved);
}

TEST_P(MailComposerConformance, TellsItsDelegateThatTheUserCancelled) {
  expectToldOnceOf(MailComposeResult::cancelled);
}

TEST_P(MailComposerConformance, DoesNotKeepItsDelegateAlive) {
  const std::shared_ptr<MailComposer> composer = present();
  const std::weak_ptr<Delegate> observed = delegate_;
  delegate_.reset();
  EXPECT_TRUE(observed.expired());
  adapter().finish(*composer, MailComposeResult::cancelled);
  adapter().settle();
}

class NoMailConformance : public Suite {};

TEST_P(NoMailConformance, CannotSendMail) {
  adapter().useMail(false);
  EXPECT_FALSE(platform().viewControllers.canSendMail());
}

}  // namespace qv_commons::conformance
