// The age gate: makes sure that the user has stated a date of birth old enough for the app.
//
//     qv_commons::ScopedPlatform scope(platform.platform());
//     std::shared_ptr<qv_commons::ViewController> home = platform.makeViewController("home");
//     qv_commons::QV_AgeGateHelper::startAgeGateProcess(
//         home, 16, [] { /* go on */ }, [](qv_commons::ViewController&) { /* show a way */ },
//         qv_commons::QV_AgeGateColorTheme::defaultTheme(), "https://example.com/privacy",
//         "https://example.com/terms");
//
// Call it at each start of the app. The outcome is kept in the user defaults, under
// "QV_AgeGate_Shown" and "QV_AgeGate_Blocked": a user who was let through is not asked again, and
// one who was refused stays refused until somebody else clears the app's user defaults.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "qv_commons/age_gate/age_gate_color_theme.h"
#include "qv_commons/age_gate/contact_us_handler.h"
#include "qv_commons/export.h"
#include "qv_commons/platform/view_controller.h"

namespace qv_commons {

class QV_COMMONS_EXPORT QV_AgeGateHelper {
 public:
  // If no date of birth was confirmed yet, has `viewController` present the age gate screen and
  // returns; when the user confirms, that screen calls `completion` if the age in whole years is
  // `minimumAgeRequired` or more. If the user was let through before, calls `completion` before
  // returning and shows nothing. If the user was refused before, has `viewController` present the
  // refusal; `completion` is not called.
  //
  // `completion` and `contactUsHandler` may be absent. The minimum may be 0 or negative. The links
  // are stored as they are: neither parsed nor checked. `viewController` and `colorTheme` must not
  // be null, a fatal error; the screen keeps them both. A start while a gate is still up presents
  // another one. Main thread.
  static void startAgeGateProcess(std::shared_ptr<ViewController> viewController,
                                  std::int64_t minimumAgeRequired, Completion completion,
                                  ContactUsHandler contactUsHandler,
                                  std::shared_ptr<QV_AgeGateColorTheme> colorTheme,
                                  std::string_view privacyLink,
                                  std::string_view termsOfServiceLink);
};

}  // namespace qv_commons
