// How an e-mail carries bytes in lines of ASCII: RFC 2045 and 2047.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace qv_commons::desktop {

// Quoted-printable, with "\n" for each "\n" of `text`. A line that begins with "From " is encoded,
// since mailboxes mark such lines.
std::string quotedPrintable(std::string_view text);

// Base64 in lines of 76 characters, handed to `sink` piece by piece; false if `sink` said so.
bool writeBase64Lines(std::string_view bytes, const std::function<bool(std::string_view)>& sink);

// The value of a header without structure: as it stands where every reader gives it back so, else
// in encoded words.
std::string headerText(std::string_view text);

}  // namespace qv_commons::desktop
