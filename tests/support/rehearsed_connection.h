// Two roads to one database, watched, on which one statement can be made to fail.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "brunvik/ado/connection.h"

namespace brunvik::test {

inline constexpr Long rehearsed_number = static_cast<Long>(0x80040E14);
inline constexpr std::string_view rehearsed_text = "rehearsed";

struct Rehearsal {
  // Every statement as it was handed over, its road in front: "bill|select ...".
  std::vector<std::string> statements;

  // The statement, counted from 1, that fails instead of being sent; 0 for none.
  std::size_t fails_at = 0;
};

class RehearsedConnection final : public ado::Connection {
 public:
  RehearsedConnection(ado::ConnectionReference driver, std::string_view road, std::shared_ptr<Rehearsal> rehearsal);

  ado::Recordset Execute(std::string_view CommandText) override;

  // Seen by their names, as if they were statements.
  void BeginTrans() override;
  void CommitTrans() override;
  void RollbackTrans() override;

  Long State() const noexcept override { return closed ? 0 : driver_->State(); }

  bool closed = false;

 private:
  void hand_over(std::string_view statement);

  ado::ConnectionReference driver_;
  std::string road_;
  std::shared_ptr<Rehearsal> rehearsal_;
};

}  // namespace brunvik::test
