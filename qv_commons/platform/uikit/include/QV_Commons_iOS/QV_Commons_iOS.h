/// All that QV Commons offers to iOS apps in Objective-C and Swift: age gate, support e-mail, store
/// review, legal links, app information and resources, time, view utilities.
///
///     #import <QV_Commons_iOS/QV_Commons_iOS.h>     // Objective-C
///     import QV_Commons_iOS                         // Swift
#import <QV_Commons_iOS/QV_AgeGateColorTheme.h>
#import <QV_Commons_iOS/QV_AgeGateHelper.h>
#import <QV_Commons_iOS/QV_AppInfoHelper.h>
#import <QV_Commons_iOS/QV_BundleFileHelper.h>
#import <QV_Commons_iOS/QV_Links.h>
#import <QV_Commons_iOS/QV_RateHelper.h>
#import <QV_Commons_iOS/QV_SupportHelper.h>
#import <QV_Commons_iOS/QV_SupportHelperDelegate.h>
#import <QV_Commons_iOS/QV_TimeHelper.h>
#import <QV_Commons_iOS/QV_ViewControllerHelper.h>
#import <QV_Commons_iOS/UISearchBar+QV_SearchBar.h>
