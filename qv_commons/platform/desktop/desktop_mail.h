// The mail composer: a window of its own, the system's mail program behind it.
#pragma once

#include "qv_commons/platform/desktop/desktop_context.h"
#include "qv_commons/platform/mail_composer.h"

namespace qv_commons::desktop {

class DesktopMail final : public MailComposers {
 public:
  explicit DesktopMail(SharedContext context) : context_(std::move(context)) {}

  // Whether there is a mail program at this moment.
  bool canSendMail() const override;

  // The composer stays open until its message is sent or saved or the user cancels. A message that
  // can't be sent stays as it was typed, and from the first attempt on a copy is kept as a draft.
  std::shared_ptr<MailComposer> makeMailComposer() override;

 private:
  SharedContext context_;
};

}  // namespace qv_commons::desktop
