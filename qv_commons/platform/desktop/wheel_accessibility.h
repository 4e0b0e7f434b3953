// What a screen reader learns of the date picker's wheels: a spin box each, with its name, its text
// and the steps up and down.
#pragma once

namespace qv_commons::desktop {

// Tells Qt of it; once is enough, more does no harm.
void installWheelAccessibility();

}  // namespace qv_commons::desktop
