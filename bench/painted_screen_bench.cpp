// From the call of a service to the end of the first painting of its screen, beside a bare window
// of the same size with as many plain widgets, which is what Qt itself needs at least; in a process
// that is already running, and in one that has just started.
//
//     QT_QPA_PLATFORM=offscreen build/release/bench/painted_screen_bench
//         --benchmark_repetitions=9 --benchmark_report_aggregates_only=true
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <array>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>

#include "qv_commons/age_gate/age_gate_helper.h"
#include "qv_commons/platform/desktop/desktop_platform.h"
#include "qv_commons/platform/desktop/sqlite_user_defaults.h"
#include "qv_commons/support/support_helper.h"

namespace {

using Clock = std::chrono::steady_clock;
using qv_commons::desktop::DesktopPlatform;
using qv_commons::desktop::DesktopSettings;

constexpr QSize kSize(390, 844);
constexpr const char* kIdentifier = "com.example.notes";

// Never destroyed: all benchmarks of the process use it.
void startQt() {
  QLoggingCategory::setFilterRules("*.warning=false");  // of the display that isn't there
  static int count = 1;
  static char name[] = "bench";
  static char* arguments[] = {name, nullptr};
  if (QCoreApplication::instance() == nullptr) new QApplication(count, arguments);
  QApplication::setQuitOnLastWindowClosed(false);
}

void write(const QString& path, const QByteArray& bytes) {
  QDir().mkpath(QFileInfo(path).path());
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) std::abort();
}

DesktopSettings settingsIn(const QTemporaryDir& folder) {
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
  settings.userInterfaceStyle = qv_commons::UserInterfaceStyle::light;
  return settings;
}

// The app's own window, which its screens come up over, and how often another one was painted.
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
    if (widget != nullptr && widget->isWindow()) ++paintings;
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
    qv_commons::desktop::SqliteUserDefaults defaults(settings.dataDirectory, kIdentifier, nullptr);
    for (const char* key : {"QV_AgeGate_Shown", "QV_AgeGate_Blocked"}) defaults.setBool(true, key);
    return settings;
  }

  QTemporaryDir folder;
  DesktopPlatform desktop;
  qv_commons::ScopedPlatform scope{desktop.platform()};
  std::shared_ptr<qv_commons::ViewController> host;
};

// --- What the library's users see

struct AgeGate {
  static constexpr const char* kName = "age gate/QV Commons";
  explicit AgeGate(Window& window, Past past = Past::nothing) : app(window, past) {}

  void open() {
    using qv_commons::QV_AgeGateColorTheme;
    qv_commons::QV_AgeGateHelper::startAgeGateProcess(app.host, 16, nullptr, nullptr,
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
    qv_commons::QV_SupportHelper::shared().contactSupport(*app.host, "support@example.com", "Help",
                                                          {"pro_monthly", "pro_yearly", "themes"},
                                                          "Hello!", std::nullopt, {});
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
  static constexpr const char* kName = "age gate/bare widgets";
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
  static constexpr const char* kName = "refusal/bare widgets";
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
  static constexpr const char* kName = "support e-mail/bare widgets";
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

// What is measured; a function of its own for profilers.
template <class Screen>
[[gnu::noinline]] void callAndPaint(Screen& screen) {
  screen.open();
  QCoreApplication::processEvents();
}

// --- In a process that is running

template <class Screen>
void runningProcess(benchmark::State& state) {
  startQt();
  Window window;
  Screen screen(window);
  for (auto _ : state) {
    callAndPaint(screen);
    state.PauseTiming();
    screen.close();
    QCoreApplication::processEvents();
    state.ResumeTiming();
  }
  if (window.paintings != state.iterations()) state.SkipWithError("not one painting a call");
}

// --- In a process that has just started

constexpr const char* kIsFirstScreen = "QV_COMMONS_BENCH_FIRST_SCREEN";

double millisecondsSince(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

// Prints how long Qt, the app and its screen took to come up, and ends the process.
template <class Screen>
[[noreturn]] void showFirstScreen() {
  const auto atStart = Clock::now();
  startQt();
  Window window;
  const double qt = millisecondsSince(atStart);
  const auto atApp = Clock::now();
  Screen screen(window);
  const double app = millisecondsSince(atApp);
  const auto atCall = Clock::now();
  callAndPaint(screen);
  std::printf("\nfirst screen: %f %f %f\n", qt, app, millisecondsSince(atCall));
  std::fflush(stdout);
  std::_Exit(0);
}

// A process of this program that runs the benchmark of that name alone.
std::array<double, 3> timesOfProcess(const std::string& name) {
  QProcess process;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(kIsFirstScreen, "1");
  process.setProcessEnvironment(environment);
  process.start("/proc/self/exe", {QString::fromStdString("--benchmark_filter=^" + name)});
  process.waitForFinished();
  const std::string said = process.readAllStandardOutput().toStdString();
  constexpr std::string_view kMark = "first screen: ";
  const std::size_t mark = said.find(kMark);
  std::array<double, 3> times{};
  if (mark == std::string::npos) return times;
  std::istringstream numbers(said.substr(mark + kMark.size()));
  for (double& time : times) numbers >> time;
  return times;
}

template <class Screen>
void freshProcess(benchmark::State& state) {
  if (qEnvironmentVariableIsSet(kIsFirstScreen)) showFirstScreen<Screen>();
  double allQt = 0;
  double allApp = 0;
  for (auto _ : state) {
    const auto [qt, app, screen] =
        timesOfProcess(std::string("first painted screen of a process/") + Screen::kName);
    if (screen == 0) state.SkipWithError("the process showed nothing");
    state.SetIterationTime(screen / 1000);
    allQt += qt;
    allApp += app;
  }
  const auto average = benchmark::Counter::kAvgIterations;
  state.counters["Qt before, ms"] = {allQt, average};
  state.counters["platform before, ms"] = {allApp, average};
}

template <class... Screens>
bool registerAll() {
  const auto add = [](const char* kind, const char* name, void (*run)(benchmark::State&)) {
    return benchmark::RegisterBenchmark((std::string(kind) + "/" + name).c_str(), run)
        ->Unit(benchmark::kMillisecond);
  };
  (add("call to painted screen", Screens::kName, runningProcess<Screens>), ...);
  (add("first painted screen of a process", Screens::kName, freshProcess<Screens>)
       ->Iterations(10)
       ->UseManualTime(),
   ...);
  return true;
}

[[maybe_unused]] const bool isRegistered =
    registerAll<AgeGate, BareAgeGate, Refusal, BareRefusal, SupportMail, BareSupportMail>();

}  // namespace
