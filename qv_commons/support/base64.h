// Base64 of bytes: the standard alphabet with "=" padding, in one line (RFC 4648, section 4).
//
//     std::string text = qv_commons::base64Encoded("foob");  // "Zm9vYg=="
#pragma once

#include <string>
#include <string_view>

#include "qv_commons/export.h"

namespace qv_commons {

// Four characters for every three bytes begun; "" for no bytes. One allocation, that of the result.
// Any thread.
QV_COMMONS_EXPORT std::string base64Encoded(std::string_view bytes);

}  // namespace qv_commons
