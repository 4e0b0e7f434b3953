// The iOS adapter. It installs itself when the app is loaded, before `main`. An app that uses none
// of its Objective-C classes refers to `platform` or links with -ObjC.
#pragma once

#include "qv_commons/platform/platform.h"

namespace qv_commons::uikit {

const Platform& platform();

}  // namespace qv_commons::uikit
