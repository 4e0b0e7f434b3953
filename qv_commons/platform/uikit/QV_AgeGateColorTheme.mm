#include <utility>

#include "qv_commons/platform/fatal_error.h"
#import "qv_commons/platform/uikit/QV_AgeGateColorTheme_Core.h"
#include "qv_commons/platform/uikit/linked_in.h"
#import "qv_commons/platform/uikit/uikit_views.h"

@implementation QV_AgeGateColorTheme {
  std::shared_ptr<qv_commons::QV_AgeGateColorTheme> _core;
}

- (instancetype)initWithCore:(std::shared_ptr<qv_commons::QV_AgeGateColorTheme>)core {
  if ((self = [super init])) _core = std::move(core);
  return self;
}

- (instancetype)initWithBackgroundColor:(UIColor*)backgroundColor
                  buttonBackgroundColor:(UIColor*)buttonBackgroundColor
                        buttonTextColor:(UIColor*)buttonTextColor
                              textColor:(UIColor*)textColor
                      policiesTextColor:(UIColor*)policiesTextColor {
  using qv_commons::uikit::toColor;
  return [self
      initWithCore:std::make_shared<qv_commons::QV_AgeGateColorTheme>(
                       toColor(backgroundColor), toColor(buttonBackgroundColor),
                       toColor(buttonTextColor), toColor(textColor), toColor(policiesTextColor))];
}

- (instancetype)init {
  qv_commons::fatalError(
      "unimplemented initializer \"init()\" of QV_Commons_iOS.QV_AgeGateColorTheme");
}

+ (QV_AgeGateColorTheme*)defaultTheme {
  return
      [[QV_AgeGateColorTheme alloc] initWithCore:qv_commons::QV_AgeGateColorTheme::defaultTheme()];
}

- (std::shared_ptr<qv_commons::QV_AgeGateColorTheme>)core {
  return _core;
}

@end
