// The links in the texts of the age gate's screens: fixed ranges of whatever text a layout has.
//
//     qv_commons::memory::Record record;
//     qv_commons::memory::MemoryTextView text(
//         record, "policy", {.text = "Privacy Policy & Terms of Service"});
//     qv_commons::QV_AgeGateColorTheme theme({1, 1, 1}, {0, 0, 0}, {1, 1, 1}, {0.29, 0.29, 0.29},
//                                            {0.514, 0.514, 0.514});
//     qv_commons::applyPolicyLinks(text, "https://example.com/privacy",
//                                  "https://example.com/terms", theme);
//
// The ranges count UTF-16 units and never move: the labels are not searched for. Main thread.
#pragma once

#include <string_view>

#include "qv_commons/export.h"
#include "qv_commons/platform/text_view_delegate.h"

namespace qv_commons {

class Application;
class QV_AgeGateColorTheme;
class TextView;

inline constexpr TextRange kPrivacyLinkRange = {0, 14};
inline constexpr TextRange kTermsOfServiceLinkRange = {17, 16};
inline constexpr TextRange kContactLinkRange = {38, 22};

// What fills the words of a link up to its range, in languages that say it in fewer letters: WORD
// JOINER, which has no width, and no line ends at it. Adapters leave it out of what is copied.
inline constexpr char16_t kLinkFiller = u'\u2060';

// The value of the contact link.
inline constexpr std::string_view kContactLink = "mailto";

// Links the text's first 14 units to `privacyLink` and its units 17 to 32 to `termsOfServiceLink`.
// Links show in the theme's `policiesTextColor` and all other text in its `textColor`, however the
// layout coloured it; the rest of the text's styling stays. The link values are kept as they are:
// empty, or no URL at all, they are still what the link holds.
//
// A view without a text, or with one of fewer than 33 units, is a fatal error.
QV_COMMONS_EXPORT void applyPolicyLinks(TextView& textView, std::string_view privacyLink,
                                        std::string_view termsOfServiceLink,
                                        const QV_AgeGateColorTheme& theme);

// The same with one link, to "mailto", over the units 38 to 59. A view without a text, or with one
// of fewer than 60 units, is a fatal error.
QV_COMMONS_EXPORT void applyContactLink(TextView& textView, const QV_AgeGateColorTheme& theme);

// What a tap on a link does, for adapters whose system has no links of its own. Not for hosts.
// Asks `delegate`, if there is one, whether the system opens the link `value` at `range`. Without a
// delegate, or if it says so, the system opens it; a value that is not a URL is ignored.
QV_COMMONS_EXPORT void interactWithLink(TextView& textView, TextViewDelegate* delegate,
                                        std::string_view value, TextRange range,
                                        Application& application);

}  // namespace qv_commons
