#import "qv_commons/platform/uikit/layout_view_controller.h"

#include <optional>
#include <utility>

#include "qv_commons/platform/fatal_error.h"
#import "qv_commons/platform/uikit/text.h"
#import "qv_commons/platform/uikit/uikit_controller.h"
#import "qv_commons/platform/uikit/uikit_views.h"

namespace qv_commons::uikit {
namespace {

[[noreturn]] void failFor(Class type, std::string_view what) {
  fatalError(toString(NSStringFromClass(type)).append(": ").append(what));
}

std::optional<Outlet> outletNamed(LayoutScreen& screen, std::string_view name) {
  for (const Outlet& outlet : screen.outlets()) {
    if (outlet.name == name) return outlet;
  }
  return std::nullopt;
}

}  // namespace
}  // namespace qv_commons::uikit

using qv_commons::uikit::failFor;

@implementation QV_LayoutViewController

+ (qv_commons::LayoutScreenFactory)screenFactory {
  failFor(self, "the class makes no screen");
}

- (void)makeScreen:(const qv_commons::LayoutScreenFactory&)factory {
  using Native =
      qv_commons::NativeOf<qv_commons::ViewController, qv_commons::uikit::UIKitController>;
  qv_commons::uikit::associateController(self, factory(std::make_unique<Native>(self)));
}

- (instancetype)initWithNibName:(NSString*)nibName
                         bundle:(NSBundle*)bundle
                        factory:(const qv_commons::LayoutScreenFactory&)factory {
  if ((self = [super initWithNibName:nibName bundle:bundle])) [self makeScreen:factory];
  return self;
}

- (instancetype)initWithNibName:(NSString*)nibName bundle:(NSBundle*)bundle {
  return [self initWithNibName:nibName bundle:bundle factory:[self.class screenFactory]];
}

- (instancetype)initWithCoder:(NSCoder*)coder {
  if ((self = [super initWithCoder:coder])) [self makeScreen:[self.class screenFactory]];
  return self;
}

- (qv_commons::LayoutScreen&)screen {
  return static_cast<qv_commons::LayoutScreen&>(*qv_commons::uikit::toViewController(self));
}

- (void)viewDidLoad {
  [super viewDidLoad];
  self.screen.viewDidLoad();
}

- (UIView*)viewForOutlet:(const char*)name {
  const auto outlet = qv_commons::uikit::outletNamed(self.screen, name);
  return outlet ? qv_commons::uikit::toUIView(outlet->view().get()) : nil;
}

- (void)setView:(UIView*)view forOutlet:(const char*)name {
  const auto outlet = qv_commons::uikit::outletNamed(self.screen, name);
  if (outlet) outlet->connect(qv_commons::uikit::toView(view));
}

- (void)runAction:(SEL)selector {
  const auto alive = qv_commons::uikit::retainedViewController(self);
  const std::string name = qv_commons::uikit::toString(NSStringFromSelector(selector));
  for (const qv_commons::Action& action : self.screen.actions()) {
    if (action.selector == name) return action.run();
  }
  failFor(self.class, std::string("there is no action \"").append(name).append("\""));
}

@end
