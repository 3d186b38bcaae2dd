// A connection that keeps the text of every statement that goes through it.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "bench/life.h"
#include "brunvik/ado/connection.h"

namespace brunvik::bench {

class Recording final : public ado::Connection {
 public:
  explicit Recording(ado::ConnectionReference connection) : connection_(std::move(connection)) {}

  ado::Recordset Execute(std::string_view CommandText) override {
    texts_.emplace_back(CommandText);
    return connection_->Execute(CommandText);
  }
  void BeginTrans() override { connection_->BeginTrans(); }
  void CommitTrans() override { connection_->CommitTrans(); }
  void RollbackTrans() override { connection_->RollbackTrans(); }
  Long State() const noexcept override { return connection_->State(); }

  std::vector<std::string> take() { return std::exchange(texts_, {}); }

 private:
  ado::ConnectionReference connection_;
  std::vector<std::string> texts_;
};

// The statements of one step of a life, in the order in which they were sent.
struct RecordedStep {
  std::string verb;
  std::vector<std::string> texts;
  bool timed = true;

  friend bool operator==(const RecordedStep&, const RecordedStep&) = default;
};

// Where the life has an end of its own, that is the last step.
using RecordedLife = std::vector<RecordedStep>;

// Lives the life of a document once on the connection; the session is the connection's afterwards.
RecordedLife record(const ado::ConnectionReference& connection, const MakeLife& make, unsigned seed);

// The lives of the first seeds, as they are once each has been lived: the first enters the stock of goods in a new
// warehouse or state, and the later ones find it. Throws std::runtime_error where they still differ from time to time,
// since a replay would then do other work than the verbs.
std::vector<RecordedLife> record_lives(const ado::ConnectionReference& connection, const MakeLife& make,
                                       unsigned lives);

}  // namespace brunvik::bench
