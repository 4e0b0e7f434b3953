#include <QApplication>
#include <QDateTime>
#include <QPushButton>
#include <QScrollArea>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QWindow>
#include <fstream>

#include "qv_commons/platform/desktop/desktop_platform.h"
#include "qv_commons/platform/desktop/wheel.h"

#include "tests/conformance/bundle_resources_conformance.h"
#include "tests/conformance/calendar_conformance.h"
#include "tests/conformance/screens_conformance.h"
#include "tests/conformance/user_defaults_conformance.h"

namespace qv_commons::test {
namespace {

class Desktop {
 public:
  Desktop() {
    window_.resize(390, 844);
    window_.show();
  }
  ~Desktop() {
    if (host_ == nullptr || host_->presentedViewController() == nullptr) return;
    host_->dismissViewController(false, nullptr);
    QTest::qWait(1);
  }
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  const Platform& platform() { return desktop_.platform(); }
  UserDefaults& userDefaults() { return platform().userDefaults; }
  bool nextStartReads(const char* key) const {
    return desktop::DesktopPlatform(settings()).platform().userDefaults.boolForKey(key);
  }
  Calendar& calendar() { return platform().calendar; }
  Bundles& bundles() { return platform().bundles; }
  Files& files() { return platform().files; }

  void addToMainBundle(const std::string& name, const std::string& bytes) {
    std::ofstream(temporary_.filePath(QString::fromStdString(name)).toStdString(), std::ios::binary)
        << bytes;
  }

  std::shared_ptr<ViewController> makeHost() {
    host_ = desktop_.viewController(window_);
    return host_;
  }

  // As far as the wheels go, which leave the time of day alone.
  bool pick(double birth) {
    QWidget* gate = screenWith("datePicker");
    if (gate == nullptr) return false;
    const QDate date = QDateTime::fromSecsSinceEpoch(static_cast<qint64>(birth)).toUTC().date();
    for (desktop::Wheel* wheel : gate->findChildren<desktop::Wheel*>()) {
      if (wheel->field() == desktop::DateField::year) wheel->turnToNumber(date.year());
    }
    for (desktop::Wheel* wheel : gate->findChildren<desktop::Wheel*>()) {
      if (wheel->field() == desktop::DateField::month) wheel->turnToNumber(date.month());
    }
    for (desktop::Wheel* wheel : gate->findChildren<desktop::Wheel*>()) {
      if (wheel->field() == desktop::DateField::day) wheel->turnToNumber(date.day());
    }
    return true;
  }

  bool tapConfirm() {
    QWidget* gate = screenWith("confirmBtn");
    if (gate == nullptr) return false;
    auto* button = gate->findChild<QPushButton*>("confirmBtn");
    const bool isEnabled = button->isEnabled();
    tap(*button, button->rect().center());
    return isEnabled;
  }

  bool tapContactLink() {
    QWidget* refusal = screenWith("contact");
    if (refusal == nullptr) return false;
    auto* contact = refusal->findChild<QTextBrowser*>("contact");
    QTextCursor cursor(contact->document());
    cursor.setPosition(45);
    tap(*contact->viewport(), contact->cursorRect(cursor).center());
    return true;
  }

 private:
  static QWidget* screenWith(const char* view) {
    QTest::qWait(1);
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->isVisible() && window->findChild<QWidget*>(view) != nullptr) return window;
    }
    return nullptr;
  }

  static void tap(QWidget& widget, QPoint place) {
    QWidget* window = widget.window();
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, widget.mapTo(window, place));
  }

  desktop::DesktopSettings settings() const {
    desktop::DesktopSettings settings;
    settings.bundleDirectory = temporary_.path().toStdString();
    settings.dataDirectory = temporary_.filePath("data").toStdString();
    settings.calendar = {"en-US", "UTC"};
    return settings;
  }

  QTemporaryDir temporary_;
  QWidget window_;
  desktop::DesktopPlatform desktop_{settings()};
  std::shared_ptr<ViewController> host_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(OfDesktop, UserDefaultsConformance, Desktop);
INSTANTIATE_TYPED_TEST_SUITE_P(OfDesktop, CalendarConformance, Desktop);
INSTANTIATE_TYPED_TEST_SUITE_P(OfDesktop, BundleResourcesConformance, Desktop);
INSTANTIATE_TYPED_TEST_SUITE_P(OfDesktop, ScreensConformance, Desktop);

}  // namespace
}  // namespace qv_commons::test
