#include "qv_commons/platform/memory/memory_layout.h"

namespace qv_commons::memory {
namespace {

ViewLayout textOf(ViewClass viewClass, std::string text) {
  ViewLayout view;
  view.viewClass = viewClass;
  view.text = std::move(text);
  return view;
}

ViewLayout controlWith(ViewClass viewClass, std::string action) {
  ViewLayout view;
  view.viewClass = viewClass;
  view.action = std::move(action);
  return view;
}

// The links are at 0 to 13 and 17 to 32.
ViewLayout policyText() {
  return textOf(ViewClass::textView, "Privacy Policy & Terms of Service");
}

}  // namespace

MemoryLayout ageGateLayout() {
  return {{"bg", {}},
          {"header", textOf(ViewClass::label, "What’s your date of birth?")},
          {"subtitle", textOf(ViewClass::label, "Only used to check your age, never kept.")},
          {"datePicker", controlWith(ViewClass::datePicker, "onDateChanged:")},
          {"confirmBtn", controlWith(ViewClass::button, "onConfirmPressed:")},
          {"tos", policyText()}};
}

MemoryLayout ageGateRefusedLayout() {
  return {{"bg", {}},
          {"header", textOf(ViewClass::label, "We’re sorry, [APPNAME] isn’t available to you")},
          // The link is at 38 to 59.
          {"contact", textOf(ViewClass::textView,
                             "If you think this is an error, please contact us for support.")},
          {"tos", policyText()}};
}

}  // namespace qv_commons::memory
