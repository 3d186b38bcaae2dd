#include "drivers/sqlite/waiting.h"

#include <sqlite3.h>

#include <thread>

namespace brunvik::sqlite {

void Waiting::attach(sqlite3* database) { sqlite3_busy_handler(database, wait, this); }

int Waiting::wait(void* self, int times) noexcept {
  constexpr int give_up = 0;
  constexpr int try_again = 1;
  auto& waiting = *static_cast<Waiting*>(self);
  const auto now = std::chrono::steady_clock::now();
  if (times == 0) waiting.end_ = now + waiting.patience_;
  if (now >= waiting.end_) return give_up;
  std::uniform_int_distribution<int> microseconds(50, 1'000);
  std::this_thread::sleep_for(std::chrono::microseconds(microseconds(waiting.random_)));
  return try_again;
}

}  // namespace brunvik::sqlite
