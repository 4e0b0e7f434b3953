// The addresses in what a person types into an e-mail's recipient field.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qv_commons::desktop {

// "Support Team <support@example.com>", or an address alone.
struct Mailbox {
  std::string name;  // may be empty
  std::string address;

  friend bool operator==(const Mailbox&, const Mailbox&) = default;
};

// The texts between commas, without the blanks around them: "a@b.c, d@e.f" gives two. Commas within
// double quotes part nothing. Blank texts are left out.
std::vector<std::string> splitAddresses(std::string_view recipients);

// std::nullopt where `text`, one of the texts above, is no mailbox that a header can carry.
std::optional<Mailbox> parseMailbox(std::string_view text);

// Whether `address` has the form local@domain that a header can carry as it stands: UTF-8 without
// blanks, control or invisible characters or brackets, unless in a quoted local part.
bool isAddress(std::string_view address);

// Whether `text` holds a line break, NUL or another ASCII control character.
bool hasControlCharacter(std::string_view text);

}  // namespace qv_commons::desktop
