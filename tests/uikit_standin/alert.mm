#import "tests/uikit_standin/standin.h"

using standin::nameOf;
using standin::note;

@interface UIAlertAction ()
@property(nonatomic, copy) void (^handler)(UIAlertAction*);
@property(nonatomic, weak) UIAlertController* alert;
@end

@implementation UIAlertAction
@synthesize title = _title;
@synthesize style = _style;
@synthesize handler = _handler;
@synthesize alert = _alert;
+ (instancetype)actionWithTitle:(NSString*)title
                          style:(UIAlertActionStyle)style
                        handler:(void (^)(UIAlertAction*))handler {
  UIAlertAction* action = [self new];
  action->_title = [title copy];
  action->_style = style;
  action->_handler = [handler copy];
  return action;
}
@end

@implementation UIAlertController {
  NSMutableArray<UIAlertAction*>* _actions;
}
@synthesize message = _message;
@synthesize preferredStyle = _preferredStyle;
+ (instancetype)alertControllerWithTitle:(NSString*)title
                                 message:(NSString*)message
                          preferredStyle:(UIAlertControllerStyle)preferredStyle {
  note(@"%@ alertControllerWithTitle:\"%@\" message:\"%@\" preferredStyle:%ld",
       NSStringFromClass(self), title, message, preferredStyle);
  UIAlertController* alert = [[self alloc] initWithNibName:nil bundle:nil];
  alert.title = title;
  alert->_message = [message copy];
  alert->_preferredStyle = preferredStyle;
  alert->_actions = [NSMutableArray array];
  return alert;
}
- (void)addAction:(UIAlertAction*)action {
  note(@"%@ addAction:\"%@\" style:%ld handler:%@", nameOf(self), action.title, action.style,
       action.handler ? @"block" : @"nil");
  [_actions addObject:action];
  action.alert = self;
}
- (NSArray*)actions {
  return [_actions copy];
}
@end

void standin::tap(UIAlertAction* action) {
  [action.alert dismissViewControllerAnimated:YES
                                   completion:^{
                                     if (action.handler) action.handler(action);
                                   }];
}
