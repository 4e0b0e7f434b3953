#import "ServicesViewController.h"

static NSString* const kCell = @"service";
static NSString* const kPrivacy = @"https://www.example.com/privacy/";
static NSString* const kTerms = @"https://www.example.com/terms-of-service/";

@interface Service : NSObject
@property(nonatomic, copy) NSString* title;
@property(nonatomic, copy, nullable) NSString* detail;
@property(nonatomic, copy, nullable) void (^run)(void);
@end

@implementation Service
@synthesize title = _title;
@synthesize detail = _detail;
@synthesize run = _run;

+ (Service*)named:(NSString*)title detail:(nullable NSString*)detail run:(void (^)(void))run {
  Service* service = [Service new];
  service.title = title;
  service.detail = detail;
  service.run = run;
  return service;
}
@end

@implementation ServicesViewController {
  NSArray<Service*>* _services;
  BOOL _started;
}

- (void)viewDidLoad {
  [super viewDidLoad];
  _services = [[self calls] arrayByAddingObjectsFromArray:[self particulars]];

  UISearchBar* search = [UISearchBar new];
  search.qv_searchTextField_all_iOS_versions.placeholder = @"Search services";
  [search sizeToFit];
  self.tableView.tableHeaderView = search;
}

- (void)viewDidAppear:(BOOL)animated {
  [super viewDidAppear:animated];
  if (_started) return;
  _started = YES;
  [self startAgeGate];
}

#pragma mark - What the rows do

- (NSArray<Service*>*)calls {
  __weak ServicesViewController* weakSelf = self;
  return @[
    [Service named:@"Age gate"
            detail:@"Nothing to see once you were let through"
               run:^{
                 [weakSelf startAgeGate];
               }],
    [Service named:@"Contact support"
            detail:@"An e-mail with the app's particulars"
               run:^{
                 [weakSelf contactSupportFrom:weakSelf];
               }],
    [Service named:@"Write a review"
            detail:nil
               run:^{
                 [QV_RateHelper openWriteReviewOnAppStoreWithAppId:@"id123456789"];
               }],
    [Service named:@"Privacy policy"
            detail:QV_Links.privacyPolicy.absoluteString
               run:^{
                 [weakSelf open:QV_Links.privacyPolicy];
               }],
    [Service named:@"Terms of service"
            detail:QV_Links.termsOfService.absoluteString
               run:^{
                 [weakSelf open:QV_Links.termsOfService];
               }],
    [Service named:@"Say hello on the top screen"
            detail:[QV_BundleFileHelper loadJsonFromBundleWithFilename:@"greeting"]
               run:^{
                 [weakSelf greet];
               }],
  ];
}

- (NSArray<Service*>*)particulars {
  NSBundle* resources = [QV_BundleFileHelper getQVCommonsResourceBundle];
  return @[
    [Service named:@"Name" detail:[QV_AppInfoHelper appName] run:nil],
    [Service named:@"Version" detail:[QV_AppInfoHelper appVersion] run:nil],
    [Service named:@"Identifier" detail:[QV_AppInfoHelper appId] run:nil],
    [Service named:@"Resource bundle" detail:resources.bundlePath.lastPathComponent run:nil],
  ];
}

- (void)startAgeGate {
  __weak ServicesViewController* weakSelf = self;
  [QV_AgeGateHelper startAgeGateProcessWithViewController:self
      minimumAgeRequired:16
      completion:^{
        weakSelf.title = @"Let through";
      }
      contactUsHandler:^(UIViewController* refusedScreen) {
        [weakSelf contactSupportFrom:refusedScreen];
      }
      colorTheme:[self theme]
      privacyLink:kPrivacy
      termsOfServiceLink:kTerms];
}

// The stock colours from 13.0 on, where they follow the device; a theme of its own before.
- (QV_AgeGateColorTheme*)theme {
  if (@available(iOS 13.0, *)) return [QV_AgeGateColorTheme defaultTheme];
  UIColor* ink = [UIColor colorWithRed:0.11 green:0.16 blue:0.25 alpha:1];
  return [[QV_AgeGateColorTheme alloc] initWithBackgroundColor:UIColor.whiteColor
                                         buttonBackgroundColor:ink
                                               buttonTextColor:UIColor.whiteColor
                                                     textColor:ink
                                             policiesTextColor:[UIColor colorWithRed:0.35
                                                                               green:0.41
                                                                                blue:0.51
                                                                               alpha:1]];
}

- (void)contactSupportFrom:(UIViewController*)screen {
  [QV_SupportHelper.shared contactSupportWithViewController:screen
                                                      email:@"support@example.com"
                                                    subject:@"Help with the example"
                                                  purchases:@[ @"pro_monthly", @"remove_ads" ]
                                             openingMessage:nil
                                         additionalMetadata:@"User: 42"
                                                   delegate:self];
}

- (void)onCompletion {
  self.title = @"Thank you for writing";
}

- (void)open:(NSURL*)url {
  [UIApplication.sharedApplication openURL:url options:@{} completionHandler:nil];
}

- (void)greet {
  UIAlertController* alert =
      [UIAlertController alertControllerWithTitle:@"Hello"
                                          message:nil
                                   preferredStyle:UIAlertControllerStyleAlert];
  [alert addAction:[UIAlertAction actionWithTitle:@"OK"
                                            style:UIAlertActionStyleDefault
                                          handler:nil]];
  UIViewController* top =
      [QV_ViewControllerHelper topViewControllerWithController:self.tabBarController];
  [top presentViewController:alert animated:YES completion:nil];
}

#pragma mark - The list

- (NSInteger)tableView:(UITableView*)tableView numberOfRowsInSection:(NSInteger)section {
  return (NSInteger)_services.count;
}

- (UITableViewCell*)tableView:(UITableView*)tableView
        cellForRowAtIndexPath:(NSIndexPath*)indexPath {
  UITableViewCell* cell = [tableView dequeueReusableCellWithIdentifier:kCell];
  if (cell == nil) {
    cell = [[UITableViewCell alloc] initWithStyle:UITableViewCellStyleSubtitle
                                  reuseIdentifier:kCell];
  }
  Service* service = _services[(NSUInteger)indexPath.row];
  cell.textLabel.text = service.title;
  cell.detailTextLabel.text = service.detail;
  cell.detailTextLabel.numberOfLines = 0;
  cell.selectionStyle =
      service.run ? UITableViewCellSelectionStyleDefault : UITableViewCellSelectionStyleNone;
  return cell;
}

- (void)tableView:(UITableView*)tableView didSelectRowAtIndexPath:(NSIndexPath*)indexPath {
  [tableView deselectRowAtIndexPath:indexPath animated:YES];
  void (^run)(void) = _services[(NSUInteger)indexPath.row].run;
  if (run) run();
}

@end
