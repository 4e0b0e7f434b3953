// The maker's two legal documents, the same for every app of a family.
//
//     std::string address = qv_commons::QV_Links::privacyPolicy().text();
//
// Their host is a constant of the build: the CMake option QV_COMMONS_MAKER_HOST, "www.example.com"
// where a family does not set its own. Nothing fails, and every call gives an equal URL. Any
// thread.
#pragma once

#include "qv_commons/support/url.h"

namespace qv_commons {

class QV_Links {
 public:
  // "https://www.example.com/privacy/"
  static URL privacyPolicy();

  // "https://www.example.com/terms-of-service/"
  static URL termsOfService();
};

}  // namespace qv_commons
