#include "examples/desktop_host/tour.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <utility>

#include "qv_commons/platform/desktop/sheet.h"

#include "examples/desktop_host/age_gate_tour.h"
#include "examples/desktop_host/mail_sink.h"
#include "examples/desktop_host/session.h"
#include "examples/desktop_host/stage.h"

namespace host {
namespace {

using qv_commons::desktop::DesktopSettings;
using qv_commons::desktop::Sheet;

constexpr std::int64_t kMinimumAge = 16;

QWidget* openComposer(Stage& stage, Session& session) {
  stage.click(session.window(), "contactSupport");
  return stage.waitForSheet("the composer", session.window());
}

void sendMessage(Stage& stage, DesktopSettings settings) {
  stage.note("== Contact support");
  Session session(std::move(settings), Device::playedPhone, kMinimumAge);
  session.window().show();
  stage.picture("home", session.window());
  QWidget* composer = openComposer(stage, session);
  if (composer == nullptr) return;
  stage.picture("composer", *composer);
  stage.click(*composer, "send");
  stage.pictureAtOnce("composer-sending", *composer);
  stage.waitFor("the host is told", [&] { return session.supportCompletions() == 1; });
  stage.note("the host is told that the composer is gone");
  stage.picture("home-after-sending", session.window());
  if (QFile::exists(stage.path("support-mail.eml"))) {
    stage.note("sent: support-mail.eml");
  } else {
    stage.fail("no message arrived");
  }
}

void saveDraftAfterFailure(Stage& stage, DesktopSettings settings) {
  stage.note("== Contact support, while the mail can't be delivered");
  settings.sendmailProgram = "/bin/false";
  Session session(std::move(settings), Device::playedPhone, kMinimumAge);
  session.window().show();
  QWidget* composer = openComposer(stage, session);
  if (composer == nullptr) return;
  stage.click(*composer, "send");
  auto* send = composer->findChild<QAbstractButton*>("send");
  stage.waitFor("Send is offered again", [&] { return send->isEnabled(); });
  stage.picture("composer-failed", *composer);
  auto* cancel = composer->findChild<QAbstractButton*>("cancel");
  const QString unsaved = cancel->text();
  stage.click(*composer, "save");
  stage.waitFor("it is saved", [&] { return cancel->text() != unsaved; });  // it says Done
  stage.picture("composer-saved", *composer);
  stage.click(*composer, "cancel");
  stage.waitFor("the host is told", [&] { return session.supportCompletions() == 1; });
  stage.note("the host is told that the composer is gone");
}

void showAlertWithoutMail(Stage& stage, DesktopSettings settings) {
  stage.note("== Contact support, where no mail can be sent");
  settings.mailWays.clear();
  Session session(std::move(settings), Device::playedPhone, kMinimumAge);
  session.window().show();
  stage.click(session.window(), "contactSupport");
  QWidget* alert = stage.waitForSheet("the alert", session.window());
  if (alert == nullptr) return;
  stage.picture("alert", *alert);
  stage.click(*alert, "action0");
  stage.waitFor("the alert is gone", [&] { return Sheet::topOf(session.window()) == nullptr; });
  if (session.supportCompletions() != 0) stage.fail("the host was told");
}

// Opens the page of that row, shows it, and lets `use` do something there.
void visitPage(Stage& stage, Session& session, const QString& name,
               const std::function<void(QWidget& page)>& use) {
  stage.click(session.window(), name);
  QWidget* page = session.window().pages().currentWidget();
  use(*page);
  stage.picture("page-" + name, session.window());
  stage.click(*page, "back");
}

void visitPages(Stage& stage, DesktopSettings settings) {
  stage.note("== The pages of the other services");
  Session session(std::move(settings), Device::playedPhone, kMinimumAge);
  session.window().show();
  visitPage(stage, session, "links", [&](QWidget& page) {
    for (const char* link : {"review", "privacyPolicy", "termsOfService"}) stage.click(page, link);
    for (const auto& url : session.phone().openedLinks()) {
      stage.note("opened: " + QString::fromStdString(url.text()));
    }
  });
  visitPage(stage, session, "appInfo", [](QWidget&) {});
  visitPage(stage, session, "time",
            [&](QWidget& page) { stage.note(page.findChild<QLabel*>("reading")->text()); });
  visitPage(stage, session, "topController", [&](QWidget& page) {
    stage.click(*page.findChild<QWidget*>("First"), "showAlert");
    if (QWidget* alert = stage.waitForSheet("the alert", session.window())) {
      stage.picture("page-topController-alert", *alert);
      stage.note(session.window().findChild<QLabel*>("status")->text());
      stage.click(*alert, "action0");
      stage.waitFor("the alert is gone", [&] { return Sheet::topOf(session.window()) == nullptr; });
    }
  });
  visitPage(stage, session, "search", [&](QWidget& page) {
    stage.click(page, "fillIn");
    stage.note(session.window().findChild<QLabel*>("status")->text());
  });
}

int playScene(const Options& options, const DesktopSettings& settings) {
  Stage stage(*options.tourDirectory, Stage::Transcript::continued);
  if (!stage.isUsable()) return 1;
  playAgeGateStart(stage, options, settings);
  return stage.failed() ? 1 : 0;
}

}  // namespace

int runTour(const Options& options, DesktopSettings settings) {
  if (options.language.isEmpty()) {
    settings.languages = {"en"};
    settings.calendar.locale = "en-GB";
  }
  if (options.scene) return playScene(options, settings);
  Stage stage(*options.tourDirectory, Stage::Transcript::fresh);
  if (!stage.isUsable()) return 1;
  if (options.dataDirectory.isEmpty()) settings.dataDirectory = stage.path("data").toStdString();

  QFile::remove(stage.path("support-mail.eml"));
  const MailSink sink(stage.path("support-mail.eml"));
  if (sink.isUp()) {
    settings.sendmailProgram = sink.program();
    settings.sendmailArguments = sink.arguments();
    sendMessage(stage, settings);
  } else {
    stage.note("Left out: sending. It needs msmtp, python3 and aiosmtpd.");
  }
  saveDraftAfterFailure(stage, settings);
  showAlertWithoutMail(stage, settings);
  visitPages(stage, settings);
  tourAgeGate(stage, options);
  stage.note(stage.failed() ? "The tour failed." : "The tour is over.");
  return stage.failed() ? 1 : 0;
}

}  // namespace host
