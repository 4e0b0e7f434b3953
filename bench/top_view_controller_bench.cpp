// The top view controller at the end of a chain: the library beside a raw chase of the same
// pointers, which is the limit, and beside a walk that tells kinds by dynamic_cast. Time is for
// each controller.
//
//     build/release/bench/top_view_controller_bench --benchmark_enable_random_interleaving=true
//         --benchmark_repetitions=9 --benchmark_report_aggregates_only=true

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstddef>
#include <memory>
#include <numeric>
#include <random>
#include <vector>

#include "qv_commons/view_utils/view_controller_helper.h"

#include "tests/support_code/chain_link.h"

namespace {

using namespace qv_commons;

using Link = test::ChainLink;

// Kinds of which the chain has none.
class Navigation : public Link {};
class Tabs : public Link {};
class Alert : public Link {};

ViewController* byDynamicCast(ViewController* controller) {
  while (controller != nullptr) {
    NativeViewController* native = &controller->native();
    if (dynamic_cast<Navigation*>(native) != nullptr) {
      controller = native->childViewController();
      continue;
    }
    ViewController* next = nullptr;
    if (dynamic_cast<Tabs*>(native) != nullptr) next = native->childViewController();
    if (next == nullptr) next = native->presentedViewController();
    if (next == nullptr) {
      return dynamic_cast<Alert*>(native) != nullptr ? native->presentingViewController()
                                                     : controller;
    }
    controller = next;
  }
  return nullptr;
}

ViewController* byRawChase(ViewController* controller) {
  auto* link = static_cast<Link*>(&controller->native());
  while (link->next() != nullptr) link = link->next();
  return link->controller();
}

// The controllers lie in memory in the order of the chain, or in any order.
void chase(benchmark::State& state, ViewController* (*walk)(ViewController*), bool inOrder) {
  const auto count = static_cast<std::size_t>(state.range(0));
  std::vector<std::size_t> order(count);
  std::iota(order.begin(), order.end(), std::size_t{0});
  if (!inOrder) std::shuffle(order.begin(), order.end(), std::mt19937_64(1));
  const auto links = std::make_unique<Link[]>(count);
  for (std::size_t i = 0; i + 1 < count; ++i) links[order[i]].present(links[order[i + 1]]);

  for (auto _ : state) benchmark::DoNotOptimize(walk(links[order[0]].controller()));
  state.counters["per controller"] =
      benchmark::Counter(static_cast<double>(count), benchmark::Counter::kIsIterationInvariantRate |
                                                         benchmark::Counter::kInvert);
}

constexpr auto* kLibrary = QV_ViewControllerHelper::topViewController;
constexpr int kInCache = 10'000;
constexpr int kOutOfCache = 10'000'000;

BENCHMARK_CAPTURE(chase, in_order_library, kLibrary, true)->Arg(kInCache)->Arg(kOutOfCache);
BENCHMARK_CAPTURE(chase, in_order_dynamic_cast, byDynamicCast, true)
    ->Arg(kInCache)
    ->Arg(kOutOfCache);
BENCHMARK_CAPTURE(chase, in_order_limit_raw_chase, byRawChase, true)
    ->Arg(kInCache)
    ->Arg(kOutOfCache);
BENCHMARK_CAPTURE(chase, any_order_library, kLibrary, false)->Arg(kInCache)->Arg(kOutOfCache);
BENCHMARK_CAPTURE(chase, any_order_limit_raw_chase, byRawChase, false)
    ->Arg(kInCache)
    ->Arg(kOutOfCache);

}  // namespace
