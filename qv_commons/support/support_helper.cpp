#include "qv_commons/support/support_helper.h"

#include <utility>

#include "qv_commons/app_info/app_info_helper.h"
#include "qv_commons/app_info/joined_text.h"
#include "qv_commons/platform/application.h"
#include "qv_commons/platform/device.h"
#include "qv_commons/platform/platform.h"
#include "qv_commons/platform/view_controllers.h"
#include "qv_commons/support/support_mail.h"

namespace qv_commons {
namespace {

void presentCannotSendAlert(ViewControllers& viewControllers, ViewController& viewController) {
  std::shared_ptr<AlertController> alert = viewControllers.makeAlertController(
      "Error", "Please configure your email account in the Settings.", AlertStyle::alert);
  alert->addAction("OK", AlertActionStyle::standard, nullptr);
  viewController.presentViewController(std::move(alert), true, nullptr);
}

std::string preferredLanguageOf(const Device& device) {
  const std::vector<std::string> languages = device.preferredLanguages();
  return languages.empty() ? std::string() : languages.front();
}

// The texts live until the body is made.
std::string composeBody(const Platform& platform, const std::vector<std::string>& purchases,
                        std::optional<std::string_view> openingMessage,
                        std::optional<std::string_view> additionalMetadata) {
  const Bundle& bundle = platform.bundles.mainBundle();
  const Device& device = platform.device;
  return supportMailBody({.openingMessage = openingMessage,
                          .appId = appIdOf(bundle),
                          .localizedModel = device.localizedModel(),
                          .systemVersion = device.systemVersion(),
                          .screenSize = device.screenBounds(),
                          .preferredLanguage = preferredLanguageOf(device),
                          .appVersion = appVersionOf(bundle),
                          .purchases = purchases,
                          .additionalMetadata = additionalMetadata});
}

struct Receipt {
  std::optional<FileLocation> location;
  std::optional<MailAttachment> attachment;  // std::nullopt if it can't be read
  std::string error;                         // why not
};

// A receipt may be large: it is read and encoded where that holds nobody up.
void attachReceipt(const Platform& platform, MailComposer& composer) {
  const auto receipt = std::make_shared<Receipt>();
  receipt->location = platform.bundles.mainBundle().appStoreReceiptURL();
  if (!receipt->location) return;
  composer.prepare(
      [receipt, &bundles = platform.bundles] {
        FileContents file = bundles.read(*receipt->location);
        receipt->error = std::move(file.errorDescription);
        if (file.bytes) receipt->attachment = supportMailAttachment(*file.bytes);
      },
      [receipt, &application = platform.application, &composer] {
        if (receipt->attachment) return composer.addAttachment(*std::move(receipt->attachment));
        application.print(joinedText({"error converting receipt to Data: ", receipt->error}));
      });
}

}  // namespace

QV_SupportHelper& QV_SupportHelper::shared() {
  // Never destroyed: composers may report to it until the very end of the process.
  static const auto* const instance = new std::shared_ptr<QV_SupportHelper>(create());
  return **instance;
}

std::shared_ptr<QV_SupportHelper> QV_SupportHelper::create() {
  return std::shared_ptr<QV_SupportHelper>(new QV_SupportHelper);
}

void QV_SupportHelper::contactSupport(ViewController& viewController, const std::string& email,
                                      const std::string& subject,
                                      const std::vector<std::string>& purchases,
                                      std::optional<std::string_view> openingMessage,
                                      std::optional<std::string_view> additionalMetadata,
                                      std::weak_ptr<QV_SupportHelperDelegate> delegate) {
  const Platform& platform = currentPlatform();
  if (!platform.viewControllers.canSendMail()) {
    return presentCannotSendAlert(platform.viewControllers, viewController);
  }
  delegate_ = std::move(delegate);
  std::shared_ptr<MailComposer> composer = platform.viewControllers.makeMailComposer();
  composer->setToRecipients(std::vector<std::string>(1, email));
  composer->setSubject(subject);
  composer->setMailComposeDelegate(weak_from_this());
  composer->setMessageBody(composeBody(platform, purchases, openingMessage, additionalMetadata),
                           false);
  attachReceipt(platform, *composer);
  viewController.presentViewController(std::move(composer), true, nullptr);
}

std::shared_ptr<QV_SupportHelperDelegate> QV_SupportHelper::delegate() const {
  return delegate_.lock();
}

void QV_SupportHelper::mailComposeController(MailComposer& controller, MailComposeResult,
                                             const std::string&) {
  controller.dismissViewController(true, [self = shared_from_this()] {
    if (const auto delegate = self->delegate()) delegate->onCompletion();
    self->delegate_.reset();
  });
}

}  // namespace qv_commons
