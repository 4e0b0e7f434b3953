// Duration texts: the library, what the standard library offers, and the limit.
//
//     build/release/bench/time_bench --benchmark_enable_random_interleaving=true
//         --benchmark_repetitions=9 --benchmark_report_aggregates_only=true

#include <array>
#include <benchmark/benchmark.h>
#include <charconv>
#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "qv_commons/time/time_helper.h"

namespace {

using qv_commons::QV_TimeHelper;

// Too many for a processor to learn them by heart, few enough for its nearest caches.
constexpr std::size_t kCount = 1024;

// --- Writing

enum Durations { everyday, negative, any };

// Everyday ones: a third each below an hour, below ten and below a hundred.
std::vector<std::int64_t> durations(Durations which) {
  std::mt19937_64 random(1);
  std::vector<std::int64_t> all;
  while (all.size() < kCount) {
    constexpr std::array<std::uint64_t, 3> kBelow = {3600, 36000, 360000};
    const auto seconds = static_cast<std::int64_t>(random() % kBelow[random() % kBelow.size()]);
    all.push_back(which == everyday   ? seconds
                  : which == negative ? -seconds
                                      : static_cast<std::int64_t>(random()));
  }
  return all;
}

[[gnu::noinline]] std::string constantText(std::int64_t) {
  return std::string("00:00:00");
}

char* writeByToChars(char* out, int value, bool pair) {
  if (pair && value >= 0 && value < 10) *out++ = '0';
  return std::to_chars(out, out + 11, value).ptr;
}

[[gnu::noinline]] std::string byToChars(std::int64_t seconds) {
  std::array<char, 64> buffer;
  char* out = buffer.data();
  if (seconds >= 3600 || seconds <= -3600) {
    out = writeByToChars(out, static_cast<int>(seconds / 3600), false);
    *out++ = ':';
  }
  out = writeByToChars(out, static_cast<int>(seconds / 60 % 60), true);
  *out++ = ':';
  out = writeByToChars(out, static_cast<int>(seconds % 60), true);
  return std::string(buffer.data(), out);
}

[[gnu::noinline]] std::string bySnprintf(std::int64_t seconds) {
  std::array<char, 64> buffer;
  const int hours = static_cast<int>(seconds / 3600);
  const int minutes = static_cast<int>(seconds / 60 % 60);
  const int rest = static_cast<int>(seconds % 60);
  const int size =
      seconds >= 3600 || seconds <= -3600
          ? std::snprintf(buffer.data(), buffer.size(), "%01i:%02d:%02d", hours, minutes, rest)
          : std::snprintf(buffer.data(), buffer.size(), "%02d:%02d", minutes, rest);
  return std::string(buffer.data(), static_cast<std::size_t>(size));
}

void write(benchmark::State& state, std::string (*writer)(std::int64_t), Durations which) {
  const std::vector<std::int64_t> all = durations(which);
  for (std::size_t i = 0; auto _ : state) benchmark::DoNotOptimize(writer(all[i++ % kCount]));
}

BENCHMARK_CAPTURE(write, everyday_library, QV_TimeHelper::secondsToHms, everyday);
BENCHMARK_CAPTURE(write, everyday_to_chars, byToChars, everyday);
BENCHMARK_CAPTURE(write, everyday_snprintf, bySnprintf, everyday);
BENCHMARK_CAPTURE(write, everyday_limit_constant, constantText, everyday);
BENCHMARK_CAPTURE(write, negative_library, QV_TimeHelper::secondsToHms, negative);
BENCHMARK_CAPTURE(write, negative_to_chars, byToChars, negative);
BENCHMARK_CAPTURE(write, negative_snprintf, bySnprintf, negative);
BENCHMARK_CAPTURE(write, any_library, QV_TimeHelper::secondsToHms, any);
BENCHMARK_CAPTURE(write, any_to_chars, byToChars, any);
BENCHMARK_CAPTURE(write, any_snprintf, bySnprintf, any);
BENCHMARK_CAPTURE(write, digits_library, QV_TimeHelper::secondsToHmsDigits, everyday);

// --- Reading: every reader stops the process where it can't read.

enum Texts { canonical, fraction, padded };

std::vector<std::string> texts(Texts which) {
  std::vector<std::string> all;
  for (const std::int64_t seconds : durations(everyday)) {
    const std::string text = QV_TimeHelper::secondsToHms(seconds);
    all.push_back(which == canonical ? text : which == fraction ? text + ".75" : " " + text + "\n");
  }
  return all;
}

[[gnu::noinline]] std::int64_t touchingTheBytes(std::string_view text) {
  std::int64_t sum = 0;
  for (const char c : text) sum += c;
  return sum;
}

std::string_view withoutASCIISpace(std::string_view text) {
  constexpr std::string_view kSpace = " \t\n\v\f\r";
  const std::size_t first = text.find_first_not_of(kSpace);
  if (first == std::string_view::npos) return "";
  return text.substr(first, text.find_last_not_of(kSpace) - first + 1);
}

// Less than the library does: ASCII space alone, no "+", the sum unchecked.
[[gnu::noinline]] std::int64_t byFromChars(std::string_view text) {
  std::string_view rest = withoutASCIISpace(text);
  std::array<std::int64_t, 3> fields = {0, 0, 0};
  int count = 0;
  while (!rest.empty()) {
    const std::size_t colon = rest.find(':');
    std::string_view field = rest.substr(0, colon);
    rest = colon == std::string_view::npos ? "" : rest.substr(colon + 1);
    if (rest.empty()) field = field.substr(0, field.find('.'));
    if (field.empty()) continue;
    fields = {fields[1], fields[2], 0};
    const char* end = field.data() + field.size();
    const auto result = std::from_chars(field.data(), end, fields[2]);
    if (result.ec != std::errc() || result.ptr != end) std::abort();
    ++count;
  }
  if (count == 0) std::abort();
  return fields[2] + fields[1] * 60 + fields[0] * 3600;
}

// Less still: what follows the figures is not looked at.
[[gnu::noinline]] std::int64_t bySscanf(const std::string& text) {
  std::array<std::int64_t, 3> fields = {0, 0, 0};
  const int count = std::sscanf(text.c_str(), "%" SCNd64 ":%" SCNd64 ":%" SCNd64, &fields[0],
                                &fields[1], &fields[2]);
  if (count == 3) return fields[0] * 3600 + fields[1] * 60 + fields[2];
  if (count == 2) return fields[0] * 60 + fields[1];
  if (count == 1) return fields[0];
  std::abort();
}

template <class Reader>
void read(benchmark::State& state, Reader reader, Texts which) {
  const std::vector<std::string> all = texts(which);
  for (std::size_t i = 0; auto _ : state) benchmark::DoNotOptimize(reader(all[i++ % kCount]));
}

BENCHMARK_CAPTURE(read, canonical_library, QV_TimeHelper::hmsToSeconds, canonical);
BENCHMARK_CAPTURE(read, canonical_from_chars, byFromChars, canonical);
BENCHMARK_CAPTURE(read, canonical_sscanf, bySscanf, canonical);
BENCHMARK_CAPTURE(read, canonical_limit_bytes, touchingTheBytes, canonical);
BENCHMARK_CAPTURE(read, fraction_library, QV_TimeHelper::hmsToSeconds, fraction);
BENCHMARK_CAPTURE(read, fraction_from_chars, byFromChars, fraction);
BENCHMARK_CAPTURE(read, fraction_sscanf, bySscanf, fraction);
BENCHMARK_CAPTURE(read, padded_library, QV_TimeHelper::hmsToSeconds, padded);
BENCHMARK_CAPTURE(read, padded_from_chars, byFromChars, padded);
BENCHMARK_CAPTURE(read, padded_sscanf, bySscanf, padded);

}  // namespace
