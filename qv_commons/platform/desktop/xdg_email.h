// Mail by the program xdg-email, which opens the user's mail program.
#pragma once

#include <QProcess>
#include <QString>
#include <QTimer>
#include <chrono>
#include <memory>

#include "qv_commons/platform/desktop/mail_hand_over.h"

namespace qv_commons::desktop {

// In PATH; empty where it is not.
QString findXdgEmail();

class XdgEmail final : public MailHandOver {
 public:
  // Where xdg-email has not come back after `longest`, it has become the mail program: that has
  // opened then, and goes on when this is destroyed.
  XdgEmail(const HandedMail& mail, Done done,
           std::chrono::milliseconds longest = std::chrono::seconds(10));
  ~XdgEmail() override;

 private:
  void onFinished(int exitCode, QProcess::ExitStatus status);
  void finish(Outcome outcome, const Failure& failure = {});

  Done done_;
  std::unique_ptr<QProcess> process_ = std::make_unique<QProcess>();
  QTimer timer_;
};

}  // namespace qv_commons::desktop
