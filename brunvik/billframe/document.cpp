#include "brunvik/billframe/document.h"

#include <utility>

#include "brunvik/ado/names.h"
#include "brunvik/foundation/error_trap.h"

namespace brunvik {

std::string header_text(std::string_view text, bool opening) {
  std::string result;
  for (auto open = text.find('<'); open != std::string_view::npos; open = text.find('<')) {
    const auto close = text.find('>', open);
    result += text.substr(0, open);
    if (!opening) result += text.substr(open + 1, close - open - 1);
    text.remove_prefix(close + 1);
  }
  return result.append(text);
}

std::vector<ColumnSource> header_sources(const Kind& kind) {
  return {constant("Type", kind.code.value()), constant("InOutFlag", kind.side), argument("Status")};
}

RowMembers members_read_back(const Insert& insert_row) {
  RowMembers read;
  for (const Member* member : insert_row.members_written()) {
    if (!ado::same_name(member->name(), "Cost")) read.push_back(member);
  }
  return read;
}

DocumentForm form_reading_back(DocumentStatements statements, Insert insert, Update update, Insert insert_row) {
  RowMembers read = members_read_back(insert_row);
  return {statements, std::move(insert), std::move(update), std::move(insert_row), std::move(read)};
}

Long Document::status_to_save(Saving saving) const { return saving == Saving::draft ? status::draft : status::saved; }

void Document::save_header(Saving saving) {
  if (number().empty()) throw Stop{result_without_id};
  const bool stored = !execute(sql(form().statements.select_header, number())).at_end();
  const Long status = status_to_save(saving);
  stored ? update_header(status) : insert_header(status);
}

void Document::insert_header(Long status) { execute(form().insert.text(*this, status)); }

void Document::update_header(Long status) {
  remove_rows();
  execute(form().update.text(*this, status));
}

void Document::save_rows() {
  for_each_row(rows(), [&](const PublicObject& row) { save_row(row); });
}

void Document::save_row(const PublicObject& row) { execute(form().insert_row.text(row, status::unsaved, number())); }

void Document::read_header() { read_properties(execute(sql(form().statements.select_header, number()))); }

void Document::read_rows() { take_rows(execute(sql(form().statements.select_rows, number())), finish_row()); }

void Document::take_rows(ado::Recordset set, FinishRow finish) {
  brunvik::read_rows<PublicObject>(rows(), std::move(set), form().row_members_read, finish);
}

void Document::remove_rows() { execute(sql(form().statements.delete_rows, number())); }

void Document::remove_header() { execute(sql(form().statements.delete_header, number())); }

void Document::find_last(std::string& last, std::string_view) {
  last = aggregated_id(
      execute(sql("select Max(Id) as Id from {raw} where type={}", kind().header_table(), kind().code.value())));
}

void Document::find_near(const std::string& current, std::string& near, bool next, std::string_view) {
  const auto table = kind().header_table();
  if (!kind().code) {
    near = aggregated_id(next ? execute(sql("select Min(Id) as Id from {raw} where id > '{raw}'", table, current))
                              : execute(sql("select Max(Id) as Id from {raw} where Id < '{raw}'", table, current)));
    return;
  }
  const Long type = *kind().code;
  near = aggregated_id(
      next ? execute(sql("select Min(Id) as Id from {raw} where id > {like} and type={}", table, current, type))
           : execute(sql("select Max(Id) as Id from {raw} where Id < {like} and type={}", table, current, type)));
}

}  // namespace brunvik
