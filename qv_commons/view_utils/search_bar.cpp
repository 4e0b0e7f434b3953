#include "qv_commons/view_utils/search_bar.h"

#include "qv_commons/platform/device.h"
#include "qv_commons/platform/platform.h"

namespace qv_commons {

bool searchTextFieldIsPublished() {
  return currentPlatform().device.isSystemVersionAtLeast(13);
}

}  // namespace qv_commons
