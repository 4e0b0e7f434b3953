// A host app for read_aloud_test.py: opens the age gate at "Age gate", the support e-mail at
// "Contact support", and prints what its own code is told.
#include <QApplication>
#include <QPushButton>
#include <QVBoxLayout>
#include <cstdio>

#include "qv_commons/age_gate/age_gate_helper.h"
#include "qv_commons/platform/desktop/desktop_platform.h"
#include "qv_commons/support/support_helper.h"

namespace {

void say(const char* words) {
  std::puts(words);
  std::fflush(stdout);
}

}  // namespace

int main(int count, char** arguments) {
  QApplication application(count, arguments);
  QApplication::setApplicationName("read_aloud");
  QWidget window;
  window.setWindowTitle("Host");
  window.resize(800, 760);
  qv_commons::desktop::DesktopSettings settings;
  settings.dataDirectory = arguments[1];
  settings.sendmailProgram = "/bin/false";
  settings.languages = {"en"};
  settings.calendar = {"en-GB", "UTC"};
  settings.userInterfaceStyle = qv_commons::UserInterfaceStyle::light;
  qv_commons::desktop::DesktopPlatform desktop(settings);
  qv_commons::installPlatform(desktop.platform());
  auto* column = new QVBoxLayout(&window);
  auto* gate = new QPushButton("Age gate");
  auto* mail = new QPushButton("Contact support");
  column->addWidget(gate);
  column->addWidget(mail);
  QObject::connect(gate, &QPushButton::clicked, [&] {
    qv_commons::QV_AgeGateHelper::startAgeGateProcess(
        desktop.viewController(window), 18, [] { say("completed"); },
        [](qv_commons::ViewController&) { say("contacted"); },
        qv_commons::QV_AgeGateColorTheme::defaultTheme(), "https://example.com/privacy",
        "https://example.com/terms");
  });
  QObject::connect(mail, &QPushButton::clicked, [&] {
    qv_commons::QV_SupportHelper::shared().contactSupport(*desktop.viewController(window),
                                                          "support@example.com", "Help", {},
                                                          "Hello!", std::nullopt, {});
  });
  QWidget tools(&window, Qt::Tool);
  auto* tool = new QPushButton("Tool");
  (new QVBoxLayout(&tools))->addWidget(tool);
  QObject::connect(tool, &QPushButton::clicked, [] { say("used the tool"); });
  window.show();
  tools.show();
  window.activateWindow();
  return QApplication::exec();
}
