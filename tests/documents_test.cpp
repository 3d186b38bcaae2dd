// The pages on the documents say of each class what the catalogue and its member table say, in both languages.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "brunvik/automation/automation.h"
#include "brunvik/billframe/catalogue.h"

namespace brunvik {
namespace {

// A page, and the words by which it says that there is nothing, or that the host gives it.
struct Page {
  const char* file;
  const char* none;
  const char* from_the_host;
  const char* between_tables;
};

constexpr std::array<Page, 2> pages{
    {{"documents.md", "none", "the host's", ", "}, {"documents.zh-CN.md", "无", "由宿主给", "、"}}};

constexpr const char* left_alone = "–";

// A row of a page, cell by cell.
struct Row {
  std::string document, tables, prefix, code, audited_by;
  // What the audit does to stock, cost, money and links.
  std::vector<std::string> effects;
};

std::vector<std::string> cells_of(const std::string& line) {
  constexpr std::string_view between = " | ";
  std::vector<std::string> cells;
  std::size_t start = 2;
  for (auto end = line.find(between, start); end != std::string::npos; end = line.find(between, start)) {
    cells.push_back(line.substr(start, end - start));
    start = end + between.size();
  }
  const auto last = line.rfind(" |");
  if (last != std::string::npos && last >= start) cells.push_back(line.substr(start, last - start));
  return cells;
}

std::string in_backticks(std::string_view name) { return "`" + std::string(name) + "`"; }

// By the name of the class. A row of another count of cells, or a second one of a class, is a failure.
std::map<std::string, Row> rows_of(const Page& page) {
  std::map<std::string, Row> rows;
  std::ifstream file(std::string(BRUNVIK_DOCUMENTS) + "/" + page.file);
  for (std::string line; std::getline(file, line);) {
    if (!line.starts_with("| `")) continue;
    const std::vector<std::string> cells = cells_of(line);
    if (cells.size() != 10) {
      ADD_FAILURE() << page.file << " has a row of " << cells.size() << " cells: " << line;
      continue;
    }
    const std::string name = cells[0].substr(1, cells[0].size() - 2);
    const Row row{cells[1], cells[2], cells[3], cells[4], cells[5], {cells.begin() + 6, cells.end()}};
    EXPECT_TRUE(rows.emplace(name, row).second) << page.file << " has two rows of " << name;
  }
  return rows;
}

std::vector<const Member*> verbs_of(const PublicObject& object) {
  std::vector<const Member*> verbs;
  for (const Member& member : object.members()) {
    if (member.kind() == MemberKind::verb) verbs.push_back(&member);
  }
  return verbs;
}

// Whether the host says with which letters the numbers of the class begin.
bool host_gives_prefix(const Kind& kind) {
  const auto object = automation::create(kind.class_name);
  const auto verbs = verbs_of(*object);
  return std::any_of(verbs.begin(), verbs.end(),
                     [](const Member* verb) { return verb->name() == "GetNewId" && verb->parameters().size() > 1; });
}

std::string audit_of(const PublicObject& object) {
  for (const Member* verb : verbs_of(object)) {
    if (verb->name().starts_with("Audit") || verb->name() == "UpdateAudited") return std::string(verb->name());
  }
  return {};
}

// What stands between backticks.
std::vector<std::string> names_in(const std::string& text) {
  std::vector<std::string> names;
  for (auto start = text.find('`'); start != std::string::npos;) {
    const auto end = text.find('`', start + 1);
    if (end == std::string::npos) break;
    names.push_back(text.substr(start + 1, end - start - 1));
    start = text.find('`', end + 1);
  }
  return names;
}

void take_names(const PublicObject& object, std::set<std::string, std::less<>>& names) {
  for (const Member& member : object.members()) {
    names.emplace(member.name());
    names.emplace(member.written_column());
    for (const Parameter& parameter : member.parameters()) names.emplace(parameter.name);
  }
}

TEST(Documents, Have_a_row_for_every_class_of_the_catalogue_and_for_no_other) {
  for (const Page& page : pages) {
    auto rows = rows_of(page);
    for (const Kind* kind : kind::all()) {
      EXPECT_EQ(rows.erase(std::string(kind->class_name)), 1U) << page.file << " has no row of " << kind->class_name;
    }
    for (const auto& [name, row] : rows) ADD_FAILURE() << page.file << ": the catalogue has no " << name;
  }
}

TEST(Documents, Name_document_tables_prefix_and_code_as_the_catalogue_has_them) {
  for (const Page& page : pages) {
    auto rows = rows_of(page);
    for (const Kind* kind : kind::all()) {
      SCOPED_TRACE(std::string(page.file) + " " + std::string(kind->class_name));
      const Row& row = rows[std::string(kind->class_name)];
      std::string tables;
      for (const std::string_view table : kind->tables) {
        tables += (tables.empty() ? "" : page.between_tables) + in_backticks(table);
      }
      EXPECT_EQ(row.tables, tables);
      const std::string without_prefix = host_gives_prefix(*kind) ? page.from_the_host : page.none;
      EXPECT_EQ(row.prefix, kind->prefix.empty() ? without_prefix : kind->prefix);
      EXPECT_EQ(row.code, kind->code ? std::to_string(*kind->code) : page.none);
    }
  }
  auto english = rows_of(pages[0]), chinese = rows_of(pages[1]);
  for (const Kind* kind : kind::all()) {
    const std::string name(kind->class_name);
    EXPECT_EQ(english[name].document, kind->document) << name;
    const bool is_chinese = !kind->name_in_data.empty() && (kind->name_in_data.front() & '\x80') != 0;
    if (!is_chinese) continue;
    EXPECT_TRUE(chinese[name].document.starts_with(kind->name_in_data)) << name;
  }
}

TEST(Documents, Name_the_verb_that_audits_a_class_and_have_words_for_what_it_does) {
  for (const Page& page : pages) {
    auto rows = rows_of(page);
    for (const automation::Class& each : automation::classes()) {
      if (each.kind == nullptr) continue;
      SCOPED_TRACE(std::string(page.file) + " " + std::string(each.name));
      const Row& row = rows[std::string(each.name)];
      const std::string audit = audit_of(*each.create());
      EXPECT_EQ(row.audited_by, audit.empty() ? page.none : in_backticks(audit));
      const bool has_words = std::any_of(row.effects.begin(), row.effects.end(),
                                         [](const std::string& effect) { return effect != left_alone; });
      EXPECT_TRUE(has_words || audit.empty());
      for (const std::string& effect : row.effects) EXPECT_NE(effect, "");
    }
  }
}

TEST(Documents, Name_members_columns_and_arguments_that_there_are) {
  std::set<std::string, std::less<>> known;
  for (const automation::Class& each : automation::classes()) take_names(*each.create(), known);
  for (const automation::RecordClass& each : automation::record_classes()) {
    take_names(automation::create_rows(each.name)->add(), known);
  }
  for (const Page& page : pages) {
    auto rows = rows_of(page);
    for (const Kind* kind : kind::all()) {
      for (const std::string& effect : rows[std::string(kind->class_name)].effects) {
        for (const std::string& name : names_in(effect)) {
          EXPECT_TRUE(known.contains(name)) << page.file << " " << kind->class_name << ": " << name;
        }
      }
    }
  }
}

TEST(Documents, Say_the_same_in_both_languages) {
  const auto english = rows_of(pages[0]);
  auto chinese = rows_of(pages[1]);
  for (const auto& [name, row] : english) {
    const Row& other = chinese[name];
    ASSERT_EQ(other.effects.size(), row.effects.size()) << name;
    for (std::size_t place = 0; place < row.effects.size(); ++place) {
      SCOPED_TRACE(name + ": " + row.effects[place]);
      EXPECT_EQ(other.effects[place] == left_alone, row.effects[place] == left_alone);
      auto names = names_in(row.effects[place]), other_names = names_in(other.effects[place]);
      std::sort(names.begin(), names.end());
      std::sort(other_names.begin(), other_names.end());
      EXPECT_EQ(other_names, names);
    }
  }
}

}  // namespace
}  // namespace brunvik
