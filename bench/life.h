// The life of a document: its verbs in the order of a day's work, which leaves the books as they were.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "brunvik/ado/connection.h"

namespace brunvik::bench {

struct Step {
  std::string verb;
  std::function<Long()> run;
  // What only brings the books back isn't timed.
  bool timed = true;
};

struct Life {
  // Makes the document as the host fills it, with all that the steps need.
  std::function<void()> begin;
  std::vector<Step> steps;
};

enum class Numbering { given, proposed };

// The goods, quantities and prices of the ten rows come from the seed. With a number given, it comes from the seed
// too; a proposed one is the first step of the life.
using MakeLife = Life (*)(const ado::ConnectionReference& connection, unsigned seed, Numbering numbering);

Life other_receipt(const ado::ConnectionReference& connection, unsigned seed, Numbering numbering);
Life purchase_receipt(const ado::ConnectionReference& connection, unsigned seed, Numbering numbering);
Life sales_issue(const ado::ConnectionReference& connection, unsigned seed, Numbering numbering);

// A payment of ten bills of the last days.
Life payment(const ado::ConnectionReference& connection, unsigned seed, Numbering numbering);

struct Document {
  std::string name;
  MakeLife life;
};

inline const Document documents[] = {
    {"other_receipt", other_receipt},
    {"purchase_receipt", purchase_receipt},
    {"sales_issue", sales_issue},
    {"payment", payment},
};

// Runs a step; a verb that doesn't end with 0 is the end of the benchmark.
void run(const Step& step);

}  // namespace brunvik::bench
