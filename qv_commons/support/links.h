// The maker's two legal documents, the same for every app of a family.
//
//     std::string address = qv_commons::QV_Links::privacyPolicy().text();
//
// Their host is a constant of the build: the CMake option QV_COMMONS_MAKER_HOST, "www.example.com"
// unless a family sets its own. Every call gives an equal URL, and none fails. Any thread.
#pragma once

#include "qv_commons/export.h"
#include "qv_commons/support/url.h"

namespace qv_commons {

class QV_COMMONS_EXPORT QV_Links {
 public:
  // "https://www.example.com/privacy/"
  static URL privacyPolicy();

  // "https://www.example.com/terms-of-service/"
  static URL termsOfService();
};

}  // namespace qv_commons
