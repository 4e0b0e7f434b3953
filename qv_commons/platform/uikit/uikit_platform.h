// The iOS adapter. Linking it is enough: it installs itself when the app is loaded, before `main`.
#pragma once

#include "qv_commons/platform/platform.h"

namespace qv_commons::uikit {

const Platform& platform();

}  // namespace qv_commons::uikit
