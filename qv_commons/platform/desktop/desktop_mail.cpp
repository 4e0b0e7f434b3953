#include "qv_commons/platform/desktop/desktop_mail.h"

#include "qv_commons/platform/desktop/desktop_composer.h"
#include "qv_commons/platform/desktop/mail_sender.h"

namespace qv_commons::desktop {

bool DesktopMail::canSendMail() const {
  return !findMailProgram(context_->settings.sendmailProgram).isEmpty();
}

std::shared_ptr<MailComposer> DesktopMail::makeMailComposer() {
  auto made = std::make_shared<DesktopComposer>(context_);
  MailComposer& controller = made->controller();
  return {std::move(made), &controller};
}

}  // namespace qv_commons::desktop
