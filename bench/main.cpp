#include <benchmark/benchmark.h>

#include <exception>
#include <iostream>

#include "bench/benchmarks.h"
#include "brunvik/ado/clock.h"

int main(int count, char** arguments) try {
  using namespace brunvik;
  ado::set_clock([] { return ado::parse_date("2024-03-05 10:00:00"); });
  ado::set_notice([](const ado::Notice& notice) { std::cerr << notice.title << ": " << notice.text << '\n'; });
  benchmark::Initialize(&count, arguments);
  if (benchmark::ReportUnrecognizedArguments(count, arguments)) return 2;
  bench::register_resident_size();
  bench::register_values();
  bench::register_library_share();
  bench::register_driver();
  bench::register_counts();
  bench::register_growth();
  bench::register_family_growth();
  bench::register_clients();
  bench::register_servers();
  bench::register_documents();
  benchmark::RunSpecifiedBenchmarks();
  return 0;
} catch (const std::exception& failure) {
  std::cerr << failure.what() << '\n';
  return 1;
}
