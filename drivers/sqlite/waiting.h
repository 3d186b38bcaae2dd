// What a statement does while another connection holds the database: short sleeps of random length, so that of many
// writers none is left behind for long, until its patience ends.
#pragma once

#include <chrono>
#include <random>

struct sqlite3;

namespace brunvik::sqlite {

class Waiting {
 public:
  explicit Waiting(std::chrono::milliseconds patience) : patience_(patience), random_(std::random_device{}()) {}

  // The database keeps a pointer to this object until it is closed.
  void attach(sqlite3* database);

 private:
  static int wait(void* self, int times) noexcept;

  std::chrono::milliseconds patience_;
  std::chrono::steady_clock::time_point end_;
  std::minstd_rand random_;
};

}  // namespace brunvik::sqlite
