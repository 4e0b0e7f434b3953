#include <QAbstractButton>
#include <QDateTime>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <QTextBrowser>
#include <QTimeZone>
#include <optional>
#include <sstream>

#include "qv_commons/platform/desktop/wheel.h"

#include "tests/conformance/suites.h"
#include "tests/desktop/desktop_driver.h"
#include "tests/desktop/url_catcher.h"

namespace qv_commons::conformance {
namespace {

class DesktopAdapter final : public Adapter {
 public:
  void useMainBundle(const MainBundle& bundle) override {
    std::string elements;
    // The tests' texts hold no character that XML reserves.
    for (const auto& [key, text] : bundle.texts) {
      elements += "<key>" + key + "</key><string>" + text + "</string>";
    }
    for (const auto& [key, number] : bundle.numbers) {
      elements += "<key>" + key + "</key><integer>" + std::to_string(number) + "</integer>";
    }
    if (bundle.identifier) {
      elements += "<key>CFBundleIdentifier</key><string>" + *bundle.identifier + "</string>";
    }
    folder_.write("bundle/Info.plist",
                  R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0"><dict>)" +
                      elements + "</dict></plist>");
    if (bundle.namesReceiptLocation) makeDirectory("bundle/StoreKit");
    settings_.bundleDirectory = folder_.path("bundle");
  }
  void useSystemVersion(int major) override { settings_.systemVersion = major; }
  void useUserInterfaceStyle(UserInterfaceStyle style) override {
    settings_.userInterfaceStyle = style;
  }
  void useMail(bool available) override {
    settings_.mailWays = {desktop::MailWay::sendmail};
    settings_.sendmailProgram =
        available ? folder_.writeProgram("sendmail", "cat >/dev/null") : folder_.path("none");
  }

  const Platform& platform() override { return desktop().platform(); }

  void addToMainBundle(const std::string& name, const std::string& bytes) override {
    folder_.write("bundle/" + name, bytes);
    settings_.bundleDirectory = folder_.path("bundle");
  }

  FileLocation makeFile(const std::string& bytes) override { return folder_.write("file", bytes); }
  FileLocation makeFolder() override { return makeDirectory("folder"); }
  FileLocation missingFile() override { return folder_.path("missing"); }

  std::vector<std::string> printedBy(const std::function<void()>& act) override {
    testing::internal::CaptureStdout();
    act();
    std::istringstream output(testing::internal::GetCapturedStdout());
    std::vector<std::string> lines;
    for (std::string line; std::getline(output, line);) lines.push_back(line);
    return lines;
  }
  std::vector<std::string> openedBy(const std::function<void()>& act) override {
    const desktop::UrlCatcher browser("https");
    act();
    return browser.urls();
  }

  bool nextStartReads(const char* key) override {
    desktop();  // makes the settings complete
    return desktop::DesktopPlatform(settings_).platform().userDefaults.boolForKey(key);
  }

  std::shared_ptr<ViewController> makeScreen() override {
    QWidget& window = *windows_.emplace_back(std::make_unique<QWidget>());
    window.resize(375, 667);
    return desktop().viewController(window);
  }
  std::shared_ptr<ViewController> makeRootScreen() override {
    std::shared_ptr<ViewController> root = makeScreen();
    root_ = root;
    desktop::windowOf(*root).show();
    return root;
  }
  bool isOnScreen(ViewController& controller) override { return desktop::isOnScreen(controller); }

  void settle() override { desktop::settle(); }
  void leave(ViewController& controller) override { desktop::press(controller, Qt::Key_Escape); }
  void tap(AlertController& alert, std::size_t button) override {
    desktop::click(alert, ("action" + std::to_string(button)).c_str());
  }

  // As far as the wheels go, which leave the time of day alone.
  bool pick(Instant birth) override {
    const auto seconds = static_cast<qint64>(secondsSince1970(birth));
    const QDate date = QDateTime::fromSecsSinceEpoch(seconds, QTimeZone::utc()).date();
    return turn(desktop::DateField::year, date.year()) &&
           turn(desktop::DateField::month, date.month()) &&
           turn(desktop::DateField::day, date.day());
  }
  bool tapConfirm() override {
    auto* button = onTop<QAbstractButton>("confirmBtn");
    if (button == nullptr || !button->isEnabled()) return false;
    desktop::click(*button);
    return true;
  }
  bool tapContactLink() override {
    auto* contact = onTop<QTextBrowser>("contact");
    if (contact == nullptr) return false;
    QTextCursor cursor(contact->document());
    cursor.setPosition(45);  // in the middle of the link
    const QPoint place = contact->cursorRect(cursor).center();
    QTest::mouseClick(contact->window()->windowHandle(), Qt::LeftButton, {},
                      contact->viewport()->mapTo(contact->window(), place));
    return true;
  }

  ShownMessage shown(MailComposer& composer) override {
    ShownMessage shown{desktop::find<QLineEdit>(composer, "to").text().toStdString(),
                       desktop::find<QLineEdit>(composer, "subject").text().toStdString(),
                       desktop::find<QPlainTextEdit>(composer, "body").toPlainText().toStdString(),
                       {}};
    for (const QLabel* label :
         desktop::windowOf(composer).findChildren<QLabel*>("attachmentName")) {
      shown.attachmentNames.push_back(label->text().remove(QChar(0x200b)).toStdString());
    }
    return shown;
  }
  void finish(MailComposer& composer, MailComposeResult how) override {
    if (how == MailComposeResult::saved) {
      desktop::saveDraft(composer);
    } else {
      desktop::click(composer, how == MailComposeResult::sent ? "send" : "cancel");
    }
    EXPECT_TRUE(desktop::waitUntil([&] { return !desktop::isOnScreen(composer); }));
  }

 private:
  // The view of that name on the screen that the root presents, or null.
  template <class Widget>
  Widget* onTop(const char* name) {
    const std::shared_ptr<ViewController> root = root_.lock();
    ViewController* top = root == nullptr ? nullptr : root->presentedViewController();
    return top == nullptr ? nullptr : desktop::windowOf(*top).findChild<Widget*>(name);
  }

  bool turn(desktop::DateField field, int number) {
    auto* picker = onTop<QWidget>("datePicker");
    if (picker == nullptr) return false;
    for (desktop::Wheel* wheel : picker->findChildren<desktop::Wheel*>()) {
      if (wheel->field() == field) wheel->turnToNumber(number);
    }
    return true;
  }

  std::string makeDirectory(const std::string& name) const {
    QDir().mkpath(QString::fromStdString(folder_.path(name)));
    return folder_.path(name);
  }

  desktop::DesktopPlatform& desktop() {
    if (!desktop_) {
      settings_.dataDirectory = folder_.path("data");
      settings_.languages = {"en"};
      settings_.calendar = {"en-US", "UTC"};
      desktop_.emplace(settings_);
    }
    return *desktop_;
  }

  desktop::TestFolder folder_;
  desktop::DesktopSettings settings_;
  std::vector<std::unique_ptr<QWidget>> windows_;
  std::weak_ptr<ViewController> root_;
  std::optional<desktop::DesktopPlatform> desktop_;
};

std::unique_ptr<Adapter> makeDesktopAdapter() {
  return std::make_unique<DesktopAdapter>();
}

QV_RUN_ALL_SUITES(Desktop, makeDesktopAdapter);

}  // namespace
}  // namespace qv_commons::conformance
