// The top view controller at the end of a chain, by the time for each controller on the way.
#include <algorithm>
#include <numeric>
#include <random>

#include "qv_commons/view_utils/view_controller_helper.h"

#include "bench/contest.h"
#include "tests/support_code/chain_link.h"

namespace qv_commons::bench {
namespace {

using Link = test::ChainLink;

// Kinds of which the chain has none.
class Navigation : public Link {};
class Tabs : public Link {};
class Alert : public Link {};

using Start = Link*;

ViewController* byLibrary(Start start) {
  return QV_ViewControllerHelper::topViewController(start);
}

ViewController* byDynamicCast(Start start) {
  ViewController* controller = start;
  while (controller != nullptr) {
    if (dynamic_cast<Navigation*>(controller) != nullptr) {
      controller = controller->childViewController();
      continue;
    }
    ViewController* next = nullptr;
    if (dynamic_cast<Tabs*>(controller) != nullptr) next = controller->childViewController();
    if (next == nullptr) next = controller->presentedViewController();
    if (next == nullptr) {
      return dynamic_cast<Alert*>(controller) != nullptr ? controller->presentingViewController()
                                                         : controller;
    }
    controller = next;
  }
  return nullptr;
}

ViewController* byRawChase(Start start) {
  Link* link = start;
  while (link->next() != nullptr) link = link->next();
  return link;
}

// A chain whose controllers lie in memory in its order, or in any order. Both stay for the whole
// run, because the contenders take turns.
Start makeChain(std::size_t count, bool inOrder) {
  static std::vector<std::unique_ptr<Link[]>> chains;
  const auto& links = chains.emplace_back(std::make_unique<Link[]>(count));
  std::vector<std::uint32_t> order(count);
  std::iota(order.begin(), order.end(), 0U);
  if (!inOrder) std::shuffle(order.begin(), order.end(), std::mt19937_64(1));
  for (std::size_t i = 0; i + 1 < count; ++i) links[order[i]].present(links[order[i + 1]]);
  return &links[order.front()];
}

}  // namespace

void addTopViewControllerContests() {
  struct Chain {
    const char* name;
    std::size_t count;
    bool inOrder;
  };
  for (const auto& [name, count, inOrder] :
       {Chain{"10,000 side by side", 10'000, true}, Chain{"10,000 in any order", 10'000, false},
        Chain{"4 million side by side", 4'000'000, true},
        Chain{"4 million in any order", 4'000'000, false}}) {
    Contest<Start>("top view controller", name, {makeChain(count, inOrder)},
                   static_cast<std::int64_t>(count))
        .enter("QV Commons", byLibrary)
        .enter("by dynamic_cast", byDynamicCast)
        .limit("raw pointers", byRawChase);
  }
}

}  // namespace qv_commons::bench
