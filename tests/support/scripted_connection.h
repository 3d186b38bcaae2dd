// A connection without a database: it remembers every statement, and answers with what the test has prepared.
//
//   auto connection = std::make_shared<ScriptedConnection>();
//   connection->answer("select max(", table({"Id"}, {{"QTR24030500007"}}));
//   connection->fail("update goods", 5, "rehearsed");
#pragma once

#include <deque>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "brunvik/ado/connection.h"
#include "brunvik/ado/errors.h"

namespace brunvik::test {

// An open set of these records.
ado::Recordset table(std::vector<std::string> names, std::initializer_list<std::vector<ado::Value>> records = {});

class ScriptedConnection final : public ado::Connection {
 public:
  // The next statement that holds this text is answered so; an answer is used once, the oldest that fits first.
  void answer(std::string_view text, ado::Recordset set);
  void fail(std::string_view text, Long number, std::string_view description);

  // Without an answer of its own a select finds no record, and any other statement gives a closed set.
  ado::Recordset Execute(std::string_view CommandText) override;

  // Remembered by their names, and answered as statements are.
  void BeginTrans() override { Execute("BeginTrans"); }
  void CommitTrans() override { Execute("CommitTrans"); }
  void RollbackTrans() override { Execute("RollbackTrans"); }

  Long State() const noexcept override { return closed ? 0 : 1; }

  bool closed = false;
  std::vector<std::string> statements;

 private:
  struct Answer {
    std::string text;
    ado::Recordset set;
    Long failure = 0;
    std::string description;
  };

  std::deque<Answer> answers_;
};

}  // namespace brunvik::test
