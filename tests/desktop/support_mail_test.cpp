// The support e-mail as the user sees it.
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <gmock/gmock.h>
#include <sys/stat.h>

#include "qv_commons/platform/desktop/sheet.h"

#include "tests/desktop/support_mail_fixture.h"

namespace qv_commons::desktop {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class SupportMail : public SupportMailTest {
 protected:
  void useReceipt(const std::string& bytes) { folder_.write("bundle/StoreKit/receipt", bytes); }

  ViewController& contactSupport(const std::string& metadata = "") {
    request(metadata);
    settle();
    ViewController& shown = *screen_->presentedViewController();
    const auto* attaching = windowOf(shown).findChild<QLabel*>("attaching");
    EXPECT_TRUE(waitUntil([&] { return attaching == nullptr || attaching->isHidden(); }));
    return shown;
  }

  // What the console says when a request is made, whose composer is then left.
  std::string consoleOfARequest() {
    testing::internal::CaptureStdout();
    ViewController& composer = contactSupport();
    std::string said = testing::internal::GetCapturedStdout();
    EXPECT_EQ(windowOf(composer).findChild<QLabel*>("attachmentName"), nullptr);
    click(composer, "cancel");
    settle();
    EXPECT_EQ(host_->completions, 1);
    return said;
  }

