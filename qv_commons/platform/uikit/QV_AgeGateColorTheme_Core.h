// The theme's C++ side. Not for hosts.
#pragma once

#include <memory>

#include "qv_commons/age_gate/age_gate_color_theme.h"
#import "qv_commons/platform/uikit/include/QV_Commons_iOS/QV_AgeGateColorTheme.h"

@interface QV_AgeGateColorTheme ()
- (instancetype)initWithCore:(std::shared_ptr<qv_commons::QV_AgeGateColorTheme>)core
    NS_DESIGNATED_INITIALIZER;

// Shared with the screens that are given this theme.
- (std::shared_ptr<qv_commons::QV_AgeGateColorTheme>)core;
@end
