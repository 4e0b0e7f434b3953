// Answers duration_oracle.py, a line for a line: a letter, then the argument's bytes in
// hexadecimal. "w" writes a duration, "d" writes its digits, "r" reads a text, giving "none" for
// what it can't.

#include <cstdint>
#include <iostream>
#include <optional>
#include <string>

#include "qv_commons/time/time_helper.h"

namespace {

std::string bytesOf(const std::string& hexadecimal) {
  std::string bytes;
  for (std::size_t i = 0; i + 1 < hexadecimal.size(); i += 2) {
    bytes += static_cast<char>(std::stoi(hexadecimal.substr(i, 2), nullptr, 16));
  }
  return bytes;
}

std::string answer(char kind, const std::string& argument) {
  using qv_commons::QV_TimeHelper;
  if (kind == 'w') return QV_TimeHelper::secondsToHms(std::stoll(argument));
  if (kind == 'd') return QV_TimeHelper::secondsToHmsDigits(std::stoll(argument));
  const std::optional<std::int64_t> seconds = QV_TimeHelper::tryHmsToSeconds(argument);
  return seconds ? std::to_string(*seconds) : "none";
}

}  // namespace

int main() {
  for (std::string line; std::getline(std::cin, line);) {
    std::cout << answer(line.front(), bytesOf(line.substr(1))) << '\n';
  }
}
