#import "tests/uikit_standin/standin.h"

using standin::nameOf;
using standin::note;

typedef void (^StandinTransitionBlock)(id<UIViewControllerTransitionCoordinatorContext>);

// A presentation or dismissal under way.
@interface StandinTransition : NSObject <UIViewControllerTransitionCoordinator>
- (void)end;
@end

@implementation StandinTransition {
  NSMutableArray<StandinTransitionBlock>* _completions;
}
- (BOOL)animateAlongsideTransition:(StandinTransitionBlock)animation
                        completion:(StandinTransitionBlock)completion {
  if (animation) animation(self);
  if (_completions == nil) _completions = [NSMutableArray array];
  if (completion) [_completions addObject:[completion copy]];
  return YES;
}
- (void)end {
  for (StandinTransitionBlock completion in _completions) completion(self);
  _completions = nil;
}
@end

@implementation UIViewController {
  NSMutableArray<UIViewController*>* _presented;  // the last one on top
  UIViewController* _presenter;                   // kept while it presents this one
  StandinTransition* _transition;                 // the last that began, until it ends
  int _dismissalsUnderWay;                        // of what this one presented
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
    NSString* path = [bundle pathForResource:_nibName ofType:@"xib"]
                         ?: [bundle pathForResource:_nibName
                                             ofType:@"xib"
                                        inDirectory:@"Base.lproj"];
    if (path == nil) {
      [NSException raise:NSInternalInconsistencyException
                  format:@"Could not load NIB in bundle: '%@' with name '%@'", bundle, _nibName];
    }
    standin::loadNib(path, self, standin::stringTable(bundle, _nibName));
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

- (id<UIViewControllerTransitionCoordinator>)transitionCoordinator {
  return _transition;
}
// Runs `completion` when the transition of these controllers has ended.
+ (void)standinTransitionOf:(NSArray<UIViewController*>*)controllers
                   animated:(BOOL)animated
                 completion:(void (^)(void))completion {
  StandinTransition* transition = animated ? [StandinTransition new] : nil;
  for (UIViewController* each in controllers) each->_transition = transition;
  standin::afterTransition(animated, ^{
    for (UIViewController* each in controllers) {
      if (each->_transition == transition) each->_transition = nil;
    }
    if (completion) completion();
    [transition end];
  });
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
  if (standin::presentsStrictly() && (_presented.count > 0 || _dismissalsUnderWay > 0)) return;
  if (_presented == nil) _presented = [NSMutableArray array];
  [_presented addObject:presented];
  presented->_presenter = self;
  [presented loadViewIfNeeded];
  [UIViewController standinTransitionOf:@[ self, presented ]
                               animated:animated
                             completion:completion];
}
- (void)dismissViewControllerAnimated:(BOOL)animated completion:(void (^)(void))completion {
  note(@"%@ dismissViewControllerAnimated:%d completion:%@", nameOf(self), animated,
       completion ? @"block" : @"nil");
  NSMutableArray<UIViewController*>* gone = [NSMutableArray array];
  UIViewController* presenter = _presented.count > 0 ? self : _presenter;
  if (presenter == nil) return;
  if (presenter == self) {
    [self standinTakeAwayPresentedInto:gone];
  } else {
    [gone addObject:self];
    [presenter->_presented removeObjectIdenticalTo:self];
    _presenter = nil;
  }
  ++presenter->_dismissalsUnderWay;
  // What leaves the screen lives until then.
  [UIViewController standinTransitionOf:[gone arrayByAddingObject:presenter]
                               animated:animated
                             completion:^{
                               --presenter->_dismissalsUnderWay;
                               if (completion) completion();
                             }];
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
