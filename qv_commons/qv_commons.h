// All that is public, for C++ hosts. An app that wants less includes the one header it needs.
#pragma once

#include "qv_commons/age_gate/age_gate_color_theme.h"
#include "qv_commons/age_gate/age_gate_decision.h"
#include "qv_commons/age_gate/age_gate_helper.h"
#include "qv_commons/age_gate/age_gate_refused_view_controller.h"
#include "qv_commons/age_gate/age_gate_view_controller.h"
#include "qv_commons/age_gate/policy_links.h"
#include "qv_commons/app_info/app_info_helper.h"
#include "qv_commons/app_info/bundle_file_helper.h"
#include "qv_commons/platform/platform.h"
#include "qv_commons/support/links.h"
#include "qv_commons/support/rate_helper.h"
#include "qv_commons/support/support_helper.h"
#include "qv_commons/support/url.h"
#include "qv_commons/time/time_helper.h"
#include "qv_commons/view_utils/search_bar.h"
#include "qv_commons/view_utils/view_controller_helper.h"
