#include "tests/uikit_standin/runtime/catch.h"

#import <Foundation/Foundation.h>

NSException* catchException(void (^body)(void)) {
  @try {
    body();
  } @catch (NSException* exception) {
    return [[exception retain] autorelease];
  }
  return nil;
}
