// Texts on their way between the platform and the library. The one place where they are converted.
//
// Always by length, so a NUL character is one like any other. What has no form on the other side
// becomes U+FFFD: half of a surrogate pair, bytes that are no UTF-8.
#pragma once

#import <Foundation/Foundation.h>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qv_commons::uikit {

// Never nil.
NSString* toNSString(std::string_view utf8);

NSArray<NSString*>* toNSArray(const std::vector<std::string>& texts);

// nil gives "".
std::string toString(NSString* text);

// nil gives nothing, @"" gives "".
std::optional<std::string> toOptionalString(NSString* text);

// nil gives an empty list.
std::vector<std::string> toStrings(NSArray<NSString*>* texts);

}  // namespace qv_commons::uikit
