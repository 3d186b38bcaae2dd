// The life of a document: its verbs in the order of a day's work, which leaves the books as they were.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "brunvik/ado/connection.h"
#include "brunvik/billframe/catalogue.h"

namespace brunvik::bench {

struct Step {
  std::string verb;
  std::function<Long()> run;
  // What only gets the document ready isn't timed.
  bool timed = true;
};

struct Life {
  // Makes the document as the host fills it, with all that the steps need.
  std::function<void()> begin;
  std::vector<Step> steps;
  // Brings back what the steps have left in the books; unset where they leave nothing.
  std::function<void()> end = nullptr;
};

enum class Numbering { given, proposed };

// The goods, quantities and prices of the ten rows come from the seed. With a number given, it comes from the seed
// too; a proposed one is the first step of the life, in which a sales issue looks for neighbours in its series, too.
using MakeLife = std::function<Life(const ado::ConnectionReference& connection, unsigned seed, Numbering numbering)>;

Life other_receipt(const ado::ConnectionReference& connection, unsigned seed, Numbering numbering);
Life purchase_receipt(const ado::ConnectionReference& connection, unsigned seed, Numbering numbering);
Life sales_issue(const ado::ConnectionReference& connection, unsigned seed, Numbering numbering);

// A payment of ten bills of the last days.
Life payment(const ado::ConnectionReference& connection, unsigned seed, Numbering numbering);

struct Document {
  std::string name;
  MakeLife life;
  // The kinds whose tables its books have filled beside the six kinds of lay_books.
  std::vector<const Kind*> kinds = {};
};

inline const Document documents[] = {
    {"other_receipt", other_receipt},
    {"purchase_receipt", purchase_receipt},
    {"sales_issue", sales_issue},
    {"payment", payment},
};

// Runs a step; a verb that doesn't end with 0 is the end of the benchmark.
void run(const Step& step);

// Lives a whole life; each step is done by `work(step)`.
template <class Work>
void live(const Life& life, Work&& work) {
  life.begin();
  for (const Step& step : life.steps) work(step);
  if (life.end) life.end();
}

}  // namespace brunvik::bench
