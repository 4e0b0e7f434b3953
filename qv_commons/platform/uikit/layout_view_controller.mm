#import "qv_commons/platform/uikit/layout_view_controller.h"

#include <optional>
#include <type_traits>
#include <utility>

#include "qv_commons/platform/fatal_error.h"
#import "qv_commons/platform/uikit/text.h"
#import "qv_commons/platform/uikit/uikit_bundle.h"
#import "qv_commons/platform/uikit/uikit_node.h"
#import "qv_commons/platform/uikit/uikit_views.h"

namespace qv_commons::uikit {
namespace {

class ScreenNode final : public UIKitNode {
 public:
  ScreenNode(UIViewController* controller, const LayoutScreenFactory& make)
      : UIKitNode(controller), screen_(make(*this)) {}

  LayoutScreen& controller() override { return *screen_; }

 private:
  std::unique_ptr<LayoutScreen> screen_;
};

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

+ (std::unique_ptr<qv_commons::LayoutScreen>)screenFor:(qv_commons::NativeViewController&)native {
  failFor(self, "the class makes no screen");
}

- (void)attachScreen:(const qv_commons::LayoutScreenFactory&)factory {
  qv_commons::uikit::attachNode(self,
                                std::make_shared<qv_commons::uikit::ScreenNode>(self, factory));
}

- (void)attachOwnScreen {
  [self attachScreen:[type = self.class](qv_commons::NativeViewController& native) {
    return [type screenFor:native];
  }];
}

- (instancetype)initWithNibName:(NSString*)nibName
                         bundle:(NSBundle*)bundle
                        factory:(const qv_commons::LayoutScreenFactory&)factory {
  if ((self = [super initWithNibName:nibName bundle:bundle])) [self attachScreen:factory];
  return self;
}

- (instancetype)initWithNibName:(NSString*)nibName bundle:(NSBundle*)bundle {
  return [self initWithNibName:nibName
                        bundle:bundle
                       factory:[type = self.class](qv_commons::NativeViewController& native) {
                         return [type screenFor:native];
                       }];
}

- (instancetype)initWithCoder:(NSCoder*)coder {
  if ((self = [super initWithCoder:coder])) [self attachOwnScreen];
  return self;
}

- (qv_commons::LayoutScreen&)screen {
  return static_cast<qv_commons::LayoutScreen&>(qv_commons::uikit::nodeOf(self).controller());
}

- (void)viewDidLoad {
  [super viewDidLoad];
  self.screen.viewDidLoad();
}

- (UIView*)viewForOutlet:(const char*)name {
  const auto outlet = qv_commons::uikit::outletNamed(self.screen, name);
  if (!outlet) return nil;
  return std::visit(
      [](auto* reference) { return qv_commons::uikit::toUIView(reference->lock().get()); },
      outlet->reference);
}

- (void)setView:(UIView*)view forOutlet:(const char*)name {
  const auto outlet = qv_commons::uikit::outletNamed(self.screen, name);
  if (!outlet) return;
  const std::shared_ptr<qv_commons::View> connected = qv_commons::uikit::toView(view);
  std::visit(
      [&](auto* reference) {
        using Type = typename std::remove_pointer_t<decltype(reference)>::element_type;
        *reference = std::dynamic_pointer_cast<Type>(connected);
      },
      outlet->reference);
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

namespace qv_commons::uikit {

std::shared_ptr<LayoutScreen> UIKitLayoutLoader::initWithNibName(std::string_view name,
                                                                 std::shared_ptr<Bundle> bundle,
                                                                 const LayoutScreenFactory& make) {
  NSString* nibName = toNSString(name);
  const Class type = NSClassFromString(nibName);
  if (![type isSubclassOfClass:[QV_LayoutViewController class]]) {
    fatalError(
        std::string("LayoutLoader: no screen class bears the name of the layout ").append(name));
  }
  QV_LayoutViewController* controller = [[type alloc] initWithNibName:nibName
                                                               bundle:toNSBundle(bundle.get())
                                                              factory:make];
  return std::static_pointer_cast<LayoutScreen>(retainedViewController(controller));
}

}  // namespace qv_commons::uikit
