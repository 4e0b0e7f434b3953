#include "qv_commons/age_gate/policy_links.h"

#include <algorithm>
#include <initializer_list>
#include <memory>
#include <string>

#include "qv_commons/age_gate/age_gate_color_theme.h"
#include "qv_commons/platform/fatal_error.h"
#include "qv_commons/platform/views.h"

namespace qv_commons {
namespace {

struct FixedLink {
  TextRange range;
  std::string_view value;
};

void requireLength(const AttributedString& text, std::initializer_list<FixedLink> links,
                   std::string_view caller) {
  std::size_t needed = 0;
  for (const FixedLink& link : links) {
    needed = std::max(needed, link.range.location + link.range.length);
  }
  if (text.length() >= needed) return;
  fatalError(std::string(caller) + ": the text has " + std::to_string(text.length()) +
             " UTF-16 units, its links need " + std::to_string(needed));
}

void applyLinks(TextView& textView, std::initializer_list<FixedLink> links,
                const QV_AgeGateColorTheme& theme, std::string_view caller) {
  const std::unique_ptr<AttributedString> text = textView.attributedText();
  if (!text) fatalError(std::string(caller).append(": the text view has no attributed text"));
  requireLength(*text, links, caller);
  for (const FixedLink& link : links) text->addLink(link.value, link.range);
  textView.setLinkTextAttributes(theme.policiesTextColor);
  textView.setAttributedText(*text);
  // After the text, or the layout's own colours would stay.
  textView.setTextColor(theme.textColor);
}

}  // namespace

void applyPolicyLinks(TextView& textView, std::string_view privacyLink,
                      std::string_view termsOfServiceLink, const QV_AgeGateColorTheme& theme) {
  applyLinks(textView,
             {{kPrivacyLinkRange, privacyLink}, {kTermsOfServiceLinkRange, termsOfServiceLink}},
             theme, "applyPolicyLinks");
}

void applyContactLink(TextView& textView, const QV_AgeGateColorTheme& theme) {
  applyLinks(textView, {{kContactLinkRange, kContactLink}}, theme, "applyContactLink");
}

}  // namespace qv_commons
