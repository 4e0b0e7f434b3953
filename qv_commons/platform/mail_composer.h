// The platform's mail composer: a screen on which the user completes and sends a message.
//
// Main thread only.
#pragma once

#include <cstdint>
#include <functional>
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

  // Runs `work`, which may take long and uses nothing of the platform but `Bundles::read`, and then
  // `done`, which attaches what `work` has made. To be called before the composer is presented. An
  // adapter that can't attach any more then does both at once, as here. Another one may run `work`
  // beside the main thread while the user reads the message, and `done` on the main thread; then
  // nothing is sent before, and neither is run to its end where the user has left.
  virtual void prepare(const std::function<void()>& work, const std::function<void()>& done) {
    work();
    done();
  }
};

}  // namespace qv_commons
