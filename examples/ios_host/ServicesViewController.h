#import <QV_Commons_iOS/QV_Commons_iOS.h>

NS_ASSUME_NONNULL_BEGIN

/// A list of what the library offers; a tap on a row calls it. The age gate comes up at the start.
@interface ServicesViewController : UITableViewController <QV_SupportHelperDelegate>
@end

NS_ASSUME_NONNULL_END
