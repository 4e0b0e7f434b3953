// Whatever a person types for recipients: nothing is lost in parting it, and what counts as a
// mailbox can stand in a header.

#include <string>

#include "qv_commons/platform/desktop/mail_addresses.h"

#include "fuzz/fuzz.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace qv_commons::desktop;
  using qv_commons::fuzz::check;
  const std::string typed(qv_commons::fuzz::textOf(data, size));
  std::size_t letters = 0;
  for (const std::string& text : splitAddresses(typed)) {
    check(!text.empty() && text.front() != ' ' && text.back() != ' ', "no blanks around it");
    check(typed.find(text) != typed.npos, "it is what was typed");
    letters += text.size();
    const auto mailbox = parseMailbox(text);
    if (!mailbox) continue;
    check(isAddress(mailbox->address), "the address of a mailbox is one");
    check(!hasControlCharacter(mailbox->name + mailbox->address), "no line breaks");
    check(text.find(mailbox->address) != text.npos, "the address is what was typed");
  }
  check(letters <= size, "nothing is added");
  std::size_t shown = 0;
  for (const char character : typed) shown += character != ' ' && character != ',' ? 1 : 0;
  std::size_t kept = 0;
  for (const std::string& text : splitAddresses(typed)) {
    for (const char character : text) kept += character != ' ' && character != ',' ? 1 : 0;
  }
  check(kept == shown, "only blanks and commas are left out");
  return 0;
}
