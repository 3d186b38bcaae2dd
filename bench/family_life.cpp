#include "bench/family_life.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <iterator>
#include <memory>

#include "bench/books.h"
#include "bench/family_books.h"
#include "brunvik/automation/automation.h"

namespace brunvik::bench {

namespace {

constexpr unsigned row_count = 10;

// A document while it lives, with all that its steps need at hand.
struct Living {
  std::shared_ptr<PublicObject> object;
  std::string id;
  std::vector<std::vector<Value>> arguments;
};

std::string filled_in(std::string_view value, const std::string& id, unsigned seed = 0, unsigned row = 0) {
  std::array<char, 8> goods{};
  const unsigned scattered = (seed * 97 + row) * 2'654'435'761U;
  std::snprintf(goods.data(), goods.size(), "G%04u", (scattered >> 8) % goods_count);
  std::string text(value);
  const auto replace = [&](std::string_view mark, const std::string& by) {
    if (const auto place = text.find(mark); place != std::string::npos) text.replace(place, mark.size(), by);
  };
  replace("$ID", id);
  replace("$ROW", std::to_string(row));
  replace("$GOODS", goods.data());
  return text;
}

std::string given_number(const FamilyDocument& document, unsigned seed) {
  std::array<char, 16> running{};
  std::snprintf(running.data(), running.size(), "2403059%04u", seed % 10'000);
  return std::string(automation::class_named(document.class_name).kind->prefix) + running.data();
}

Long outcome(const Value& result) { return result.get_if<Long>() ? result.as_long() : 0; }

Long propose(const FamilyDocument& document, Living& living) {
  // A plan gives its number as the result.
  std::vector<Value> arguments;
  const bool is_result = document.class_name.ends_with("PlanBill");
  if (!is_result) arguments.emplace_back("");
  const Value result = automation::call(*living.object, "GetNewId", arguments);
  living.id = (is_result ? result : arguments.front()).as_text();
  return is_result ? 0 : outcome(result);
}

void fill(const FamilyDocument& document, Living& living, unsigned seed) {
  PublicObject& object = *living.object;
  automation::put(object, document.number, living.id);
  for (const Rows& rows : document.rows) {
    for (unsigned row = 1; row <= row_count; ++row) {
      PublicObject& added = automation::rows(object, rows.collection).add();
      for (const auto& [name, value] : rows.properties) {
        automation::put(added, name, filled_in(value, living.id, seed, row));
      }
    }
  }
  living.arguments.clear();
  for (const Call& call : document.calls) {
    auto& arguments = living.arguments.emplace_back(call.arguments);
    std::ranges::replace(arguments, Value("$ID"), Value(living.id));
  }
}

}  // namespace

Life family_life(const FamilyDocument& document, const ado::ConnectionReference& connection, unsigned seed,
                 Numbering numbering) {
  const auto living = std::make_shared<Living>();
  Life life;
  life.begin = [=, &document] {
    living->object = automation::create(document.class_name);
    automation::put(*living->object, "ADOConn", ado::ObjectReference(connection));
    for (const auto& [name, value] : document.properties) {
      automation::put(*living->object, name, std::string(value));
    }
    if (numbering == Numbering::proposed) return;
    living->id = given_number(document, seed);
    fill(document, *living, seed);
  };
  if (numbering == Numbering::proposed) {
    life.steps.push_back({"GetNewId", [=, &document] { return propose(document, *living); }});
    life.steps.push_back({"",
                          [=, &document] {
                            fill(document, *living, seed);
                            return 0;
                          },
                          false});
  }
  const Members& members = automation::create(document.class_name)->members();
  for (std::size_t place = 0; place < document.calls.size(); ++place) {
    const Call& call = document.calls[place];
    const Member& verb = members.named(call.verb);
    life.steps.push_back({std::string(call.step),
                          [=, &verb] { return outcome(verb.call(*living->object, living->arguments[place])); },
                          !call.step.empty()});
  }
  if (!document.undone_by.empty()) {
    life.end = [=, &document] { connection->Execute(filled_in(document.undone_by, living->id)); };
  }
  return life;
}

const std::vector<Document>& replayed_documents() {
  static const std::vector<Document> all = [] {
    std::vector<Document> found(std::begin(documents), std::end(documents));
    for (const Family& family : families()) {
      if (!family.replayed) continue;
      for (const FamilyDocument& document : family.documents) {
        found.push_back({with_underscores(document.name),
                         [&document](const ado::ConnectionReference& connection, unsigned seed, Numbering numbering) {
                           return family_life(document, connection, seed, numbering);
                         },
                         {automation::class_named(document.class_name).kind}});
      }
    }
    return found;
  }();
  return all;
}

void lay_books_for(const Document& document, const std::string& path) {
  constexpr int bills = 1'000;
  if (document.kinds.empty()) return lay_books(path, bills);
  lay_family_books(path, document.kinds, bills);
}

std::string with_underscores(std::string_view name) {
  std::string text(name);
  std::ranges::replace(text, ' ', '_');
  return text;
}

}  // namespace brunvik::bench
