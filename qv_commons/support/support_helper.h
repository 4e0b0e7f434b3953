// The support e-mail: opens a pre-filled mail composer, or an alert if no mail can be sent.
//
//     struct Host : qv_commons::QV_SupportHelperDelegate {
//       void onCompletion() override {}  // the composer is gone
//     };
//     auto host = std::make_shared<Host>();
//     std::shared_ptr<qv_commons::ViewController> screen = platform.makeViewController("home");
//     qv_commons::QV_SupportHelper::shared().contactSupport(
//         *screen, "support@example.com", "Help with Notes", {"pro_monthly"}, std::nullopt,
//         "User: 42", host);
//
// Main thread only; `shared()` alone may be called from any thread.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "qv_commons/export.h"
#include "qv_commons/platform/mail_composer.h"
#include "qv_commons/platform/view_controller.h"

namespace qv_commons {

class QV_SupportHelperDelegate {
 public:
  virtual ~QV_SupportHelperDelegate() = default;

  // Called once, after the composer has left the screen, whatever became of the message. Start the
  // next request after this has returned: the helper empties its delegate slot then.
  virtual void onCompletion() = 0;
};

class QV_COMMONS_EXPORT QV_SupportHelper final
    : public MailComposeDelegate,
      public std::enable_shared_from_this<QV_SupportHelper> {
 public:
  // The one instance for the whole process: made on first use, exactly once, never destroyed.
  static QV_SupportHelper& shared();

  // An instance with a delegate slot of its own. Keep it until its composer is gone: composers
  // refer to it without keeping it alive.
  static std::shared_ptr<QV_SupportHelper> create();

  // Opens a composer on `viewController`, addressed to `email` as it stands, with `subject`, the
  // body of `supportMailBody` and the store's receipt attached, if there is one. A receipt that
  // can't be read is left out, with one line on the console. If the device can't send mail, only
  // shows an alert: `delegate` is neither kept nor called.
  //
  // There is one delegate slot: a request made while a composer is open replaces its delegate, and
  // the first composer to finish calls that one and empties the slot. `delegate` may be empty, and
  // one that has expired when the composer closes is skipped.
  void contactSupport(ViewController& viewController, const std::string& email,
                      const std::string& subject, const std::vector<std::string>& purchases,
                      std::optional<std::string_view> openingMessage,
                      std::optional<std::string_view> additionalMetadata,
                      std::weak_ptr<QV_SupportHelperDelegate> delegate);

  // The composer's callback, not for hosts: dismisses the composer, then calls the delegate and
  // empties the slot. Every outcome is treated alike.
  void mailComposeController(MailComposer& controller, MailComposeResult result,
                             const std::string& error) override;

  // The object to call when the current composition ends; null if there is none or it has expired.
  std::shared_ptr<QV_SupportHelperDelegate> delegate() const;

 private:
  QV_SupportHelper() = default;

  std::weak_ptr<QV_SupportHelperDelegate> delegate_;
};

}  // namespace qv_commons
