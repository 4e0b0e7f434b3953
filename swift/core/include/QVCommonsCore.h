// All that is public, for Swift packages that use C++.
#pragma once
#include "qv_commons/qv_commons.h"
