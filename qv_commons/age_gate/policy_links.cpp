#include "qv_commons/age_gate/policy_links.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "qv_commons/age_gate/age_gate_color_theme.h"
#include "qv_commons/app_info/joined_text.h"
#include "qv_commons/platform/application.h"
#include "qv_commons/platform/fatal_error.h"
#include "qv_commons/platform/views.h"
#include "qv_commons/support/url.h"

namespace qv_commons {
namespace {

// The links come in their order in the text.
void applyLinks(TextView& textView, const std::vector<TextLink>& links,
                const QV_AgeGateColorTheme& theme, std::string_view caller) {
  const std::optional<std::size_t> length = textView.textLength();
  if (!length) fatalError(joinedText({caller, ": the text view has no attributed text"}));
  const std::size_t needed = links.back().range.location + links.back().range.length;
  if (*length < needed) {
    fatalError(joinedText(
        {caller, ": the text has ", std::to_string(static_cast<std::int64_t>(*length)),
         " UTF-16 units, its links need ", std::to_string(static_cast<std::int64_t>(needed))}));
  }
  textView.addLinks(links, theme.policiesTextColor);
  // After the links, or the layout's own colours would stay.
  textView.setTextColor(theme.textColor);
}

}  // namespace

void applyPolicyLinks(TextView& textView, std::string_view privacyLink,
                      std::string_view termsOfServiceLink, const QV_AgeGateColorTheme& theme) {
  std::vector<TextLink> links(2);
  links[0] = {std::string(privacyLink), kPrivacyLinkRange};
  links[1] = {std::string(termsOfServiceLink), kTermsOfServiceLinkRange};
  applyLinks(textView, links, theme, "applyPolicyLinks");
}

void applyContactLink(TextView& textView, const QV_AgeGateColorTheme& theme) {
  std::vector<TextLink> links(1);
  links[0] = {std::string(kContactLink), kContactLinkRange};
  applyLinks(textView, links, theme, "applyContactLink");
}

void interactWithLink(TextView& textView, TextViewDelegate* delegate, std::string_view value,
                      TextRange range, Application& application) {
  if (delegate != nullptr && !delegate->shouldInteractWithURL(textView, value, range)) return;
  if (const std::optional<URL> url = URL::parse(std::string(value))) application.openURL(*url);
}

}  // namespace qv_commons
