// The age gate's two decisions: what a start leads to, and whether a date of birth lets the user
// in.
//
//     using qv_commons::AgeGateStartDecision;
//     AgeGateStartDecision first = qv_commons::decideAgeGateStart(false, false);  // presentAgeGate
//     AgeGateStartDecision later = qv_commons::decideAgeGateStart(true, false);   // callCompletion
#pragma once

#include <cstdint>
#include <string_view>

#include "qv_commons/export.h"

namespace qv_commons {

class UserDefaults;

// True once the user has confirmed a date of birth, whatever the outcome.
inline constexpr std::string_view kAgeGateShownKey = "QV_AgeGate_Shown";

// True once a confirmed date of birth gave an age below the minimum.
inline constexpr std::string_view kAgeGateBlockedKey = "QV_AgeGate_Blocked";

enum class AgeGateStartDecision : std::uint8_t { presentAgeGate, callCompletion, presentRefused };

// `blocked` counts only if `shown` is true. Any thread.
constexpr AgeGateStartDecision decideAgeGateStart(bool shown, bool blocked) {
  if (!shown) return AgeGateStartDecision::presentAgeGate;
  return blocked ? AgeGateStartDecision::presentRefused : AgeGateStartDecision::callCompletion;
}

// Reads the flags and decides; the second is read only if the first is true. Main thread.
QV_COMMONS_EXPORT AgeGateStartDecision decideAgeGateStart(const UserDefaults& userDefaults);

}  // namespace qv_commons
