#include "examples/desktop_host/stage.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <cstdio>

#include "qv_commons/platform/desktop/sheet.h"

namespace host {
namespace {

using qv_commons::desktop::Sheet;

constexpr int kPatienceMs = 20000;
constexpr int kSettleMs = 60;

void letEventsRun(int milliseconds) {
  QElapsedTimer timer;
  timer.start();
  do {
    QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 10);
  } while (timer.elapsed() < milliseconds);
}

}  // namespace

Stage::Stage(const QString& directory, Transcript transcript) : directory_(directory) {
  directory_.mkpath(".");
  transcript_.setFileName(path("transcript.txt"));
  if (transcript == Transcript::fresh) transcript_.remove();
  // Several processes write it in turn, each at its end.
  if (!transcript_.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text)) {
    std::fprintf(stderr, "%s: %s\n", qPrintable(transcript_.fileName()),
                 qPrintable(transcript_.errorString()));
  }
}

void Stage::note(const QString& line) {
  transcript_.write(line.toUtf8() + "\n");
  transcript_.flush();
  std::printf("%s\n", qPrintable(line));
  std::fflush(stdout);
}

bool Stage::waitFor(const QString& what, const std::function<bool()>& done) {
  QElapsedTimer timer;
  timer.start();
  while (!done()) {
    if (timer.elapsed() > kPatienceMs) {
      fail("did not happen: " + what);
      return false;
    }
    letEventsRun(10);
  }
  return true;
}

void Stage::picture(const QString& name, QWidget& widget) {
  letEventsRun(kSettleMs);
  pictureAtOnce(name, widget);
}

void Stage::pictureAtOnce(const QString& name, QWidget& widget) {
  const QString file = name + ".png";
  if (widget.window()->grab().save(path(file))) {
    note("picture: " + file);
  } else {
    fail("could not be written: " + path(file));
  }
}

QWidget* Stage::waitForSheet(const QString& what, const QWidget& window) {
  waitFor(what, [&] { return Sheet::topOf(window) != nullptr; });
  return Sheet::topOf(window);
}

void Stage::click(QWidget& window, const QString& buttonName) {
  auto* button = window.findChild<QAbstractButton*>(buttonName);
  if (button == nullptr || !button->isEnabled()) return fail("can't be clicked: " + buttonName);
  const QString text = button->text().isEmpty() ? button->accessibleName() : button->text();
  note("click: " + QString(text).remove('&'));
  button->click();
  letEventsRun(0);  // in which the click is answered
}

void Stage::fail(const QString& why) {
  failed_ = true;
  note("FAILED: " + why);
}

}  // namespace host
