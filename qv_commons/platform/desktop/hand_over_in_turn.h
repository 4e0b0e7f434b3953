// Hands a message over to the desktop by the first way that takes it.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <atomic>
#include <memory>
#include <string>
#include <vector>

#include "qv_commons/platform/desktop/background_work.h"
#include "qv_commons/platform/desktop/desktop_platform.h"
#include "qv_commons/platform/desktop/mail_hand_over.h"

namespace qv_commons::desktop {

// Main thread only. Destroying it gives up what is under way; the mail program may open all the
// same then.
class HandOverInTurn {
 public:
  // Tries `ways` in their order, without sendmail. The attachments become files in `folder`, beside
  // the main thread; `name` is the message's own. `done` is called once, from the event loop, and
  // must not destroy this. It has failed where no way took the message, with the last one's reason;
  // without one where there was no way.
  HandOverInTurn(std::vector<MailWay> ways, MailMessage message, std::string folder,
                 std::string name, QWidget* window, MailHandOver::Done done);

  // How much of the files is written, from 0 to 1.
  double progress() const;

 private:
  using Outcome = MailHandOver::Outcome;

  void tryNext(const Failure& failure);
  void onTried(Outcome outcome, const Failure& failure);

  std::vector<MailWay> ways_;  // the next one last
  QPointer<QWidget> window_;
  MailHandOver::Done done_;
  std::size_t size_;
  std::atomic<std::size_t> written_ = 0;
  Result<HandedMail> mail_;
  std::unique_ptr<MailHandOver> attempt_;
  QObject receiver_;
  BackgroundWork work_;
};

}  // namespace qv_commons::desktop
