// Reading a duration never crashes, and what was read can be written and read back.

#include <optional>
#include <string>

#include "qv_commons/time/time_helper.h"

#include "fuzz/fuzz.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using qv_commons::QV_TimeHelper;
  using qv_commons::fuzz::check;
  const std::string_view text = qv_commons::fuzz::textOf(data, size);
  const std::optional<std::int64_t> seconds = QV_TimeHelper::tryHmsToSeconds(text);

  std::string padded = "\t\u2003";
  padded.append(text).append("\u0085\n");
  check(QV_TimeHelper::tryHmsToSeconds(padded) == seconds, "white space around is ignored");
  if (!seconds) return 0;

  check(QV_TimeHelper::hmsToSeconds(text) == *seconds, "both readers agree");
  const std::string written = QV_TimeHelper::secondsToHms(*seconds);
  const std::optional<std::int64_t> readBack = QV_TimeHelper::tryHmsToSeconds(written);
  check(readBack.has_value(), "what was written can be read");
  const std::int64_t hours = *seconds / 3600;
  if (hours == static_cast<std::int32_t>(hours)) {
    check(*readBack == *seconds, "what was written reads back");
  }
  check(QV_TimeHelper::secondsToHmsDigits(*seconds).empty() == (*seconds < 1),
        "durations of a second and more have digits, others have none");
  return 0;
}
