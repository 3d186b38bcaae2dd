// How the verbs of every family grow with the books: each in turns in books in which the tables of the family hold a
// thousand and a million bills. The next key of the ledger among as many rows of its journal.
#include <benchmark/benchmark.h>

#include <array>
#include <memory>
#include <stdexcept>
#include <string>

#include "bench/benchmarks.h"
#include "bench/books.h"
#include "bench/families.h"
#include "bench/family_books.h"
#include "bench/family_life.h"
#include "bench/times.h"
#include "brunvik/automation/automation.h"
#include "brunvik/foundation/Brunvik_Variable.h"
#include "brunvik/foundation/GetValue_Function.h"
#include "brunvik/stock/InitBrunvikVariable.h"

namespace brunvik::bench {

namespace {

constexpr int rounds = 50;
constexpr unsigned rounds_before = 8;

// The books of one family, of both sizes.
class Pair {
 public:
  explicit Pair(std::span<const Kind* const> kinds) {
    few_ = open("few.db", kinds, 1'000);
    many_ = open("many.db", kinds, 1'000'000);
  }

  // Calls work(connection, seed, times) once in each, the first of a round taking turns.
  template <class Work>
  void in_turns(unsigned seed, Times& few, Times& many, Work&& work) const {
    if (seed % 2 == 0) work(few_, seed, few);
    work(many_, seed, many);
    if (seed % 2 != 0) work(few_, seed, few);
  }

 private:
  ado::ConnectionReference open(std::string_view name, std::span<const Kind* const> kinds, int bills) const {
    const std::string path = folder_.file(name);
    lay_family_books(path, kinds, bills);
    return sqlite::open(path, {.synchronous = sqlite::Synchronous::normal});
  }

  Folder folder_;
  ado::ConnectionReference few_, many_;
};

void count(benchmark::State& state, const std::string& name, const std::string& step, const Times& few,
           const Times& many) {
  state.counters[name + "/" + step] = many.median(step) / few.median(step);
  state.counters[name + "/" + step + "_us"] = many.median(step);
}

void family_growth(benchmark::State& state, const Family& family) {
  std::vector<const Kind*> kinds;
  for (const FamilyDocument& document : family.documents) {
    kinds.push_back(automation::class_named(document.class_name).kind);
  }
  const Pair books(kinds);
  for (auto _ : state) {
    for (const FamilyDocument& document : family.documents) {
      const auto work = [&](const auto& connection, unsigned seed, Times& times) {
        start_session(connection);
        live(family_life(document, connection, seed, Numbering::proposed),
             [&](const Step& step) { times.time_step(step, [&] { run(step); }); });
      };
      Times ignored, few, many;
      for (unsigned seed = 0; seed < rounds_before; ++seed) books.in_turns(seed, ignored, ignored, work);
      for (unsigned seed = 0; seed < rounds; ++seed) books.in_turns(rounds_before + seed, few, many, work);
      const std::string name = with_underscores(document.name);
      count(state, name, "GetNewId", few, many);
      for (const Call& call : document.calls) {
        if (!call.step.empty()) count(state, name, std::string(call.step), few, many);
      }
    }
  }
}

void ledger_growth(benchmark::State& state) {
  const std::array<const Kind*, 1> kinds{&kind::clsZHJYXX};
  const Pair books(kinds);
  Times ignored, few, many;
  for (auto _ : state) {
    for (const auto& [name, dialect] : {std::pair{"sqlserver", sql_server_dialect}, {"access", access_dialect}}) {
      const std::string step = std::string("Get_UniqV ") + name;
      const auto work = [&, type = dialect](const auto& connection, unsigned, Times& times) {
        start_session(connection, type);
        times.time(step, [&] {
          if (Get_UniqV("ZHJYXX", "id") <= 1) throw std::runtime_error("the journal has no key");
        });
      };
      for (unsigned seed = 0; seed < rounds_before; ++seed) books.in_turns(seed, ignored, ignored, work);
      for (unsigned seed = 0; seed < rounds; ++seed) books.in_turns(seed, few, many, work);
      count(state, "ledger", step, few, many);
    }
  }
}

}  // namespace

void register_family_growth() {
  for (const Family& family : families()) {
    benchmark::RegisterBenchmark(("families/" + with_underscores(family.name)).c_str(),
                                 [&family](benchmark::State& state) { family_growth(state, family); })
        ->Iterations(1)
        ->Unit(benchmark::kMillisecond);
  }
  benchmark::RegisterBenchmark("families/ledger", ledger_growth)->Iterations(1)->Unit(benchmark::kMillisecond);
}

}  // namespace brunvik::bench
