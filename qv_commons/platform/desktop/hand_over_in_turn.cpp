#include "qv_commons/platform/desktop/hand_over_in_turn.h"

#include <QMetaObject>
#include <utility>

#include "qv_commons/platform/desktop/portal_mail.h"
#include "qv_commons/platform/desktop/xdg_email.h"

namespace qv_commons::desktop {
namespace {

std::size_t sizeOfFiles(const MailMessage& message) {
  std::size_t size = 0;
  for (const SharedAttachment& attachment : message.attachments) size += attachment->data.size();
  return size;
}

}  // namespace

HandOverInTurn::HandOverInTurn(std::vector<MailWay> ways, MailMessage message, std::string folder,
                               std::string name, QWidget* window, MailHandOver::Done done)
    : ways_(ways.rbegin(), ways.rend()),
      window_(window),
      done_(std::move(done)),
      size_(sizeOfFiles(message)) {
  work_.start(
      [this, message = std::move(message), folder = std::move(folder),
       name = std::move(name)](const std::atomic<bool>& isStopped) {
        mail_ = makeHandedMail(message, folder, name, isStopped,
                               [this](std::size_t bytes) { written_ += bytes; });
      },
      [this] { tryNext(mail_.failure); });
}

double HandOverInTurn::progress() const {
  if (written_ >= size_) return 1;
  return static_cast<double>(written_) / static_cast<double>(size_);
}

void HandOverInTurn::tryNext(const Failure& failure) {
  attempt_.reset();
  if (!mail_.value || ways_.empty()) return done_(Outcome::failed, failure);
  const MailWay way = ways_.back();
  ways_.pop_back();
  // The attempt that has ended is still at work, and about to be destroyed.
  const auto tried = [this](Outcome outcome, const Failure& reason) {
    QMetaObject::invokeMethod(
        &receiver_, [this, outcome, reason] { onTried(outcome, reason); }, Qt::QueuedConnection);
  };
  if (way == MailWay::portal) {
    attempt_ = std::make_unique<PortalMail>(*mail_.value, window_, tried);
  } else {
    attempt_ = std::make_unique<XdgEmail>(*mail_.value, tried);
  }
}

void HandOverInTurn::onTried(Outcome outcome, const Failure& failure) {
  if (outcome == Outcome::failed) return tryNext(failure);
  done_(outcome, std::nullopt);
}

}  // namespace qv_commons::desktop
