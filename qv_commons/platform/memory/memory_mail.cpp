#include "qv_commons/platform/memory/memory_mail.h"

#include <utility>

namespace qv_commons::memory {
namespace {

std::string listed(const std::vector<std::string>& texts) {
  std::string list;
  for (const std::string& text : texts)
    list.append(list.empty() ? "" : ", ").append(inQuotes(text));
  return list;
}

}  // namespace

void MemoryMailComposer::finish(MailComposeResult result, const std::string& error) {
  if (const std::shared_ptr<MailComposeDelegate> told = delegate_.lock()) {
    told->mailComposeController(*this, result, error);
  }
}

void MemoryMailComposer::show(bool) {
  if (outcome_) transitions().finish([this, result = *outcome_] { finish(result); });
}

void MemoryMailComposer::setToRecipients(std::vector<std::string> recipients) {
  record().add(name(), ".setToRecipients ", listed(recipients));
  message_.toRecipients = std::move(recipients);
}

void MemoryMailComposer::setSubject(std::string subject) {
  record().add(name(), ".setSubject ", inQuotes(subject));
  message_.subject = std::move(subject);
}

void MemoryMailComposer::setMailComposeDelegate(std::weak_ptr<MailComposeDelegate> delegate) {
  record().add(name(), ".setMailComposeDelegate");
  delegate_ = std::move(delegate);
}

void MemoryMailComposer::setMessageBody(std::string body, bool isHTML) {
  record().add(name(), ".setMessageBody ", std::to_string(body.size()),
               isHTML ? " bytes, HTML" : " bytes, plain text");
  message_.body = std::move(body);
  message_.isHTML = isHTML;
}

void MemoryMailComposer::addAttachment(MailAttachment attachment) {
  record().add(name(), ".addAttachment ", inQuotes(attachment.fileName), " ", attachment.mimeType,
               " ", std::to_string(attachment.data.size()), " bytes");
  message_.attachments.push_back(std::move(attachment));
}

void MemoryAlert::tap(std::size_t index) {
  NativeController::dismiss(true, actions_.at(index).handler);
}

void MemoryAlert::addAction(std::string title, AlertActionStyle style, Completion handler) {
  constexpr std::string_view kStyles[] = {" default", " cancel", " destructive"};
  record().add(name(), ".addAction ", inQuotes(title), kStyles[static_cast<std::size_t>(style)],
               handler ? ", with handler" : ", no handler");
  actions_.push_back({std::move(title), style, std::move(handler)});
}

}  // namespace qv_commons::memory
