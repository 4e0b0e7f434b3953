#include <utility>

#import "qv_commons/platform/uikit/blocks.h"
#import "qv_commons/platform/uikit/text.h"
#import "qv_commons/platform/uikit/uikit_controller.h"
#import "qv_commons/platform/uikit/uikit_view_controllers.h"

namespace qv_commons::uikit {
namespace {

class Alert final : public NativeOf<AlertController, UIKitController> {
 public:
  using NativeOf::NativeOf;

  void addAction(std::string title, AlertActionStyle style, Completion handler) override {
    void (^block)(void) = toBlock(std::move(handler));
    void (^handlerBlock)(UIAlertAction*) = nil;
    if (block != nil) {
      handlerBlock = ^(UIAlertAction*) {
        block();
      };
    }
    auto* alert = static_cast<UIAlertController*>(uiViewController());
    [alert addAction:[UIAlertAction actionWithTitle:toNSString(title)
                                              style:static_cast<UIAlertActionStyle>(style)
                                            handler:handlerBlock]];
  }
};

}  // namespace

std::shared_ptr<ViewController> makeAlert(UIAlertController* alert) {
  return std::make_shared<Alert>(alert);
}

}  // namespace qv_commons::uikit
