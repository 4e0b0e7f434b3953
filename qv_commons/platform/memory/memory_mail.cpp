#include "qv_commons/platform/memory/memory_mail.h"

#include <utility>

namespace qv_commons::memory {
namespace {

std::string listed(const std::vector<std::string>& texts) {
  std::string list;
  for (const std::string& text : texts) list.append(list.empty() ? "" : ", ").append(quoted(text));
  return list;
}

}  // namespace

void MemoryMailComposer::finish(MailComposeResult result, const std::string& error) {
  if (const std::shared_ptr<MailComposeDelegate> told = delegate_.lock()) {
    told->mailComposeController(composer_, result, error);
  }
}

void MemoryMailComposer::show(bool) {
  if (outcome_) transitions().finish([this, result = *outcome_] { finish(result); });
}

void MemoryMailComposer::Composer::setToRecipients(std::vector<std::string> recipients) {
  owner_.record().add(owner_.name(), ".setToRecipients ", listed(recipients));
  owner_.message_.toRecipients = std::move(recipients);
}

void MemoryMailComposer::Composer::setSubject(std::string subject) {
  owner_.record().add(owner_.name(), ".setSubject ", quoted(subject));
  owner_.message_.subject = std::move(subject);
}

void MemoryMailComposer::Composer::setMailComposeDelegate(
    std::weak_ptr<MailComposeDelegate> delegate) {
  owner_.record().add(owner_.name(), ".setMailComposeDelegate");
  owner_.delegate_ = std::move(delegate);
}

void MemoryMailComposer::Composer::setMessageBody(std::string body, bool isHTML) {
  owner_.record().add(owner_.name(), ".setMessageBody ", std::to_string(body.size()),
                      isHTML ? " bytes, HTML" : " bytes, plain text");
  owner_.message_.body = std::move(body);
  owner_.message_.isHTML = isHTML;
}

void MemoryMailComposer::Composer::addAttachment(MailAttachment attachment) {
  owner_.record().add(owner_.name(), ".addAttachment ", quoted(attachment.fileName), " ",
                      attachment.mimeType, " ", std::to_string(attachment.data.size()), " bytes");
  owner_.message_.attachments.push_back(std::move(attachment));
}

bool MemoryMail::canSendMail() const {
  record_.add("mail.canSendMail");
  return available;
}

std::shared_ptr<MailComposer> MemoryMail::makeMailComposer() {
  std::string name = "composer" + std::to_string(composers_.size() + 1);
  record_.add("mail.makeMailComposer ", name);
  const auto& made = composers_.emplace_back(
      std::make_shared<MemoryMailComposer>(record_, transitions_, std::move(name), outcome));
  return {made, &made->controller()};
}

void MemoryAlert::tap(std::size_t index) {
  leave(actions_.at(index).handler);
}

void MemoryAlert::Alert::addAction(std::string title, AlertActionStyle style, Completion handler) {
  constexpr std::string_view kStyles[] = {" default", " cancel", " destructive"};
  owner_.record().add(owner_.name(), ".addAction ", quoted(title),
                      kStyles[static_cast<std::size_t>(style)],
                      handler ? ", with handler" : ", no handler");
  owner_.actions_.push_back({std::move(title), style, std::move(handler)});
}

std::shared_ptr<AlertController> MemoryAlerts::makeAlertController(std::string title,
                                                                   std::string message,
                                                                   AlertStyle preferredStyle) {
  std::string name = "alert" + std::to_string(alerts_.size() + 1);
  record_.add("alerts.makeAlertController ", name, " ", quoted(title), " ", quoted(message),
              preferredStyle == AlertStyle::alert ? " alert" : " actionSheet");
  const auto& made = alerts_.emplace_back(std::make_shared<MemoryAlert>(
      record_, transitions_, std::move(name),
      MemoryAlert::Texts{std::move(title), std::move(message), preferredStyle}));
  return {made, &made->controller()};
}

}  // namespace qv_commons::memory
