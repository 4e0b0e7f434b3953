// The support e-mail: its body, and base64 beside OpenSSL's encoder.
#include <benchmark/benchmark.h>
#include <openssl/evp.h>
#include <string>
#include <vector>

#include "qv_commons/support/base64.h"
#include "qv_commons/support/decimal_text.h"
#include "qv_commons/support/support_mail.h"

namespace {

void mailBody(benchmark::State& state) {
  const std::vector<std::string> purchases(static_cast<std::size_t>(state.range(0)),
                                           "com.example.notes.pro_monthly");
  qv_commons::SupportMailInputs inputs;
  inputs.appId = "com.example.notes";
  inputs.localizedModel = "iPhone";
  inputs.systemVersion = "14.4";
  inputs.screenSize = {375, 812};
  inputs.preferredLanguage = "en-GB";
  inputs.appVersion = "2.4.1(317)";
  inputs.purchases = purchases;
  for (auto _ : state) benchmark::DoNotOptimize(qv_commons::supportMailBody(inputs));
  state.SetComplexityN(state.range(0) + 1);
}
BENCHMARK(mailBody)
    ->Arg(0)
    ->Arg(3)
    ->RangeMultiplier(10)
    ->Range(10, 100'000)
    ->Complexity(benchmark::oN);

std::string receiptOf(std::int64_t size) {
  std::string receipt(static_cast<std::size_t>(size), '\0');
  for (std::size_t i = 0; i < receipt.size(); ++i) receipt[i] = static_cast<char>(i * 31 + i / 7);
  return receipt;
}

void base64Own(benchmark::State& state) {
  const std::string receipt = receiptOf(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(qv_commons::base64Encoded(receipt));
  state.SetBytesProcessed(state.iterations() * state.range(0));
}

// The result is a fresh string, as ours is.
void base64OpenSsl(benchmark::State& state) {
  const std::string receipt = receiptOf(state.range(0));
  for (auto _ : state) {
    std::string text(4 * ((receipt.size() + 2) / 3) + 1, '\0');
    EVP_EncodeBlock(reinterpret_cast<unsigned char*>(text.data()),
                    reinterpret_cast<const unsigned char*>(receipt.data()),
                    static_cast<int>(receipt.size()));
    text.pop_back();
    benchmark::DoNotOptimize(text);
  }
  state.SetBytesProcessed(state.iterations() * state.range(0));
}

constexpr std::int64_t kReceiptSizes[] = {1000,      10'000,     100'000,
                                          1'000'000, 10'000'000, 100'000'000};

[[maybe_unused]] const bool registered = [] {
  for (const std::int64_t size : kReceiptSizes) {
    benchmark::RegisterBenchmark("base64/own", base64Own)->Arg(size);
    benchmark::RegisterBenchmark("base64/OpenSSL", base64OpenSsl)->Arg(size);
  }
  return true;
}();

void decimalText(benchmark::State& state) {
  const volatile double value = state.range(0) == 0 ? 812.0 : 0.1 + 0.2;
  for (auto _ : state) {
    const qv_commons::DecimalText text(value);
    benchmark::DoNotOptimize(text);
  }
}
BENCHMARK(decimalText)->ArgName("digits17")->Arg(0)->Arg(1);

}  // namespace
