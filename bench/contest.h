// A contest: several ways to do the same work, timed in one run.
//
//     Contest<std::int64_t>("secondsToHms", "everyday", durations)
//         .enter("QV Commons", QV_TimeHelper::secondsToHms)
//         .enter("std::to_chars", byToChars)
//         .limit("constant text", constantText);
//
// Before anything is timed, each contender's answer to each input is compared with the first one's.
#pragma once

#include <benchmark/benchmark.h>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qv_commons::bench {

// Answers are compared as texts, whatever they come in.
inline std::string textOf(std::string text) {
  return text;
}
inline std::string textOf(std::int64_t number) {
  return std::to_string(number);
}
inline std::string textOf(const void* place) {
  return std::to_string(reinterpret_cast<std::uintptr_t>(place));
}
template <class Answer>
auto textOf(const Answer& answer) -> decltype(std::string(answer.view())) {
  return std::string(answer.view());
}

template <class Input>
class Contest {
 public:
  // The inputs are gone through one after the other, again and again. `parts`: of how many equal
  // parts the work for one input is made; what is reported is the time of one.
  Contest(std::string_view work, std::string_view inputsAre, std::vector<Input> inputs,
          std::int64_t parts = 1)
      : name_(std::string(work) + "/" + std::string(inputsAre) + "/"),
        inputs_(std::make_shared<const std::vector<Input>>(std::move(inputs))),
        parts_(parts) {}

  template <class Way>
  Contest& enter(std::string_view contender, Way way) {
    if (expected_.empty()) {
      for (const Input& input : *inputs_) expected_.push_back(textOf(way(input)));
    }
    for (std::size_t i = 0; i < inputs_->size(); ++i) {
      const std::string answer = textOf(way((*inputs_)[i]));
      if (answer == expected_[i]) continue;
      std::cerr << name_ << contender << ": \"" << answer << "\" in place of \"" << expected_[i]
                << "\"\n";
      std::exit(1);
    }
    return enterUnchecked(contender, way);
  }

  // One that answers in another notation.
  template <class Way>
  Contest& enterUnchecked(std::string_view contender, Way way) {
    const auto run = [inputs = inputs_, parts = parts_, way](benchmark::State& state) {
      auto input = inputs->begin();
      for (auto _ : state) {
        benchmark::DoNotOptimize(way(*input));
        if (++input == inputs->end()) input = inputs->begin();
      }
      state.SetItemsProcessed(state.iterations() * parts);
    };
    benchmark::RegisterBenchmark((name_ + std::string(contender)).c_str(), run);
    return *this;
  }

  // The least that any way would have to do.
  template <class Way>
  Contest& limit(std::string_view what, Way way) {
    return enterUnchecked("limit: " + std::string(what), way);
  }

 private:
  std::string name_;
  std::shared_ptr<const std::vector<Input>> inputs_;
  std::int64_t parts_;
  std::vector<std::string> expected_;
};

// Each registers the contests of its file.
void addDurationContests();
void addDurationReadingContests();
void addBase64Contests();
void addMailBodyContests();
void addDecimalTextContests();
void addTopViewControllerContests();
void addReturningUserContest();
void addUserDefaultsContests();
void addPaintedScreenContests();

// Brings up the screen of one of the last contests, prints the milliseconds and ends the process.
void showFirstScreen(std::string_view name);

}  // namespace qv_commons::bench
