// Durations read from texts. Every way stops the process where it can't read. All but the first do
// less than `hmsToSeconds`: they know no white space but ASCII's and don't check the sum.
#include <QByteArray>
#include <QList>
#include <absl/strings/numbers.h>
#include <absl/strings/str_split.h>
#include <absl/strings/strip.h>
#include <array>
#include <boost/algorithm/string.hpp>
#include <boost/lexical_cast.hpp>
#include <charconv>
#include <cinttypes>
#include <cstdio>
#include <glib.h>

#include "qv_commons/time/time_helper.h"

#include "bench/contest.h"
#include "bench/durations.h"

namespace qv_commons::bench {
namespace {

std::int64_t touchingTheBytes(const std::string& text) {
  std::int64_t sum = 0;
  for (const char c : text) sum += c;
  return sum;
}

// The last three of any number of fields.
class LastFields {
 public:
  void add(std::int64_t field) {
    hours_ = minutes_;
    minutes_ = seconds_;
    seconds_ = field;
  }
  std::int64_t sum() const { return seconds_ + minutes_ * 60 + hours_ * 3600; }

 private:
  std::int64_t hours_ = 0;
  std::int64_t minutes_ = 0;
  std::int64_t seconds_ = 0;
};

std::string_view withoutASCIISpace(std::string_view text) {
  constexpr std::string_view kSpace = " \t\n\v\f\r";
  const std::size_t first = text.find_first_not_of(kSpace);
  if (first == std::string_view::npos) return "";
  return text.substr(first, text.find_last_not_of(kSpace) - first + 1);
}

std::int64_t byFromChars(const std::string& text) {
  std::string_view rest = withoutASCIISpace(text);
  LastFields fields;
  if (rest.empty()) std::abort();
  while (!rest.empty()) {
    const std::size_t colon = rest.find(':');
    std::string_view field = rest.substr(0, colon);
    rest = colon == std::string_view::npos ? "" : rest.substr(colon + 1);
    if (rest.empty()) field = field.substr(0, field.find('.'));
    if (field.empty()) continue;
    std::int64_t value = 0;
    const char* end = field.data() + field.size();
    const auto result = std::from_chars(field.data(), end, value);
    if (result.ec != std::errc() || result.ptr != end) std::abort();
    fields.add(value);
  }
  return fields.sum();
}

// What follows the figures is not looked at.
std::int64_t bySscanf(const std::string& text) {
  std::array<std::int64_t, 3> fields = {0, 0, 0};
  const int count = std::sscanf(text.c_str(), "%" SCNd64 ":%" SCNd64 ":%" SCNd64, &fields[0],
                                &fields[1], &fields[2]);
  if (count == 3) return fields[0] * 3600 + fields[1] * 60 + fields[2];
  if (count == 2) return fields[0] * 60 + fields[1];
  if (count == 1) return fields[0];
  std::abort();
}

std::int64_t byAbseil(const std::string& text) {
  LastFields fields;
  for (absl::string_view field :
       absl::StrSplit(absl::StripAsciiWhitespace(text), ':', absl::SkipEmpty())) {
    std::int64_t value = 0;
    if (!absl::SimpleAtoi(field.substr(0, field.find('.')), &value)) std::abort();
    fields.add(value);
  }
  return fields.sum();
}

std::int64_t byBoost(const std::string& text) {
  std::vector<std::string> split;
  boost::split(split, boost::trim_copy(text), boost::is_any_of(":"), boost::token_compress_on);
  LastFields fields;
  for (const std::string& field : split) {
    fields.add(boost::lexical_cast<std::int64_t>(field.substr(0, field.find('.'))));
  }
  return fields.sum();
}

std::int64_t byGLib(const std::string& text) {
  char* copy = g_strstrip(g_strdup(text.c_str()));
  char** split = g_strsplit(copy, ":", -1);
  LastFields fields;
  for (char** field = split; *field != nullptr; ++field) {
    if (**field != '\0') fields.add(g_ascii_strtoll(*field, nullptr, 10));
  }
  g_strfreev(split);
  g_free(copy);
  return fields.sum();
}

std::int64_t byQt(const std::string& text) {
  const auto size = static_cast<qsizetype>(text.size());
  LastFields fields;
  for (const QByteArray& field : QByteArray::fromRawData(text.data(), size).trimmed().split(':')) {
    bool valid = false;
    fields.add(
        field.left(field.contains('.') ? field.indexOf('.') : field.size()).toLongLong(&valid));
    if (!valid) std::abort();
  }
  return fields.sum();
}

std::vector<std::string> textsBetween(const std::string& before, const std::string& after) {
  std::vector<std::string> texts;
  for (const std::int64_t seconds : everydayDurations()) {
    texts.push_back(before + QV_TimeHelper::secondsToHms(seconds) + after);
  }
  return texts;
}

void addReadingContest(const char* texts, const std::string& before, const std::string& after) {
  Contest<std::string>("hmsToSeconds", texts, textsBetween(before, after))
      .enter("QV Commons", QV_TimeHelper::hmsToSeconds)
      .enter("std::from_chars", byFromChars)
      .enter("sscanf", bySscanf)
      .enter("Abseil", byAbseil)
      .enter("Boost", byBoost)
      .enter("GLib", byGLib)
      .enter("Qt", byQt)
      .limit("touching the bytes", touchingTheBytes);
}

}  // namespace

void addDurationReadingContests() {
  addReadingContest("canonical texts", "", "");
  addReadingContest("with a fraction", "", ".75");
  addReadingContest("with white space around", " ", "\n");
}

}  // namespace qv_commons::bench