  std::string onlyDraft() {
    const std::vector<std::string> names = folder_.list("data/drafts");
    EXPECT_EQ(names.size(), 1u);
    return names.empty() ? "" : readFile(folder_.path("data/drafts/" + names.front()));
  }
};

TEST_F(SupportMail, ShowsAnAlertWhereNoMailCanBeSent) {
  ASSERT_EQ(std::remove(folder_.path("sendmail").c_str()), 0);
  ViewController& alert = contactSupport();
  EXPECT_EQ(alert.kind(), ViewControllerKind::alert);
  EXPECT_EQ(find<QLabel>(alert, "title").text(), "Error");
  EXPECT_EQ(find<QLabel>(alert, "message").text().remove(QChar(0x200b)),
            "Please configure your email account in the Settings.");
  EXPECT_EQ(windowOf(alert).findChildren<QPushButton*>().size(), 1);
  EXPECT_EQ(find<QPushButton>(alert, "action0").text(), "OK");
  click(alert, "action0");
  settle();
  EXPECT_EQ(screen_->presentedViewController(), nullptr);
  EXPECT_EQ(host_->completions, 0);
}

TEST_F(SupportMail, SaysNothingWhereThereIsNoReceiptLocation) {
  EXPECT_EQ(consoleOfARequest(), "");
}

TEST_F(SupportMail, GoesWithoutAReceiptThatIsMissing) {
  ASSERT_EQ(::mkdir(folder_.path("bundle/StoreKit").c_str(), 0700), 0);
  EXPECT_EQ(consoleOfARequest(), "error converting receipt to Data: No such file or directory\n");
}

TEST_F(SupportMail, GoesWithoutAReceiptThatIsAFolder) {
  folder_.write("bundle/StoreKit/receipt/inside", "");
  EXPECT_EQ(consoleOfARequest(), "error converting receipt to Data: Is a directory\n");
}

// A link to itself stops the superuser too.
TEST_F(SupportMail, GoesWithoutAReceiptThatCannotBeRead) {
  ASSERT_EQ(::mkdir(folder_.path("bundle/StoreKit").c_str(), 0700), 0);
  ASSERT_EQ(::symlink("receipt", folder_.path("bundle/StoreKit/receipt").c_str()), 0);
  EXPECT_EQ(consoleOfARequest(),
            "error converting receipt to Data: Too many levels of symbolic links\n");
}

TEST_F(SupportMail, AttachesAnEmptyReceipt) {
  useReceipt("");
  ViewController& composer = contactSupport();
  EXPECT_EQ(find<QLabel>(composer, "attachmentSize").text(), "0 bytes");
  saveDraft(composer);
  ASSERT_TRUE(waitUntil([&] { return host_->completions == 1; }));
  EXPECT_THAT(onlyDraft(), HasSubstr("Content-Type: Text/XML; name=Receipt-Data.txt\n"));
}

// "xxx" is "eHh4" in base64, and "eHh4" is "ZUhoNA==".
TEST_F(SupportMail, AttachesAHundredMegabytes) {
  useReceipt(std::string(99'999'999, 'x'));
  ViewController& composer = contactSupport();
  EXPECT_EQ(find<QLabel>(composer, "attachmentSize").text(), "133.3 MB");
  saveDraft(composer);
  ASSERT_TRUE(waitUntil([&] { return host_->completions == 1; }));
  const std::string draft = onlyDraft();
  EXPECT_GT(draft.size(), 4 * (133'333'332 / 3));
  EXPECT_THAT(draft.substr(0, 2000), HasSubstr("\n\nZUhoNGVIaDRlSGg0"));
}

TEST_F(SupportMail, TellsTheHostOnceTheComposerIsGone) {
  ViewController& composer = contactSupport();
  click(composer, "send");
  ASSERT_TRUE(waitUntil([&] { return host_->completions == 1; }));
  EXPECT_EQ(screen_->presentedViewController(), nullptr);
  EXPECT_EQ(helper_->delegate(), nullptr);
}

// The natural one line.
TEST_F(SupportMail, ComesUpOverAControllerThatNobodyKeeps) {
  screen_.reset();
  helper_->contactSupport(*desktop_.viewController(window_), "support@example.com", "Help", {},
                          std::nullopt, "", host_);
  settle();
  const Sheet* composer = Sheet::topOf(window_);
  ASSERT_NE(composer, nullptr);
  click(*composer->findChild<QAbstractButton*>("cancel"));
  settle();
  EXPECT_EQ(Sheet::topOf(window_), nullptr);
  EXPECT_EQ(host_->completions, 1);
}

TEST_F(SupportMail, SkipsAHostThatIsGone) {
  ViewController& composer = contactSupport();
  host_.reset();
  click(composer, "cancel");
  settle();
  EXPECT_EQ(screen_->presentedViewController(), nullptr);
}

TEST_F(SupportMail, ClosesTheComposerOfAHelperThatIsGone) {
  ViewController& composer = contactSupport();
  helper_.reset();
  click(composer, "cancel");
  settle();
  EXPECT_EQ(screen_->presentedViewController(), nullptr);
  EXPECT_EQ(host_->completions, 0);
}

TEST_F(SupportMail, ASecondRequestTakesTheSlotOfTheFirst) {
  ViewController& first = contactSupport();
  const std::shared_ptr<Host> firstHost = std::exchange(host_, std::make_shared<Host>());
  ViewController& second = contactSupport();
  EXPECT_NE(&first, &second);
  click(second, "cancel");
  settle();
  EXPECT_EQ(host_->completions, 1);
  EXPECT_EQ(screen_->presentedViewController(), &first);
  click(first, "cancel");
  settle();
  EXPECT_EQ(screen_->presentedViewController(), nullptr);
  EXPECT_EQ(host_->completions, 1);
  EXPECT_EQ(firstHost->completions, 0);
}

TEST_F(SupportMail, TwoClicksAreOneFinish) {
  ViewController& composer = contactSupport();
  QPushButton& cancel = find<QPushButton>(composer, "cancel");
  cancel.click();
  cancel.click();
  settle();
  EXPECT_EQ(host_->completions, 1);
}

TEST_F(SupportMail, KeepsTheBytesOfMetadataWhenTheUserWritesAbove) {
  ViewController& composer = contactSupport("a\rb\r\nc\n");
  press(composer, Qt::Key_X);
  saveDraft(composer);
  ASSERT_TRUE(waitUntil([&] { return host_->completions == 1; }));
  const std::string draft = onlyDraft();
  const std::size_t start = draft.find("base64\n\n") + 8;
  const QByteArray encoded = QByteArray::fromStdString(draft.substr(start));
  const std::string body = QByteArray::fromBase64(encoded).toStdString();
  EXPECT_THAT(body, testing::StartsWith("Reason for contacting support:\nx\n\n"));
  EXPECT_THAT(body, testing::EndsWith("\nIAP: No \na\rb\r\nc\n"));
}

}  // namespace
}  // namespace qv_commons::desktop
