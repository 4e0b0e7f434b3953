#import "RootViewController.h"

#import "ServicesViewController.h"

@implementation RootViewController

- (void)viewDidLoad {
  [super viewDidLoad];
  UIViewController* services =
      [[ServicesViewController alloc] initWithStyle:UITableViewStyleGrouped];
  services.title = @"Services";
  // By its name for Objective-C, so that no generated header is needed.
  UIViewController* times = [NSClassFromString(@"TimesViewController") new];
  times.title = @"Times";
  self.viewControllers = @[ services, times ];
}

@end
