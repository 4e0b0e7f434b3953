// Every suite, and how a program runs them all over its adapter.
#pragma once

#include "tests/conformance/alert_suite.h"
#include "tests/conformance/bundle_suite.h"
#include "tests/conformance/calendar_suite.h"
#include "tests/conformance/mail_composer_suite.h"
#include "tests/conformance/presentation_suite.h"
#include "tests/conformance/screens_suite.h"
#include "tests/conformance/system_suite.h"
#include "tests/conformance/user_defaults_suite.h"

#define QV_RUN_ALL_SUITES(name, make)                   \
  QV_RUN_SUITE(AlertConformance, name, make);           \
  QV_RUN_SUITE(ApplicationConformance, name, make);     \
  QV_RUN_SUITE(BundleConformance, name, make);          \
  QV_RUN_SUITE(BundleResourcesConformance, name, make); \
  QV_RUN_SUITE(CalendarConformance, name, make);        \
  QV_RUN_SUITE(ClockConformance, name, make);           \
  QV_RUN_SUITE(DeviceConformance, name, make);          \
  QV_RUN_SUITE(FilesConformance, name, make);           \
  QV_RUN_SUITE(MailComposerConformance, name, make);    \
  QV_RUN_SUITE(NoMailConformance, name, make);          \
  QV_RUN_SUITE(PresentationConformance, name, make);    \
  QV_RUN_SUITE(ScreensConformance, name, make);         \
  QV_RUN_SUITE(UserDefaultsConformance, name, make)
