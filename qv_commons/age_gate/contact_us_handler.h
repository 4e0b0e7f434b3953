// The host's answer to a user who wants to get in touch from the refusal.
//
//     qv_commons::ContactUsHandler handler = [](qv_commons::ViewController& refusal) {
//       qv_commons::QV_SupportHelper::shared().contactSupport(
//           refusal, "support@example.com", "Help", {}, std::nullopt, std::nullopt, {});
//     };
#pragma once

#include <functional>

#include "qv_commons/platform/view_controller.h"

namespace qv_commons {

// Called on the main thread with the refusal screen, over which the host may present its own; an
// empty one means that there is none.
using ContactUsHandler = std::function<void(ViewController&)>;

}  // namespace qv_commons
