#import "tests/uikit_standin/standin.h"

using standin::nameOf;
using standin::note;

@implementation UIViewController {
  NSMutableArray<UIViewController*>* _presented;  // the last one on top
  __weak UIViewController* _presenter;
  BOOL _modalInPresentation;
  UIUserInterfaceStyle _overrideUserInterfaceStyle;
}
@synthesize view = _view;
@synthesize viewLoaded = _viewLoaded;
@synthesize title = _title;
@synthesize nibName = _nibName;
@synthesize nibBundle = _nibBundle;

- (instancetype)initWithNibName:(NSString*)nibName bundle:(NSBundle*)bundle {
  if ((self = [super init])) {
    _nibName = [nibName copy];
    _nibBundle = bundle;
  }
  return self;
}
- (instancetype)initWithCoder:(NSCoder*)coder {
  (void)coder;
  return [super init];
}
- (instancetype)init {
  return [self initWithNibName:nil bundle:nil];
}

- (UIView*)view {
  [self loadViewIfNeeded];
  return _view;
}
- (void)setView:(UIView*)view {
  _view = view;
}
- (BOOL)isViewLoaded {
  return _viewLoaded;
}
- (void)loadViewIfNeeded {
  if (_viewLoaded) return;
  if (_nibName == nil) {
    if (_view == nil) _view = [UIView new];
  } else {
    NSBundle* bundle = _nibBundle ?: NSBundle.mainBundle;
    NSString* path = [bundle pathForResource:_nibName ofType:@"xib"];
    if (path == nil) {
      [NSException raise:NSInternalInconsistencyException
                  format:@"Could not load NIB in bundle: '%@' with name '%@'", bundle, _nibName];
    }
    standin::loadNib(path, self);
    if (_view == nil) {
      [NSException raise:NSInternalInconsistencyException
                  format:@"loaded the \"%@\" nib but the view outlet was not set", _nibName];
    }
  }
  _viewLoaded = YES;
  [self viewDidLoad];
}
- (void)viewDidLoad {
}

- (BOOL)isModalInPresentation {
  return _modalInPresentation;
}
- (void)setModalInPresentation:(BOOL)modal {
  if (!standin::systemIsAtLeast("13.0")) [self doesNotRecognizeSelector:_cmd];
  note(@"%@ setModalInPresentation:%d", nameOf(self), modal);
  _modalInPresentation = modal;
}
- (UIUserInterfaceStyle)overrideUserInterfaceStyle {
  return _overrideUserInterfaceStyle;
}
- (void)setOverrideUserInterfaceStyle:(UIUserInterfaceStyle)style {
  if (!standin::systemIsAtLeast("13.0")) [self doesNotRecognizeSelector:_cmd];
  note(@"%@ setOverrideUserInterfaceStyle:%ld", nameOf(self), style);
  _overrideUserInterfaceStyle = style;
}

- (UIViewController*)presentedViewController {
  return _presented.lastObject;
}
- (UIViewController*)presentingViewController {
  return _presenter;
}
- (void)presentViewController:(UIViewController*)presented
                     animated:(BOOL)animated
                   completion:(void (^)(void))completion {
  note(@"%@ presentViewController:%@ animated:%d completion:%@", nameOf(self), nameOf(presented),
       animated, completion ? @"block" : @"nil");
  if (presented->_presenter != nil) {
    [NSException raise:NSInvalidArgumentException
                format:@"Application tried to present modally a view controller %@ that is already "
                       @"being presented by %@.",
                       nameOf(presented), nameOf(presented->_presenter)];
  }
  if (_presented == nil) _presented = [NSMutableArray array];
  [_presented addObject:presented];
  presented->_presenter = self;
  [presented loadViewIfNeeded];
  standin::afterTransition(animated, completion);
}
- (void)dismissViewControllerAnimated:(BOOL)animated completion:(void (^)(void))completion {
  note(@"%@ dismissViewControllerAnimated:%d completion:%@", nameOf(self), animated,
       completion ? @"block" : @"nil");
  UIViewController* presenter = _presenter;
  NSMutableArray* gone = [NSMutableArray array];
  if (_presented.count > 0) {
    [self standinTakeAwayPresentedInto:gone];
  } else if (presenter != nil) {
    [gone addObject:self];
    [presenter->_presented removeObjectIdenticalTo:self];
    _presenter = nil;
  } else {
    return;
  }
  standin::afterTransition(animated, ^{
    if (completion) completion();
    (void)gone.count;  // what leaves the screen lives until here
  });
}
- (void)standinTakeAwayPresentedInto:(NSMutableArray*)gone {
  for (UIViewController* each in _presented) {
    each->_presenter = nil;
    [gone addObject:each];
    [each standinTakeAwayPresentedInto:gone];
  }
  [_presented removeAllObjects];
}
@end

@implementation UINavigationController
@synthesize viewControllers = _viewControllers;
- (UIViewController*)visibleViewController {
  UIViewController* top = _viewControllers.lastObject;
  return top.presentedViewController ?: top;
}
@end

@implementation UITabBarController {
  __weak UIViewController* _selected;
}
@synthesize viewControllers = _viewControllers;
- (UIViewController*)selectedViewController {
  return _selected;
}
- (void)setSelectedViewController:(UIViewController*)controller {
  _selected = controller;
}
- (void)setViewControllers:(NSArray*)controllers {
  _viewControllers = [controllers copy];
  _selected = controllers.firstObject;
}
@end

UIViewController* standin::makeViewController(NSString* name) {
  UIViewController* made = [[UIViewController alloc] initWithNibName:nil bundle:nil];
  setName(made, name);
  return made;
}

bool standin::swipeAway(UIViewController* controller) {
  if (!systemIsAtLeast("13.0") || controller.isModalInPresentation ||
      controller.presentingViewController == nil) {
    return false;
  }
  [controller dismissViewControllerAnimated:YES completion:nil];
  return true;
}
