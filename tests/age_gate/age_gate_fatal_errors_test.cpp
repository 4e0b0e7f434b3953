// A layout that does not fit its screen stops the process, and the message says why.
#include <limits>

#include "tests/age_gate/age_gate_fixture.h"

namespace qv_commons {
namespace {

using memory::MemoryLayout;
using memory::ViewClass;

class LayoutsThatDoNotFit : public test::AgeGateFixture {
 protected:
  MemoryLayout& ageGate() { return platform.resourceBundle().layouts["QV_AgeGateViewController"]; }
  MemoryLayout& refusal() {
    return platform.resourceBundle().layouts["QV_AgeGateRefusedViewController"];
  }

  void expectDeath(const std::string& message) {
    EXPECT_DEATH(start(), "QV_Commons fatal error: " + message);
  }
};

TEST_F(LayoutsThatDoNotFit, EachOutletOfTheAgeGateHasToBeThere) {
  const MemoryLayout whole = ageGate();
  for (const char* outlet : {"bg", "header", "subtitle", "confirmBtn", "tos", "datePicker"}) {
    ageGate() = whole;
    ageGate().erase(outlet);
    expectDeath(std::string("QV_AgeGateViewController: the outlet \"") + outlet +
                "\" is not connected");
  }
}

TEST_F(LayoutsThatDoNotFit, EachOutletOfTheRefusalHasToBeThere) {
  setFlags(true, true);
  const MemoryLayout whole = refusal();
  for (const char* outlet : {"bg", "tos", "contact", "header"}) {
    refusal() = whole;
    refusal().erase(outlet);
    expectDeath(std::string("QV_AgeGateRefusedViewController: the outlet \"") + outlet +
                "\" is not connected");
  }
}

TEST_F(LayoutsThatDoNotFit, AnOutletOfAnotherClassIsNotConnected) {
  ageGate()["confirmBtn"].viewClass = ViewClass::label;
  expectDeath("QV_AgeGateViewController: the outlet \"confirmBtn\" is not connected");
  setFlags(true, true);
  refusal()["header"].viewClass = ViewClass::textView;
  expectDeath("QV_AgeGateRefusedViewController: the outlet \"header\" is not connected");
}

TEST_F(LayoutsThatDoNotFit, ThePolicyTextHasToBeThereAndLongEnough) {
  ageGate()["tos"].text = std::string(32, 'x');
  expectDeath("applyPolicyLinks: the text has 32 UTF-16 units, its links need 33");
  ageGate()["tos"].text.reset();
  expectDeath("applyPolicyLinks: the text view has no attributed text");
}

TEST_F(LayoutsThatDoNotFit, TheTextsOfTheRefusalHaveToBeThereAndLongEnough) {
  setFlags(true, true);
  const MemoryLayout whole = refusal();
  refusal()["tos"].text = std::string(32, 'x');
  expectDeath("applyPolicyLinks: the text has 32 UTF-16 units, its links need 33");
  refusal() = whole;
  refusal()["contact"].text = std::string(59, 'x');
  expectDeath("applyContactLink: the text has 59 UTF-16 units, its links need 60");
  refusal()["contact"].text.reset();
  expectDeath("applyContactLink: the text view has no attributed text");
}

TEST_F(LayoutsThatDoNotFit, TheHeaderOfTheRefusalHasToHaveAText) {
  setFlags(true, true);
  refusal()["header"].text.reset();
  expectDeath("QV_AgeGateRefusedViewController: the header has no text");
}

TEST_F(LayoutsThatDoNotFit, AnActionWithoutItsOutletStopsWhenItRuns) {
  const auto alone = QV_AgeGateViewController::create(platform.platform());
  EXPECT_DEATH(alone->onDateChanged(),
               "QV_AgeGateViewController: the outlet \"confirmBtn\" is not connected");
  EXPECT_DEATH(alone->onConfirmPressed(),
               "QV_AgeGateViewController: the outlet \"datePicker\" is not connected");
}

TEST_F(LayoutsThatDoNotFit, AnAgeThatTheCalendarCannotTellStopsTheConfirm) {
  start();
  screen()->pick("datePicker", instantAt(std::numeric_limits<double>::quiet_NaN()));
  EXPECT_DEATH(screen()->tap("confirmBtn"), "ageInYears: the calendar gives no years");
  screen()->pick("datePicker", instantAt(-1e300));
  EXPECT_DEATH(screen()->tap("confirmBtn"), "ageInYears: the calendar gives no years");
}

}  // namespace
}  // namespace qv_commons
