#include "examples/desktop_host/age_gate_tour.h"

#include <QApplication>
#include <QProcess>
#include <QTimeZone>
#include <algorithm>

#include "qv_commons/platform/desktop/sheet.h"
#include "qv_commons/platform/desktop/wheel.h"
#include "qv_commons/platform/desktop/wheel_date_picker.h"

#include "examples/desktop_host/session.h"

namespace host {
namespace {

using qv_commons::UserInterfaceStyle;
using namespace qv_commons::desktop;

QString nameOf(UserInterfaceStyle style) {
  return style == UserInterfaceStyle::dark ? "dark" : "light";
}

// Of the names of pictures.
QString suffixFor(const Options& options) {
  const QString suffix = "-" + nameOf(options.appearance);
  return options.language.isEmpty() ? suffix : suffix + "-" + options.language;
}

void start(Stage& stage, const Options& options, const QString& scene, const QString& data,
           const QDate& birthDate, const QString& appearance) {
  stage.note("-- a start of the app, " + appearance +
             (options.language.isEmpty() ? "" : ", in " + options.language));
  QProcess process;
  process.setProcessChannelMode(QProcess::ForwardedChannels);
  QStringList arguments{
      "--tour",       stage.path(""), "--scene",      scene,
      "--data",       data,           "--bundle",     options.bundleDirectory,
      "--appearance", appearance,     "--birth-date", birthDate.toString(Qt::ISODate)};
  arguments += {"--minimum-age", QString::number(options.minimumAge), "--system-version",
                QString::number(options.systemVersion)};
  if (!options.language.isEmpty()) arguments += {"--language", options.language};
  process.start(QCoreApplication::applicationFilePath(), arguments);
  constexpr int kPatienceMs = 60000;
  if (!process.waitForFinished(kPatienceMs) || process.exitCode() != 0) {
    stage.fail("the start did not end well: " + process.errorString());
  }
}

void tourLife(Stage& stage, const Options& options, const QString& data, const QDate& birthDate,
              const QString& appearance) {
  stage.note("== Age gate: born on " + birthDate.toString(Qt::ISODate) + ", minimum age " +
             QString::number(options.minimumAge));
  for (const QString& scene : {QString("leave"), QString("confirm"), QString("return")}) {
    start(stage, options, scene, data, birthDate, appearance);
  }
}

// Both screens in a language without blanks between its words, and in one from right to left.
void tourLanguages(Stage& stage, const Options& options, const QString& data,
                   const QDate& birthDate) {
  for (const QString& language : {QString("ja"), QString("ar")}) {
    Options spoken = options;
    spoken.language = language;
    const QString life = data + "/in-" + language;
    if (options.dataDirectory.isEmpty()) QDir(life).removeRecursively();
    stage.note("== Age gate: in " + language);
    start(stage, spoken, "leave", life, birthDate, "light");
    start(stage, spoken, "confirm", life, birthDate, "light");
  }
}

// The library's screen on top, known by a view that it has; null where it isn't there.
QWidget* screenWith(const QWidget& window, const char* view) {
  Sheet* top = Sheet::topOf(window);
  return top != nullptr && top->findChild<QWidget*>(view) != nullptr ? top : nullptr;
}

// As a user of the wheels would: the year first, since it may shorten the month. A date that is out
// of reach gives the end of each wheel that lies nearest.
void pick(Stage& stage, QWidget& gate, const QDate& date) {
  const auto* picker = gate.findChild<WheelDatePicker*>();
  const auto turn = [&](DateField field, int number) {
    for (Wheel* wheel : picker->wheels()) {
      if (wheel->field() != field) continue;
      wheel->turnToNumber(std::clamp(number, wheel->lowestNumber(), wheel->highestNumber()));
    }
  };
  turn(DateField::year, date.year());
  turn(DateField::month, date.month());
  turn(DateField::day, date.day());
  const auto seconds = static_cast<qint64>(qv_commons::secondsSince1970(picker->date()));
  const QDate picked = QDateTime::fromSecsSinceEpoch(seconds).date();
  stage.note("picked: " + picked.toString(Qt::ISODate) +
             (picked == date ? "" : ", the wheels do not reach " + date.toString(Qt::ISODate)));
}

void confirm(Stage& stage, Session& session, QWidget& gate, const Options& options) {
  const QString suffix = suffixFor(options);
  pick(stage, gate, *options.birthDate);
  stage.picture("age-gate-picked" + suffix, gate);
  stage.click(gate, "confirmBtn");
  stage.waitFor("the judgement", [&] {
    return session.ageGateCompletions() > 0 || screenWith(session.window(), "contact") != nullptr;
  });
}

}  // namespace

void tourAgeGate(Stage& stage, const Options& options) {
  const bool keepsData = !options.dataDirectory.isEmpty();
  const QString data = keepsData ? options.dataDirectory : stage.path("data");
  if (options.birthDate) {
    const QString life = keepsData ? data : data + "/life";
    if (!keepsData) QDir(life).removeRecursively();
    tourLife(stage, options, life, *options.birthDate, nameOf(options.appearance));
    return;
  }
  const QDate today = QDate::currentDate();
  for (const QString& appearance : {QString("light"), QString("dark")}) {
    for (const int age : {34, 9}) {
      const QString life = QString("%1/aged-%2-%3").arg(data, QString::number(age), appearance);
      if (!keepsData) QDir(life).removeRecursively();
      tourLife(stage, options, life, today.addYears(-age), appearance);
    }
  }
  if (options.language.isEmpty()) tourLanguages(stage, options, data, today.addYears(-9));
}

void playAgeGateStart(Stage& stage, const Options& options, const DesktopSettings& settings) {
  const QString suffix = suffixFor(options);
  Session session(settings, Device::playedPhone, options.minimumAge);
  session.window().show();
  stage.click(session.window(), "start");
  stage.waitFor("an answer", [&] {
    return session.ageGateCompletions() > 0 ||
           screenWith(session.window(), "confirmBtn") != nullptr ||
           screenWith(session.window(), "contact") != nullptr;
  });
  if (QWidget* gate = screenWith(session.window(), "confirmBtn")) {
    stage.picture("age-gate" + suffix, *gate);
    if (options.scene == "confirm") confirm(stage, session, *gate, options);
  }
  if (session.ageGateCompletions() > 0) {
    stage.picture("allowed" + suffix, session.window());
    stage.note("age gate: allowed");
  } else if (QWidget* refusal = screenWith(session.window(), "contact")) {
    stage.picture((options.scene == "confirm" ? "refused" : "refused-again") + suffix, *refusal);
    stage.note("age gate: refused");
  } else {
    stage.note("age gate: asked");
  }
}

}  // namespace host
