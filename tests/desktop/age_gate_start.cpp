// One start of a host app without a display, for kill_test.py: prints "asked", "allowed" or
// "refused" and ends.
//
// With a year, it picks that year, prints "ready", waits for a line and confirms; prints "told"
// once the refusal has been painted or the host has been called; then waits to be killed.
#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <cstdio>
#include <string>

#include "qv_commons/age_gate/age_gate_helper.h"
#include "qv_commons/platform/desktop/desktop_platform.h"
#include "qv_commons/platform/desktop/sheet.h"
#include "qv_commons/platform/desktop/wheel.h"
#include "qv_commons/platform/desktop/wheel_date_picker.h"

namespace {

using qv_commons::desktop::DateField;
using qv_commons::desktop::Wheel;

void say(const char* word) {
  std::puts(word);
  std::fflush(stdout);
}

QWidget* screenWith(const char* view) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    auto* top = qv_commons::desktop::Sheet::topOf(*window);
    if (top != nullptr && top->findChild<QWidget*>(view) != nullptr) return top;
  }
  return nullptr;
}

// Says "told" when the first picture of the refusal has been painted.
class Spectator final : public QObject {
 public:
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* widget = qobject_cast<QWidget*>(watched);
    if (event->type() == QEvent::Paint && widget != nullptr && widget->objectName() == "header" &&
        widget->window()->findChild<QWidget*>("contact") != nullptr) {
      say("told");
    }
    return QObject::eventFilter(watched, event);
  }
};

void pickAndConfirm(int year) {
  QWidget* gate = screenWith("confirmBtn");
  for (Wheel* wheel : gate->findChildren<Wheel*>()) {
    if (wheel->field() == DateField::year) wheel->turnToNumber(year);
  }
  auto* button = gate->findChild<QPushButton*>("confirmBtn");
  const QPoint place = button->mapTo(gate->window(), button->rect().center());
  say("ready");
  std::getchar();
  QTest::mouseClick(gate->window()->windowHandle(), Qt::LeftButton, {}, place);
}

}  // namespace

int main(int count, char** arguments) {
  QApplication application(count, arguments);
  QApplication::setQuitOnLastWindowClosed(false);
  QWidget window;
  window.resize(390, 844);
  window.show();
  qv_commons::desktop::DesktopSettings settings;
  settings.dataDirectory = arguments[1];
  settings.languages = {"en"};
  settings.calendar = {"en-US", "UTC"};
  settings.userInterfaceStyle = qv_commons::UserInterfaceStyle::light;
  settings.onError = [](const std::string& error) { std::fprintf(stderr, "%s\n", error.c_str()); };
  qv_commons::desktop::DesktopPlatform desktop(settings);
  qv_commons::installPlatform(desktop.platform());
  const auto host = desktop.viewController(window);
  bool isAllowed = false;
  Spectator spectator;
  application.installEventFilter(&spectator);
  qv_commons::QV_AgeGateHelper::startAgeGateProcess(
      host, 16, [&isAllowed] { isAllowed = true; }, nullptr,
      qv_commons::QV_AgeGateColorTheme::defaultTheme(), "", "");
  if (count < 3) {
    say(isAllowed ? "allowed" : screenWith("confirmBtn") != nullptr ? "asked" : "refused");
    std::_Exit(0);
  }
  QTimer::singleShot(0, [&isAllowed, year = std::stoi(arguments[2])] {
    pickAndConfirm(year);
    QTimer::singleShot(0, [&isAllowed] {
      if (isAllowed) say("told");
    });
  });
  return QApplication::exec();
}
