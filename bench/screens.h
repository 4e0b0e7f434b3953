// The screens that the benchmarks bring up: the library's, and for each a bare window of the same
// size with as many plain widgets, which is what Qt itself needs at least.
#pragma once

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <cstdlib>
#include <memory>
#include <optional>

#include "qv_commons/age_gate/age_gate_helper.h"
#include "qv_commons/platform/desktop/desktop_platform.h"
#include "qv_commons/platform/desktop/sheet.h"
#include "qv_commons/platform/desktop/sqlite_user_defaults.h"
#include "qv_commons/support/support_helper.h"

namespace qv_commons::bench {

using desktop::DesktopPlatform;
using desktop::DesktopSettings;

inline constexpr QSize kSize(390, 844);
inline constexpr const char* kIdentifier = "com.example.notes";

// Never destroyed: all benchmarks of the process use it.
inline void startQt() {
  QLoggingCategory::setFilterRules("*.warning=false");  // of the display that isn't there
  static int count = 1;
  static char name[] = "bench";
  static char* arguments[] = {name, nullptr};
  if (QCoreApplication::instance() == nullptr) new QApplication(count, arguments);
  QApplication::setQuitOnLastWindowClosed(false);
}

inline void write(const QString& path, const QByteArray& bytes) {
  QDir().mkpath(QFileInfo(path).path());
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) std::abort();
}

inline DesktopSettings settingsIn(const QTemporaryDir& folder) {
  write(
      folder.filePath("bundle/Info.plist"),
      QByteArray("<plist version=\"1.0\"><dict><key>CFBundleIdentifier</key><string>")
          .append(kIdentifier)
          .append("</string><key>CFBundleDisplayName</key><string>Notes</string></dict></plist>"));
  write(folder.filePath("bundle/StoreKit/receipt"), QByteArray(100'000, 'r'));
  DesktopSettings settings;
  settings.bundleDirectory = folder.filePath("bundle").toStdString();
  settings.dataDirectory = folder.filePath("data").toStdString();
  settings.sendmailProgram = "/bin/true";
  settings.calendar = {"en-US", "UTC"};
  settings.userInterfaceStyle = UserInterfaceStyle::light;
  return settings;
}

// The app's own window, and how often a screen in it or another window was painted.
class Window final : public QWidget {
 public:
  Window() {
    resize(kSize);
    show();
    QCoreApplication::processEvents();
    QCoreApplication::instance()->installEventFilter(this);
  }

  int paintings = 0;

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Paint || watched == this) return false;
    const auto* widget = qobject_cast<QWidget*>(watched);
    const bool isScreen = qobject_cast<const desktop::Sheet*>(watched) != nullptr;
    if (widget != nullptr && (isScreen || widget->isWindow())) ++paintings;
    return false;
  }
};

// What an earlier run of the app has left behind.
enum class Past { nothing, refused };

struct App {
  explicit App(Window& window, Past past = Past::nothing)
      : desktop(settingsAfter(past)), host(desktop.viewController(window)) {}

  DesktopSettings settingsAfter(Past past) const {
    DesktopSettings settings = settingsIn(folder);
    if (past == Past::nothing) return settings;
    desktop::SqliteUserDefaults defaults(settings.dataDirectory, kIdentifier, nullptr);
    for (const char* key : {"QV_AgeGate_Shown", "QV_AgeGate_Blocked"}) defaults.setBool(true, key);
    return settings;
  }

  QTemporaryDir folder;
  DesktopPlatform desktop;
  ScopedPlatform scope{desktop.platform()};
  std::shared_ptr<ViewController> host;
};

// --- What the library's users see

struct AgeGate {
  static constexpr const char* kName = "age gate/QV Commons";
  explicit AgeGate(Window& window, Past past = Past::nothing) : app(window, past) {}

  void open() {
    QV_AgeGateHelper::startAgeGateProcess(app.host, 16, nullptr, nullptr,
                                          QV_AgeGateColorTheme::defaultTheme(), "", "");
  }
  void close() { app.host->dismissViewController(false, nullptr); }

  App app;
};

// At every start after the one at which the user turned out to be too young.
struct Refusal : AgeGate {
  static constexpr const char* kName = "refusal/QV Commons";
  explicit Refusal(Window& window) : AgeGate(window, Past::refused) {}
};

struct SupportMail {
  static constexpr const char* kName = "support e-mail/QV Commons";
  explicit SupportMail(Window& window) : app(window) {}

  void open() {
    QV_SupportHelper::shared().contactSupport(*app.host, "support@example.com", "Help",
                                              {"pro_monthly", "pro_yearly", "themes"}, "Hello!",
                                              std::nullopt, {});
  }
  void close() { app.host->dismissViewController(false, nullptr); }

  App app;
};

// --- The limits

// What Qt's plainest widgets take, one for each that the screen has.
template <class Root>
class BareWidgets {
 public:
  void close() { root_.reset(); }

 protected:
  QVBoxLayout& makeColumn() {
    root_ = std::make_unique<Root>();
    root_->resize(kSize);
    return *new QVBoxLayout(root_.get());
  }
  void show() { root_->show(); }

 private:
  std::unique_ptr<Root> root_;
};

// Header and subtitle, a label for each wheel, the button and the text with links.
struct BareAgeGate : BareWidgets<QWidget> {
  static constexpr const char* kName = "age gate/limit: as many plain widgets";
  explicit BareAgeGate(Window&) {}
  void open() {
    QVBoxLayout& column = makeColumn();
    column.addWidget(new QLabel("What’s your date of birth?"));
    column.addWidget(new QLabel("Only used to check your age, never kept."));
    for (const char* wheel : {"November", "20", "2026"}) column.addWidget(new QLabel(wheel));
    column.addWidget(new QPushButton("Confirm"));
    column.addWidget(new QLabel("Privacy Policy & Terms of Service"));
    show();
  }
};

struct BareRefusal : BareWidgets<QWidget> {
  static constexpr const char* kName = "refusal/limit: as many plain widgets";
  explicit BareRefusal(Window&) {}
  void open() {
    QVBoxLayout& column = makeColumn();
    column.addWidget(new QLabel("We’re sorry, Notes isn’t available to you"));
    column.addWidget(new QLabel("If you think this is a mistake, contact us."));
    column.addWidget(new QLabel("Privacy Policy & Terms of Service"));
    show();
  }
};

struct BareSupportMail : BareWidgets<QDialog> {
  static constexpr const char* kName = "support e-mail/limit: as many plain widgets";
  explicit BareSupportMail(Window&) {}
  void open() {
    QVBoxLayout& column = makeColumn();
    for (const char* title : {"Cancel", "Send"}) column.addWidget(new QPushButton(title));
    for (const char* text : {"New message", "To", "Subject", "Message"}) {
      column.addWidget(new QLabel(text));
    }
    column.addWidget(new QLineEdit("support@example.com"));
    column.addWidget(new QLineEdit("Help"));
    column.addWidget(new QPlainTextEdit("Hello!\n\n\n\n\n\n\n\n\nApp ID: com.example.notes"));
    for (const char* text : {"Receipt-Data.txt", "133.3 kB"}) column.addWidget(new QLabel(text));
    column.addWidget(new QPushButton("Save draft"));
    show();
  }
};

}  // namespace qv_commons::bench
