// A host with a window, on the desktop adapter, with its own folder and a clock that stands still.
#pragma once

#include <QObject>
#include <QTemporaryDir>
#include <QUrl>
#include <QWidget>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "qv_commons/age_gate/age_gate_color_theme.h"
#include "qv_commons/platform/clock.h"
#include "qv_commons/platform/desktop/desktop_platform.h"
#include "qv_commons/platform/desktop/wheel.h"
#include "qv_commons/platform/desktop/wheel_date_picker.h"
#include "qv_commons/platform/platform.h"
#include "qv_commons/platform/user_defaults.h"

namespace qv_commons::desktop {

// 2026-11-20 15:30:00 UTC, a Friday.
inline constexpr Instant kNow = instantAt(1795188600);

class StoppedClock final : public Clock {
 public:
  Instant now() const override { return instant; }
  Instant instant = kNow;
};

// Takes the links that would be opened with the system.
class OpenedLinks final : public QObject {
  Q_OBJECT

 public:
  OpenedLinks();
  ~OpenedLinks() override;
  std::vector<std::string> links;

 public slots:
  void open(const QUrl& url) { links.push_back(url.toString().toStdString()); }
};

class AgeGateTest : public testing::Test {
 protected:
  explicit AgeGateTest(QSize size = {390, 844});
  ~AgeGateTest() override;

  // As at a new start of the process: everything in memory is gone.
  void restart(DesktopSettings settings);
  void restart() { restart(settings()); }
  DesktopSettings settings() const;

  void startAgeGate(std::int64_t minimumAge = 16);

  // The sheet on top, if it is one of the library's screens: it has a view of that name.
  static QWidget* screenWith(const char* view);
  static QWidget* gate() { return screenWith("confirmBtn"); }
  static QWidget* refusal() { return screenWith("contact"); }

  template <typename Widget>
  static Widget& view(QWidget& screen, const char* name) {
    return *screen.findChild<Widget*>(name);
  }
  static Wheel& wheel(QWidget& gate, DateField field);

  // At the window, as the system delivers it.
  static void click(QWidget& widget, QPoint place);
  static void click(QWidget& widget) { click(widget, widget.rect().center()); }
  static void press(QWidget& screen, int key, Qt::KeyboardModifiers modifiers = {});
  static void type(QWidget& screen, const char* text);

  // Turns the year's wheel to that year, which stands on it in digits.
  static void pickYear(QWidget& gate, const char* year);
  void confirm();

  // After a new start: "asked", "allowed" or "refused".
  std::string outcomeOfRestart();

  QTemporaryDir temporary_;
  OpenedLinks opened_;
  StoppedClock clock_;
  std::unique_ptr<QWidget> window_;
  std::unique_ptr<DesktopPlatform> desktop_;
  std::unique_ptr<Platform> platform_;
  std::unique_ptr<ScopedPlatform> scope_;
  std::shared_ptr<ViewController> host_;
  std::shared_ptr<QV_AgeGateColorTheme> theme_;
  std::string privacyLink_ = "https://example.com/privacy";
  std::string termsLink_ = "https://example.com/terms";
  int completions_ = 0;
  std::vector<ViewController*> contacts_;
  std::function<void(ViewController&)> onContact_;
  std::vector<std::string> errors_;

 private:
  void end();  // of the process, as far as one can tell

  QSize size_;
};

}  // namespace qv_commons::desktop
