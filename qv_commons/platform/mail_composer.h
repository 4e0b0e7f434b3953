// The platform's mail composer: a screen on which the user completes and sends a message.
//
// Main thread only.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "qv_commons/platform/view_controller.h"

namespace qv_commons {

class MailComposer;

// How the user left the composer. The numeric values are the platform's own.
enum class MailComposeResult : std::int8_t { cancelled = 0, saved = 1, sent = 2, failed = 3 };

// A file attached to a message. `data` holds bytes.
struct MailAttachment {
  std::string data;
  std::string mimeType;  // used as spelled
  std::string fileName;
};

class MailComposeDelegate {
 public:
  virtual ~MailComposeDelegate() = default;

  // Called once the user has left `controller`, which is still on the screen. `error` is the
  // platform's description, empty if there is none.
  virtual void mailComposeController(MailComposer& controller, MailComposeResult result,
                                     const std::string& error) = 0;
};

class MailComposer : public ViewController {
 public:
  explicit MailComposer(ViewControllerKind kind = ViewControllerKind::plain)
      : ViewController(kind) {}

  virtual void setToRecipients(std::vector<std::string> recipients) = 0;
  virtual void setSubject(std::string subject) = 0;
  virtual void setMailComposeDelegate(std::weak_ptr<MailComposeDelegate> delegate) = 0;
  virtual void setMessageBody(std::string body, bool isHTML) = 0;
  virtual void addAttachment(MailAttachment attachment) = 0;
};

}  // namespace qv_commons
