// Conformance of AlertController.
#pragma once

#include "tests/conformance/adapter.h"

namespace qv_commons::conformance {

class AlertConformance : public Suite {
 protected:
  void SetUp() override { root_ = adapter().makeRootScreen(); }

  std::shared_ptr<AlertController> makeAlert() {
    return platform().viewControllers.makeAlertController("Error", "It broke.", AlertStyle::alert);
  }

  void present(const std::shared_ptr<AlertController>& alert) {
    root_->presentViewController(alert, true, nullptr);
    adapter().settle();
  }

  std::shared_ptr<ViewController> root_;
};

TEST_P(AlertConformance, IsOfTheAlertKind) {
  EXPECT_EQ(makeAlert()->kind(), ViewControllerKind::alert);
}

TEST_P(AlertConformance, IsNotOnTheScreenUntilItIsPresented) {
  const std::shared_ptr<AlertController> alert = makeAlert();
  alert->addAction("OK", AlertActionStyle::standard, nullptr);
  EXPECT_FALSE(adapter().isOnScreen(*alert));
  present(alert);
  EXPECT_TRUE(adapter().isOnScreen(*alert));
}

TEST_P(AlertConformance, ATapDismissesItAndThenRunsTheHandler) {
  const std::shared_ptr<AlertController> alert = makeAlert();
  std::vector<bool> onScreen;
  alert->addAction("OK", AlertActionStyle::standard,
                   [&] { onScreen.push_back(adapter().isOnScreen(*alert)); });
  present(alert);
  adapter().tap(*alert, 0);
  adapter().settle();
  EXPECT_EQ(onScreen, std::vector<bool>{false});
  EXPECT_EQ(root_->presentedViewController(), nullptr);
}

TEST_P(AlertConformance, ATapOnAButtonWithoutHandlerOnlyDismissesIt) {
  const std::shared_ptr<AlertController> alert = makeAlert();
  alert->addAction("OK", AlertActionStyle::standard, nullptr);
  present(alert);
  adapter().tap(*alert, 0);
  adapter().settle();
  EXPECT_FALSE(adapter().isOnScreen(*alert));
}

TEST_P(AlertConformance, RunsTheHandlerOfTheButtonThatWasTapped) {
  const std::shared_ptr<AlertController> alert = makeAlert();
  std::vector<std::string> tapped;
  alert->addAction("Delete", AlertActionStyle::destructive, [&] { tapped.push_back("Delete"); });
  alert->addAction("Cancel", AlertActionStyle::cancel, [&] { tapped.push_back("Cancel"); });
  present(alert);
  adapter().tap(*alert, 1);
  adapter().settle();
  EXPECT_THAT(tapped, testing::ElementsAre("Cancel"));
}

}  // namespace qv_commons::conformance
