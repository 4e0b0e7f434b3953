// The C++ sides of UIKit's objects: found again, owned by them, and keeping nothing alive.
#import "qv_commons/platform/uikit/QV_AgeGateViewController.h"
#import "qv_commons/platform/uikit/uikit_controller.h"
#import "qv_commons/platform/uikit/uikit_platform.h"
#import "qv_commons/platform/uikit/uikit_views.h"
#include "qv_commons/platform/view_controllers.h"
#include "qv_commons/support/support_helper.h"
#include "qv_commons/view_utils/view_controller_helper.h"

#import "tests/uikit/support_fixture.h"

using qv_commons::uikit::retainedViewController;
using qv_commons::uikit::toUIView;
using qv_commons::uikit::toUIViewController;
using qv_commons::uikit::toView;
using qv_commons::uikit::toViewController;

namespace {

class UIKitControllers : public UIKitTest {};

TEST_F(UIKitControllers, AreFoundAgainForTheSameController) {
  EXPECT_EQ(toViewController(home), toViewController(home));
  EXPECT_EQ(toUIViewController(toViewController(home)), home);
  EXPECT_NE(toViewController(home), toViewController(standin::makeViewController(@"other")));
}

TEST_F(UIKitControllers, AreNullForNil) {
  EXPECT_EQ(toViewController(nil), nullptr);
  EXPECT_EQ(retainedViewController(nil), nullptr);
  EXPECT_OBJECT(toUIViewController(nullptr), nil);
  EXPECT_EQ(toView(nil), nullptr);
  EXPECT_OBJECT(toUIView(nullptr), nil);
}

TEST_F(UIKitControllers, KeepTheirControllerAliveOnlyWhereTheyAreRetained) {
  __weak UIViewController* weak;
  std::shared_ptr<qv_commons::ViewController> retained;
  @autoreleasepool {
    UIViewController* controller = standin::makeViewController(@"screen");
    weak = controller;
    toViewController(controller);
    retained = retainedViewController(controller);
  }
  @autoreleasepool {
    EXPECT_EQ(toUIViewController(retained.get()), weak);
    EXPECT_EQ(retained->retained(), retained);
    retained = nullptr;
  }
  EXPECT_OBJECT(weak, nil);
}

TEST_F(UIKitControllers, DoNotKeepTheirControllerForThoseWhoOnlyObserve) {
  __weak UIViewController* weak;
  std::weak_ptr<qv_commons::ViewController> observer;
  @autoreleasepool {
    UIViewController* controller = standin::makeViewController(@"screen");
    weak = controller;
    observer = retainedViewController(controller);
  }
  EXPECT_TRUE(observer.expired());
  EXPECT_OBJECT(weak, nil);
}

TEST_F(UIKitControllers, TellTheKindOfControllersThatTheLibraryDidNotMake) {
  using qv_commons::ViewControllerKind;
  const auto kindOf = [](UIViewController* controller) {
    return toViewController(controller)->kind();
  };
  EXPECT_EQ(kindOf(home), ViewControllerKind::plain);
  EXPECT_EQ(kindOf([UINavigationController new]), ViewControllerKind::navigation);
  EXPECT_EQ(kindOf([MFMailComposeViewController new]), ViewControllerKind::navigation);
  EXPECT_EQ(kindOf([UITabBarController new]), ViewControllerKind::tabBar);
  EXPECT_EQ(kindOf([UIAlertController new]), ViewControllerKind::alert);
}

TEST_F(UIKitControllers, AreWalkedByTheLibrarysOwnLookUpToo) {
  UIViewController* page = standin::makeViewController(@"page");
  UINavigationController* navigation = [UINavigationController new];
  navigation.viewControllers = @[ page ];
  [home presentViewController:navigation animated:NO completion:nil];
  EXPECT_EQ(qv_commons::QV_ViewControllerHelper::topViewController(toViewController(home)),
            toViewController(page));
}

TEST_F(UIKitControllers, GiveViewsTheClassThatTheyHave) {
  const auto is = [](UIView* view, auto* type) {
    return dynamic_cast<decltype(type)>(toView(view).get()) != nullptr;
  };
  EXPECT_TRUE(is([UILabel new], static_cast<qv_commons::Label*>(nullptr)));
  EXPECT_TRUE(is([UIButton new], static_cast<qv_commons::Button*>(nullptr)));
  EXPECT_TRUE(is([UIDatePicker new], static_cast<qv_commons::DatePicker*>(nullptr)));
  EXPECT_TRUE(is([UITextView new], static_cast<qv_commons::TextView*>(nullptr)));
  EXPECT_FALSE(is([UIView new], static_cast<qv_commons::Label*>(nullptr)));
}

TEST_F(UIKitControllers, GoWithTheirViewAndAreFoundAgainUntilThen) {
  std::weak_ptr<qv_commons::View> weak;
  @autoreleasepool {
    UIView* view = [UILabel new];
    weak = toView(view);
    EXPECT_EQ(weak.lock(), toView(view));
    EXPECT_EQ(toUIView(weak.lock().get()), view);
  }
  EXPECT_TRUE(weak.expired());
}

struct Asked final : qv_commons::TextViewDelegate {
  bool shouldInteractWithURL(qv_commons::TextView& textView, std::string_view url,
                             qv_commons::TextRange range) override {
    askedBy = &textView;
    askedFor = url;
    askedAt = range;
    return answer;
  }
  bool answer = false;
  qv_commons::TextView* askedBy = nullptr;
  std::string askedFor;
  qv_commons::TextRange askedAt;
};

TEST_F(UIKitControllers, LetTextViewsAskAnyDelegate) {
  UITextView* native = [UITextView new];
  native.text = @"see here";
  native.editable = NO;
  auto& textView = static_cast<qv_commons::TextView&>(*toView(native));
  textView.addLinks({{"https://example.com/a", {4, 4}}}, {});
  Asked delegate;
  textView.setDelegate(&delegate);
  EXPECT_TRUE(standin::tapLink(native, 5));
  EXPECT_EQ(delegate.askedBy, &textView);
  EXPECT_EQ(delegate.askedFor, "https://example.com/a");
  EXPECT_EQ(delegate.askedAt, (qv_commons::TextRange{4, 4}));
  EXPECT_EQ(standin::openedURLs().count, 0U);
  delegate.answer = true;
  standin::tapLink(native, 4);
  EXPECT_EQ(standin::openedURLs().count, 1U);
  textView.setDelegate(nullptr);
  EXPECT_OBJECT(native.delegate, nil);
}

TEST_F(UIKitControllers, ServeAHostInCppWithoutAnyObjectiveC) {
  struct Host final : qv_commons::QV_SupportHelperDelegate {
    void onCompletion() override { ++completions; }
    int completions = 0;
  };
  const auto host = std::make_shared<Host>();
  const auto helper = qv_commons::QV_SupportHelper::create();
  helper->contactSupport(*toViewController(home), "a@example.com", "", {}, std::nullopt,
                         std::nullopt, host);
  auto* composer = static_cast<MFMailComposeViewController*>(home.presentedViewController);
  EXPECT_OBJECT(NSStringFromClass([composer.mailComposeDelegate class]),
                @"QV_MailComposeForwarder");
  standin::finishMail(composer, MFMailComposeResultSaved, nil);
  standin::finishTransitions();
  EXPECT_EQ(host->completions, 1);
}

TEST_F(UIKitControllers, AreThePlatformThatIsInstalledWhenTheAppIsLoaded) {
  EXPECT_EQ(&qv_commons::currentPlatform(), &qv_commons::uikit::platform());
}

TEST_F(UIKitControllers, DieOfALayoutWhoseNameNoScreenBears) {
  const auto load = [](const char* name) {
    qv_commons::currentPlatform().viewControllers.initWithNibName(
        name, nullptr, [](std::unique_ptr<qv_commons::ViewController>) { return nullptr; });
  };
  EXPECT_DEATH(load("NoSuchScreen"), "no screen class has the name of the layout NoSuchScreen");
  EXPECT_DEATH(load("UIViewController"),
               "no screen class has the name of the layout UIViewController");
}

}  // namespace
