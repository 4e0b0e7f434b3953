#import <UIKit/UIKit.h>

#include "qv_commons/platform/uikit/availability.h"

void keepUp(UIViewController* screen);

void keepUp(UIViewController* screen) {
  if (QV_IOS_AVAILABLE(13.0)) screen.modalInPresentation = YES;
}
