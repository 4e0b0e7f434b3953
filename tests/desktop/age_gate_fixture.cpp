#include "tests/desktop/age_gate_fixture.h"

#include <QApplication>
#include <QDesktopServices>
#include <QScrollArea>
#include <QTest>
#include <QWindow>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "qv_commons/age_gate/age_gate_helper.h"
#include "qv_commons/platform/desktop/sheet.h"

#include "tests/desktop/active_window.h"

namespace qv_commons::desktop {

namespace {

// A turn may end before what waits in the queue has come up.
void settle() {
  for (int turn = 0; turn < 5; ++turn) {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

}  // namespace

OpenedLinks::OpenedLinks() {
  QDesktopServices::setUrlHandler("https", this, "open");
}

OpenedLinks::~OpenedLinks() {
  QDesktopServices::unsetUrlHandler("https");
}

AgeGateTest::AgeGateTest(QSize size) : size_(size) {
  const std::filesystem::path bundle = temporary_.filePath("bundle").toStdString();
  std::filesystem::create_directories(bundle);
  std::ofstream(bundle / "Info.plist") << R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict>
<key>CFBundleIdentifier</key><string>com.example.notes</string>
<key>CFBundleDisplayName</key><string>Notes</string>
</dict></plist>)";
  restart();
}

AgeGateTest::~AgeGateTest() {
  end();
}

void AgeGateTest::end() {
  // A screen and the host that presents it keep each other.
  if (host_ != nullptr && host_->presentedViewController() != nullptr) {
    host_->dismissViewController(false, nullptr);
    settle();
  }
  theme_.reset();
  host_.reset();
  scope_.reset();
  platform_.reset();
  desktop_.reset();
  window_.reset();
}

DesktopSettings AgeGateTest::settings() const {
  DesktopSettings settings;
  settings.bundleDirectory = temporary_.filePath("bundle").toStdString();
  settings.dataDirectory = temporary_.filePath("data").toStdString();
  settings.languages = {"en"};
  settings.calendar = {"en-US", "Europe/Paris"};
  settings.userInterfaceStyle = UserInterfaceStyle::light;
  return settings;
}

void AgeGateTest::restart(DesktopSettings settings) {
  end();
  completions_ = 0;
  settings.onError = [this](const std::string& error) { errors_.push_back(error); };
  window_ = std::make_unique<QWidget>();
  window_->resize(size_);
  window_->show();
  activate(*window_);
  desktop_ = std::make_unique<DesktopPlatform>(std::move(settings));
  const Platform& real = desktop_->platform();
  platform_ = std::make_unique<Platform>(Platform{.bundles = real.bundles,
                                                  .device = real.device,
                                                  .clock = clock_,
                                                  .calendar = real.calendar,
                                                  .userDefaults = real.userDefaults,
                                                  .application = real.application,
                                                  .viewControllers = real.viewControllers});
  scope_ = std::make_unique<ScopedPlatform>(*platform_);
  host_ = desktop_->viewController(*window_);
  theme_ = QV_AgeGateColorTheme::defaultTheme();
}

void AgeGateTest::startAgeGate(std::int64_t minimumAge) {
  QV_AgeGateHelper::startAgeGateProcess(
      host_, minimumAge, [this] { ++completions_; },
      [this](ViewController& screen) {
        contacts_.push_back(&screen);
        if (onContact_) onContact_(screen);
      },
      theme_, privacyLink_, termsLink_);
  settle();
}

QWidget* AgeGateTest::screenWith(const char* view) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    Sheet* top = Sheet::topOf(*window);
    if (top != nullptr && top->isVisible() && top->findChild<QWidget*>(view) != nullptr) return top;
  }
  return nullptr;
}

Wheel& AgeGateTest::wheel(QWidget& gate, DateField field) {
  for (Wheel* wheel : view<WheelDatePicker>(gate, "datePicker").wheels()) {
    if (wheel->field() == field) return *wheel;
  }
  throw std::logic_error("a wheel for each field");
}

void AgeGateTest::click(QWidget& widget, QPoint place) {
  QWidget* window = widget.window();
  for (QWidget* above = widget.parentWidget(); above != nullptr; above = above->parentWidget()) {
    auto* scroll = qobject_cast<QScrollArea*>(above);
    if (scroll == nullptr || scroll->widget() == nullptr) continue;
    const QPoint inContent = widget.mapTo(scroll->widget(), place);
    scroll->ensureVisible(inContent.x(), inContent.y());
  }
  QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, widget.mapTo(window, place));
  settle();
}

void AgeGateTest::press(QWidget& screen, int key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(screen.window()->windowHandle(), static_cast<Qt::Key>(key), modifiers);
  settle();
}

void AgeGateTest::type(QWidget& screen, const char* text) {
  for (const char* character = text; *character != '\0'; ++character) {
    QTest::keyClick(screen.window()->windowHandle(), *character);
  }
  settle();
}

void AgeGateTest::pickYear(QWidget& gate, const char* year) {
  click(wheel(gate, DateField::year));
  type(gate, year);
}

// On a busy machine the answer may take longer than a few turns.
void AgeGateTest::confirm() {
  const QWidget* asking = gate();
  auto& button = view<QWidget>(*gate(), "confirmBtn");
  const bool isAnswered = button.isEnabled();
  click(button);
  EXPECT_TRUE(!isAnswered || QTest::qWaitFor([asking] { return gate() != asking; }));
}

std::string AgeGateTest::outcomeOfRestart() {
  restart();
  startAgeGate();
  if (gate() != nullptr) return "asked";
  if (refusal() != nullptr) return "refused";
  return completions_ == 1 ? "allowed" : "nothing";
}

}  // namespace qv_commons::desktop
