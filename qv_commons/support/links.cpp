#include "qv_commons/support/links.h"

#include <optional>
#include <utility>

#include "qv_commons/platform/fatal_error.h"

namespace qv_commons {
namespace {

// One text a link, put together by the compiler.
#define MAKER_SITE "https://" QV_COMMONS_MAKER_HOST

URL fixedURL(const char* text) {
  std::optional<URL> link = URL::parse(text);
  if (!link) fatalError("QV_Links: " MAKER_SITE " is not the start of a URL");
  return *std::move(link);
}

}  // namespace

URL QV_Links::privacyPolicy() {
  return fixedURL(MAKER_SITE "/privacy/");
}

URL QV_Links::termsOfService() {
  return fixedURL(MAKER_SITE "/terms-of-service/");
}

}  // namespace qv_commons
