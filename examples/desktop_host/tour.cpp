#include "examples/desktop_host/tour.h"

#include <QApplication>
#include <QFile>
#include <utility>

#include "examples/desktop_host/mail_sink.h"
#include "examples/desktop_host/session.h"
#include "examples/desktop_host/stage.h"

namespace host {
namespace {

using qv_commons::desktop::DesktopSettings;

QWidget* openComposer(Stage& stage, Session& session) {
  stage.click(session.window(), "contactSupport");
  return stage.waitForModalWindow("the composer");
}

void sendMessage(Stage& stage, DesktopSettings settings) {
  stage.note("== Contact support");
  Session session(std::move(settings), Device::playedPhone);
  session.window().show();
  stage.picture("home", session.window());
  QWidget* composer = openComposer(stage, session);
  if (composer == nullptr) return;
  stage.picture("composer", *composer);
  stage.click(*composer, "send");
  stage.picture("composer-sending", *composer);
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
  Session session(std::move(settings), Device::playedPhone);
  session.window().show();
  QWidget* composer = openComposer(stage, session);
  if (composer == nullptr) return;
  stage.click(*composer, "send");
  auto* send = composer->findChild<QPushButton*>("send");
  stage.waitFor("Send is offered again", [&] { return send->isEnabled(); });
  stage.picture("composer-failed", *composer);
  stage.click(*composer, "save");
  stage.waitFor("the host is told", [&] { return session.supportCompletions() == 1; });
  stage.note("the host is told that the composer is gone");
}

void showAlertWithoutMail(Stage& stage, DesktopSettings settings) {
  stage.note("== Contact support, where no mail can be sent");
  settings.sendmailProgram = "/nonexistent/sendmail";
  Session session(std::move(settings), Device::playedPhone);
  session.window().show();
  stage.click(session.window(), "contactSupport");
  QWidget* alert = stage.waitForModalWindow("the alert");
  if (alert == nullptr) return;
  stage.picture("alert", *alert);
  stage.click(*alert, "action0");
  stage.waitFor("the alert is gone", [] { return QApplication::activeModalWidget() == nullptr; });
  stage.note(session.supportCompletions() == 0 ? "the host is not told"
                                               : "FAILED: the host is told");
}

}  // namespace

int runTour(const Options& options, DesktopSettings settings) {
  Stage stage(*options.tourDirectory);
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
  stage.note(stage.failed() ? "The tour failed." : "The tour is over.");
  return stage.failed() ? 1 : 0;
}

}  // namespace host
