// A value on its way into a statement: the procedure GetSqlVal, the road that statements take, and the same text
// appended by hand.
#include <benchmark/benchmark.h>

#include <array>
#include <charconv>
#include <cstring>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "bench/benchmarks.h"
#include "bench/counting.h"
#include "bench/times.h"
#include "brunvik/foundation/ConnOPT_Function.h"
#include "brunvik/foundation/sql_text.h"
#include "brunvik/foundation/statement_writer.h"

namespace brunvik::bench {

namespace {

constexpr unsigned value_count = 1'000;
constexpr int rounds = 2'000;

void append_by_hand(std::string& statement, const std::string& value) {
  const char* first = value.data();
  const char* last = first + value.size();
  while (first != last && *first == ' ') ++first;
  while (last != first && last[-1] == ' ') --last;
  statement += '\'';
  while (first != last) {
    const auto* const apostrophe =
        static_cast<const char*>(std::memchr(first, '\'', static_cast<std::size_t>(last - first)));
    if (!apostrophe) break;
    statement.append(first, static_cast<std::size_t>(apostrophe + 1 - first)) += '\'';
    first = apostrophe + 1;
  }
  statement.append(first, static_cast<std::size_t>(last - first)) += '\'';
}

void append_by_hand(std::string& statement, Long value) {
  std::array<char, 16> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value);
  statement.append(digits.data(), static_cast<std::size_t>(end.ptr - digits.data()));
}

void append_by_hand(std::string& statement, Single value) {
  std::array<char, 64> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed);
  statement.append(digits.data(), static_cast<std::size_t>(end.ptr - digits.data()));
}

void append_by_hand(std::string& statement, Money value) {
  std::array<char, 32> digits;
  char* place = digits.data();
  std::int64_t count = value.ten_thousandths();
  if (count < 0) {
    *place++ = '-';
    count = -count;
  }
  place = std::to_chars(place, digits.data() + digits.size(), count / Money::scale).ptr;
  if (std::int64_t fraction = count % Money::scale; fraction != 0) {
    *place++ = '.';
    for (std::int64_t unit = Money::scale / 10; fraction != 0; unit /= 10) {
      *place++ = static_cast<char>('0' + fraction / unit);
      fraction %= unit;
    }
  }
  statement.append(digits.data(), static_cast<std::size_t>(place - digits.data()));
}

std::string text_value(unsigned number) {
  static constexpr std::array<const char*, 5> texts{"G0017", "五金", "O'Neil 的货, 按合同", "2024-03-05 10:00:00", ""};
  return texts[number % texts.size()];
}
Long number_value(unsigned number) { return static_cast<Long>(number * 2'654'435'761U >> (number % 5 * 6)); }
Single single_value(unsigned number) { return static_cast<Single>(number % 100) + (number % 4 == 0 ? 0.5F : 0.0F); }
Money money_value(unsigned number) {
  return Money::from_ten_thousandths(static_cast<std::int64_t>(number * 2'654'435'761U >> 8) * 100);
}

// As a procedure gives it that returns a text of its own.
template <class Type>
[[gnu::noinline]] std::string text_by_hand(const Type& value) {
  std::string text;
  append_by_hand(text, value);
  return text;
}

// The contenders, each with the text that it makes of a thousand values.
template <class Type>
class Contest {
 public:
  explicit Contest(Type (*make)(unsigned)) {
    for (unsigned number = 0; number < value_count; ++number) {
      stored_.push_back(make(number));
      dynamic_.emplace_back(stored_.back());
    }
  }

  // Calls `round(name, work)` for each contender.
  template <class Round>
  void each(Round&& round) {
    round("hand", [this] {
      by_hand_.clear();
      for (const Type& value : stored_) append_by_hand(by_hand_, value);
      benchmark::DoNotOptimize(by_hand_.data());
    });
    round("returned", [this] {
      returned_.clear();
      for (const Type& value : stored_) returned_ += text_by_hand(value);
      benchmark::DoNotOptimize(returned_.data());
    });
    round("procedure", [this] {
      by_procedure_.clear();
      for (const Value& value : dynamic_) by_procedure_ += GetSqlVal(value);
      benchmark::DoNotOptimize(by_procedure_.data());
    });
    round("statement", [this] {
      StatementWriter statement;
      for (const Type& value : stored_) SqlValue(value).write_to(statement);
      by_statement_ = statement.text();
      benchmark::DoNotOptimize(by_statement_.data());
    });
  }

  void check() const {
    if (by_hand_ != by_procedure_ || by_hand_ != by_statement_) throw std::runtime_error("the texts differ");
  }

 private:
  std::vector<Type> stored_;
  std::vector<Value> dynamic_;
  std::string by_hand_, returned_, by_procedure_, by_statement_;
};

template <class Type>
void values(benchmark::State& state, Type (*make)(unsigned)) {
  Contest<Type> contest(make);
  Times times;
  for (auto _ : state) {
    contest.each([&](const char* contender, const auto& work) { times.time(contender, work); });
  }
  contest.check();
  state.counters["GetSqlVal"] = times.minimum("procedure") / times.minimum("hand");
  state.counters["GetSqlVal/returned"] = times.minimum("procedure") / times.minimum("returned");
  state.counters["in_statement"] = times.minimum("statement") / times.minimum("hand");
  state.counters["hand_ns"] = times.minimum("hand") * 1'000 / value_count;
}

// The same in instructions.
template <class Type>
void value_counts(benchmark::State& state, const std::string& name, Type (*make)(unsigned)) {
  if (!is_counting()) return state.SkipWithError("Instructions are counted in callgrind alone.");
  Contest<Type> contest(make);
  for (auto _ : state) {
    contest.each([](const char*, const auto& work) { work(); });
    start_counting();
    contest.each([&](const std::string& contender, const auto& work) {
      count(true, work);
      write_count(name + "/" + contender);
    });
    stop_counting();
  }
  contest.check();
}

template <class Type>
void register_value(const std::string& name, Type (*make)(unsigned)) {
  benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) { values(state, make); })
      ->Iterations(rounds)
      ->Unit(benchmark::kMicrosecond);
  benchmark::RegisterBenchmark(("counts/" + name).c_str(), [=](benchmark::State& state) {
    value_counts(state, name, make);
  })->Iterations(1);
}

}  // namespace

void register_values() {
  register_value("values/text", text_value);
  register_value("values/long", number_value);
  register_value("values/single", single_value);
  register_value("values/money", money_value);
}

}  // namespace brunvik::bench
