#import "tests/uikit/support_fixture.h"

@implementation CountingDelegate
@synthesize completions = _completions;
@synthesize onEnd = _onEnd;
- (void)onCompletion {
  ++_completions;
  if (_onEnd) _onEnd();
}
@end
