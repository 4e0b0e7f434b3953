// Durations written as texts.
#include <QString>
#include <absl/strings/str_cat.h>
#include <array>
#include <boost/date_time/posix_time/posix_time.hpp>
#include <charconv>
#include <cstdio>
#include <fmt/compile.h>
#include <fmt/format.h>
#include <glib.h>
#include <unicode/rbnf.h>

#include "qv_commons/time/time_helper.h"

#include "bench/contest.h"
#include "bench/durations.h"

namespace qv_commons::bench {
namespace {

struct Fields {
  explicit Fields(std::int64_t duration)
      : hasHours(duration >= 3600 || duration <= -3600),
        hours(static_cast<int>(duration / 3600)),
        minutes(static_cast<int>(duration / 60 % 60)),
        seconds(static_cast<int>(duration % 60)) {}

  bool hasHours;
  int hours;
  int minutes;
  int seconds;
};

std::string constantText(std::int64_t) {
  return std::string("00:00:00");
}

char* writeByToChars(char* out, int value) {
  if (value >= 0 && value < 10) *out++ = '0';
  return std::to_chars(out, out + 11, value).ptr;
}

std::string byToChars(std::int64_t duration) {
  const Fields fields(duration);
  std::array<char, 64> buffer;
  char* out = buffer.data();
  if (fields.hasHours) {
    out = std::to_chars(out, out + 11, fields.hours).ptr;
    *out++ = ':';
  }
  out = writeByToChars(out, fields.minutes);
  *out++ = ':';
  out = writeByToChars(out, fields.seconds);
  return std::string(buffer.data(), out);
}

std::string byCompiledFmt(std::int64_t duration) {
  const auto [hasHours, hours, minutes, seconds] = Fields(duration);
  return hasHours ? fmt::format(FMT_COMPILE("{}:{:02}:{:02}"), hours, minutes, seconds)
                  : fmt::format(FMT_COMPILE("{:02}:{:02}"), minutes, seconds);
}

std::string byFmt(std::int64_t duration) {
  const auto [hasHours, hours, minutes, seconds] = Fields(duration);
  return hasHours ? fmt::format("{}:{:02}:{:02}", hours, minutes, seconds)
                  : fmt::format("{:02}:{:02}", minutes, seconds);
}

std::string byAbseil(std::int64_t duration) {
  const Fields fields(duration);
  const absl::Dec minutes(fields.minutes, absl::kZeroPad2);
  const absl::Dec seconds(fields.seconds, absl::kZeroPad2);
  return fields.hasHours ? absl::StrCat(fields.hours, ":", minutes, ":", seconds)
                         : absl::StrCat(minutes, ":", seconds);
}

std::string bySnprintf(std::int64_t duration) {
  const auto [hasHours, hours, minutes, seconds] = Fields(duration);
  std::array<char, 64> buffer;
  const int size =
      hasHours
          ? std::snprintf(buffer.data(), buffer.size(), "%01i:%02d:%02d", hours, minutes, seconds)
          : std::snprintf(buffer.data(), buffer.size(), "%02d:%02d", minutes, seconds);
  return std::string(buffer.data(), static_cast<std::size_t>(size));
}

std::string byGLib(std::int64_t duration) {
  const auto [hasHours, hours, minutes, seconds] = Fields(duration);
  char* text = hasHours ? g_strdup_printf("%01i:%02d:%02d", hours, minutes, seconds)
                        : g_strdup_printf("%02d:%02d", minutes, seconds);
  std::string result(text);
  g_free(text);
  return result;
}

std::string byQt(std::int64_t duration) {
  const auto [hasHours, hours, minutes, seconds] = Fields(duration);
  return (hasHours ? QString::asprintf("%01i:%02d:%02d", hours, minutes, seconds)
                   : QString::asprintf("%02d:%02d", minutes, seconds))
      .toStdString();
}

// "00:02:05"
std::string byBoost(std::int64_t duration) {
  return boost::posix_time::to_simple_string(
      boost::posix_time::seconds(static_cast<long>(duration)));
}

// "2:05"
std::string byICU(std::int64_t duration) {
  static const auto format = [] {
    UErrorCode status = U_ZERO_ERROR;
    return icu::RuleBasedNumberFormat(icu::URBNF_DURATION, icu::Locale::getEnglish(), status);
  }();
  icu::UnicodeString text;
  format.format(duration, text);
  std::string result;
  return text.toUTF8String(result);
}

std::vector<std::int64_t> negated(std::vector<std::int64_t> durations) {
  for (std::int64_t& duration : durations) duration = -duration;
  return durations;
}

std::vector<std::int64_t> anyDurations() {
  std::mt19937_64 random(1);
  std::vector<std::int64_t> all;
  while (all.size() < kDurations) all.push_back(static_cast<std::int64_t>(random()));
  return all;
}

}  // namespace

void addDurationContests() {
  Contest<std::int64_t>("secondsToHms", "everyday durations", everydayDurations())
      .enter("QV Commons", QV_TimeHelper::secondsToHms)
      .enter("std::to_chars", byToChars)
      .enter("compiled {fmt}", byCompiledFmt)
      .enter("{fmt}", byFmt)
      .enter("Abseil", byAbseil)
      .enter("snprintf", bySnprintf)
      .enter("GLib", byGLib)
      .enter("Qt", byQt)
      .enterUnchecked("Boost", byBoost)
      .enterUnchecked("ICU", byICU)
      .limit("a constant text", constantText);

  for (const auto& [name, durations] :
       {std::pair("negative durations", negated(everydayDurations())),
        std::pair("any 64-bit durations", anyDurations())}) {
    Contest<std::int64_t>("secondsToHms", name, durations)
        .enter("QV Commons", QV_TimeHelper::secondsToHms)
        .enter("std::to_chars", byToChars)
        .enter("compiled {fmt}", byCompiledFmt)
        .enter("snprintf", bySnprintf);
  }
}

}  // namespace qv_commons::bench
