#import "tests/uikit_standin/standin.h"

namespace {

bool mailIsSetUp;

}  // namespace

void standin::setCanSendMail(bool can) {
  mailIsSetUp = can;
}

@interface MFMailComposeViewController ()
- (const standin::Mail&)standinMail;
@end

@implementation MFMailComposeViewController {
  standin::Mail _mail;
}
@synthesize mailComposeDelegate = _mailComposeDelegate;
+ (BOOL)canSendMail {
  standin::note(@"%@ canSendMail", NSStringFromClass(self));
  return mailIsSetUp;
}
- (const standin::Mail&)standinMail {
  return _mail;
}
- (void)setMailComposeDelegate:(id<MFMailComposeViewControllerDelegate>)delegate {
  standin::note(@"%@ setMailComposeDelegate:%@", standin::nameOf(self), standin::nameOf(delegate));
  _mailComposeDelegate = delegate;
}
- (void)setSubject:(NSString*)subject {
  standin::note(@"%@ setSubject:\"%@\"", standin::nameOf(self), subject);
  _mail.subject = [subject copy];
}
- (void)setToRecipients:(NSArray<NSString*>*)recipients {
  standin::note(@"%@ setToRecipients:[%@]", standin::nameOf(self),
                [recipients componentsJoinedByString:@", "]);
  _mail.toRecipients = [recipients copy];
}
- (void)setMessageBody:(NSString*)body isHTML:(BOOL)isHTML {
  standin::note(@"%@ setMessageBody:%lu units isHTML:%d", standin::nameOf(self), body.length,
                isHTML);
  _mail.body = [body copy];
  _mail.isHTML = isHTML;
}
- (void)addAttachmentData:(NSData*)data mimeType:(NSString*)mimeType fileName:(NSString*)fileName {
  standin::note(@"%@ addAttachmentData:%lu bytes mimeType:%@ fileName:%@", standin::nameOf(self),
                data.length, mimeType, fileName);
  _mail.attachments.push_back({[data copy], [mimeType copy], [fileName copy]});
}
@end

const standin::Mail& standin::mailOf(MFMailComposeViewController* composer) {
  return [composer standinMail];
}

void standin::finishMail(MFMailComposeViewController* composer, MFMailComposeResult result,
                         NSError* error) {
  id<MFMailComposeViewControllerDelegate> delegate = composer.mailComposeDelegate;
  if ([delegate respondsToSelector:@selector(mailComposeController:didFinishWithResult:error:)]) {
    [delegate mailComposeController:composer didFinishWithResult:result error:error];
  }
}
