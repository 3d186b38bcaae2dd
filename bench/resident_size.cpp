// The resident size of a process that loads, walks and saves bills, one object for all of them.
#include <benchmark/benchmark.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <stdexcept>

#include "bench/benchmarks.h"
#include "bench/books.h"
#include "brunvik/purchasing/purchase_receipt.h"

namespace brunvik::bench {

namespace {

double resident_megabytes() {
  double pages = 0;
  std::ifstream("/proc/self/statm") >> pages >> pages;
  return pages * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1 << 20);
}

// By a process of its own, so that this one doesn't grow by the filling.
void lay_books_elsewhere(const std::string& path, int bills) {
  const pid_t child = fork();
  if (child == 0) {
    lay_books(path, bills);
    _exit(0);
  }
  int status = -1;
  if (child < 0 || waitpid(child, &status, 0) < 0 || status != 0) throw std::runtime_error("the books are not filled");
}

void walk(clsPurchaseInBill& bill, std::string& first) {
  Long result = bill.LoadNext();
  // Behind the last bill the walk begins again.
  if (result == 0 && bill.ID.empty()) result = bill.LoadById(first);
  if (result == 0) result = bill.Save();
  if (result != 0 || bill.colBillItems.Count() == 0) throw std::runtime_error("the walk stopped at " + bill.ID);
}

void resident_size(benchmark::State& state) {
  const Folder folder;
  const std::string path = folder.file("books.db");
  lay_books_elsewhere(path, 50'000);
  const auto connection = sqlite::open(path, {.synchronous = sqlite::Synchronous::normal});
  start_session(connection);
  // Fills the database's cache of pages, which has a fixed size.
  connection->Execute("select max(remarks) from StockBillItems");
  connection->Execute("select max(remarks) from StockBill");
  clsPurchaseInBill bill;
  bill.ADOConn = connection;
  std::string first = "JHR";
  if (bill.GetNearId("", first, true) != 0 || bill.LoadById(first) != 0) throw std::runtime_error("no bill");
  for (auto _ : state) {
    int count = 0;
    for (; count < 1'000; ++count) walk(bill, first);
    const double early = resident_megabytes();
    for (; count < 10'000; ++count) walk(bill, first);
    const double late = resident_megabytes();
    state.counters["growth"] = late / early;
    state.counters["MB_after_1000"] = early;
    state.counters["MB_after_10000"] = late;
  }
}

}  // namespace

void register_resident_size() {
  benchmark::RegisterBenchmark("resident_size", resident_size)->Iterations(1)->Unit(benchmark::kSecond);
}

}  // namespace brunvik::bench
