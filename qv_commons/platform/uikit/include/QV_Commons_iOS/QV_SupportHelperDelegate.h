#pragma once

#import <QV_Commons_iOS/QV_Defines.h>

NS_ASSUME_NONNULL_BEGIN

/// Who is told that the user is done with the support e-mail.
NS_SWIFT_UI_ACTOR
@protocol QV_SupportHelperDelegate <NSObject>

/// Called once, after the composer has left the screen, whatever became of the message.
- (void)onCompletion NS_SWIFT_NAME(onCompletion());

@end

NS_ASSUME_NONNULL_END
