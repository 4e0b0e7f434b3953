// Asks the run-time for every public operation, and for what the screens' layouts call.
#include <fstream>
#include <objc/runtime.h>
#include <sstream>

#import "qv_commons/platform/uikit/QV_AgeGateRefusedViewController.h"
#import "qv_commons/platform/uikit/QV_AgeGateViewController.h"

#import "tests/uikit/uikit_test.h"

namespace {

class UIKitPublicInterface : public UIKitTest {
 protected:
  struct Operation {
    std::string owner;
    std::string kind;
    std::string selector;
  };

  static std::vector<Operation> operations() {
    std::ifstream file(QV_PUBLIC_INTERFACE);
    std::vector<Operation> operations;
    for (std::string line; std::getline(file, line);) {
      if (line.starts_with('#')) continue;
      std::istringstream fields(line);
      Operation operation;
      std::getline(fields, operation.owner, '|');
      std::getline(fields, operation.kind, '|');
      std::getline(fields, operation.selector, '|');
      operations.push_back(operation);
    }
    return operations;
  }

  static bool instancesRespond(Class type, const char* selector) {
    return [type instancesRespondToSelector:sel_registerName(selector)];
  }
};

TEST_F(UIKitPublicInterface, IsThereUnderEverySelector) {
  EXPECT_FALSE(operations().empty());
  for (const Operation& operation : operations()) {
    const SEL selector = sel_registerName(operation.selector.c_str());
    if (operation.owner == "QV_SupportHelperDelegate") {
      const auto method =
          protocol_getMethodDescription(@protocol(QV_SupportHelperDelegate), selector, YES, YES);
      EXPECT_NE(method.name, nullptr) << operation.selector;
      continue;
    }
    const Class type = objc_lookUpClass(operation.owner.c_str());
    ASSERT_NE(type, Nil) << operation.owner;
    const bool isOfClass = operation.kind == "+" || operation.kind == "@";
    EXPECT_TRUE(isOfClass ? [type respondsToSelector:selector]
                          : [type instancesRespondToSelector:selector])
        << operation.owner << ' ' << operation.selector;
  }
}

TEST_F(UIKitPublicInterface, HasNoOtherRequiredOperationInTheDelegate) {
  unsigned count = 0;
  free(protocol_copyMethodDescriptionList(@protocol(QV_SupportHelperDelegate), YES, YES, &count));
  EXPECT_EQ(count, 1U);
  free(protocol_copyMethodDescriptionList(@protocol(QV_SupportHelperDelegate), NO, YES, &count));
  EXPECT_EQ(count, 0U);
}

TEST_F(UIKitPublicInterface, IsMadeOfPlainObjects) {
  for (const Operation& operation : operations()) {
    if (const Class type = objc_lookUpClass(operation.owner.c_str());
        type != [UISearchBar class] && operation.owner != "QV_SupportHelperDelegate") {
      EXPECT_EQ(class_getSuperclass(type), [NSObject class]) << operation.owner;
    }
  }
  EXPECT_NE([QV_AgeGateHelper new], nil);
  EXPECT_NE([QV_TimeHelper new], nil);
  EXPECT_TRUE([QV_SupportHelper conformsToProtocol:@protocol(MFMailComposeViewControllerDelegate)]);
}

TEST_F(UIKitPublicInterface, HidesTheThemesFields) {
  for (const char* field :
       {"buttonBGColor", "setButtonBGColor:", "buttonTextColor",
        "setButtonTextColor:", "backgroundColor", "setBackgroundColor:", "textColor",
        "setTextColor:", "policiesTextColor", "setPoliciesTextColor:"}) {
    EXPECT_FALSE(instancesRespond([QV_AgeGateColorTheme class], field)) << field;
  }
}

TEST_F(UIKitPublicInterface, HasTheScreensOutletsAndActions) {
  for (const char* selector : {"initWithNibName:bundle:", "initWithCoder:", "viewDidLoad",
                               "onDateChanged:", "onConfirmPressed:", "bg", "setBg:", "confirmBtn",
                               "setConfirmBtn:", "datePicker", "setDatePicker:", "tos",
                               "setTos:", "header", "setHeader:", "subtitle", "setSubtitle:"}) {
    EXPECT_TRUE(instancesRespond([QV_AgeGateViewController class], selector)) << selector;
  }
  for (const char* selector :
       {"initWithNibName:bundle:", "initWithCoder:", "viewDidLoad",
        "textView:shouldInteractWithURL:inRange:interaction:", "bg", "setBg:", "contact",
        "setContact:", "tos", "setTos:", "header", "setHeader:"}) {
    EXPECT_TRUE(instancesRespond([QV_AgeGateRefusedViewController class], selector)) << selector;
  }
  EXPECT_TRUE([QV_AgeGateViewController isSubclassOfClass:[UIViewController class]]);
  EXPECT_TRUE([QV_AgeGateRefusedViewController conformsToProtocol:@protocol(UITextViewDelegate)]);
}

}  // namespace
