#include "brunvik/foundation/column_statement.h"

#include <algorithm>
#include <utility>

#include "brunvik/ado/errors.h"
#include "brunvik/ado/names.h"
#include "brunvik/foundation/Declare_EnumType.h"
#include "brunvik/foundation/sql_text.h"
#include "brunvik/foundation/text.h"

namespace brunvik {

namespace {

// The text of one form: of each [a|b] only a or only b.
std::string form_of(std::string_view text, bool audited) {
  std::string form;
  for (auto open = text.find('['); open != std::string_view::npos; open = text.find('[')) {
    const auto close = text.find(']', open);
    const std::string_view choice = text.substr(open + 1, close - open - 1);
    const auto bar = choice.find('|');
    form += text.substr(0, open);
    if (audited) {
      form += choice.substr(0, bar);
    } else if (bar != std::string_view::npos) {
      form += choice.substr(bar + 1);
    }
    text.remove_prefix(close + 1);
  }
  return form.append(text);
}

// What it does, and to which table.
std::string beginning(std::string_view text) {
  return std::string(text.substr(0, std::min(text.find('('), text.find(" set "))));
}

std::string last_word(std::string_view text) {
  text = trimmed(text.substr(0, text.rfind('=')));
  return std::string(text.substr(text.find_last_of(" ,") + 1));
}

}  // namespace

ColumnStatement::ColumnStatement(const Members& members, const std::vector<ColumnSource>& sources,
                                 std::string_view text, Parts (*take_apart)(std::string_view)) try
    : audited_(resolved(take_apart(form_of(text, true)), members, sources, true)),
      other_(resolved(take_apart(form_of(text, false)), members, sources, false)) {
  for (const Place& place : other_.places) {
    if (place.kept_in) members_written_.push_back(place.kept_in);
  }
} catch (const ado::RuntimeError& error) {
  throw ado::RuntimeError(error.number(), beginning(text) + ": " + error.description(), std::string(text));
}

ColumnStatement::Form ColumnStatement::resolved(Parts parts, const Members& members,
                                                const std::vector<ColumnSource>& sources, bool audited) {
  Form form;
  form.tail = std::move(parts.tail);
  for (Value& value : parts.values) {
    Place place{std::move(value.text_before),
                std::move(value.column),
                ColumnSource::Kind::property,
                0,
                nullptr,
                nullptr,
                nullptr};
    bool listed = false;
    for (const ColumnSource& source : sources) {
      if (!ado::same_name(source.column, place.column)) continue;
      if (audited && source.kind == ColumnSource::Kind::constant_unless_audited) continue;
      listed = true;
      place.kind = source.kind;
      place.constant = source.value;
      place.work_out = source.work_out;
      if (source.kind == ColumnSource::Kind::property) {
        place.property = &members.named(source.property);
        place.kept_in = &members.written_to(place.column);
      }
    }
    if (!listed) place.property = place.kept_in = &members.written_to(place.column);
    form.places.push_back(std::move(place));
  }
  return form;
}

Statement ColumnStatement::text(const PublicObject& object, Long status, std::string_view number) const {
  return Statement([&](StatementWriter& statement) { write_to(statement, object, status, number); });
}

void ColumnStatement::write_to(StatementWriter& statement, const PublicObject& object, Long status,
                               std::string_view number) const {
  const Form& form = status == status::audited ? audited_ : other_;
  for (const Place& place : form.places) {
    statement.add(place.text_before);
    switch (place.kind) {
      case ColumnSource::Kind::property:
        place.property->write_to(statement, object);
        break;
      case ColumnSource::Kind::constant:
      case ColumnSource::Kind::constant_unless_audited:
        statement.add(std::int64_t{place.constant});
        break;
      case ColumnSource::Kind::argument:
        statement.add(std::int64_t{status});
        break;
      case ColumnSource::Kind::bill_number:
        SqlValue(number).write_to(statement);
        break;
      case ColumnSource::Kind::worked_out: {
        const ado::Value value = place.work_out(object);
        SqlValue(value).write_to(statement);
        break;
      }
    }
  }
  statement.add(form.tail);
}

Insert::Insert(const Members& members, const std::vector<ColumnSource>& sources, std::string_view text)
    : ColumnStatement(members, sources, text, [](std::string_view form) {
        Parts parts;
        std::string before(form);
        const auto open = form.find('(');
        std::string_view names = form.substr(open + 1, form.find(')') - open - 1);
        while (!names.empty()) {
          const auto comma = names.find(',');
          parts.values.push_back({std::exchange(before, ","), std::string(trimmed(names.substr(0, comma)))});
          names.remove_prefix(comma == std::string_view::npos ? names.size() : comma + 1);
        }
        parts.tail = ")";
        return parts;
      }) {}

Update::Update(const Members& members, const std::vector<ColumnSource>& sources, std::string_view text)
    : ColumnStatement(members, sources, text, [](std::string_view form) {
        Parts parts;
        const auto where = form.rfind(" where ");
        std::string_view settings = form.substr(0, where);
        std::string comma_before;
        while (!settings.empty()) {
          const auto comma = settings.find(',');
          const std::string_view setting = settings.substr(0, comma);
          parts.values.push_back({std::exchange(comma_before, ",") + std::string(setting), last_word(setting)});
          settings.remove_prefix(comma == std::string_view::npos ? settings.size() : comma + 1);
        }
        const std::string_view condition = form.substr(where);
        parts.values.push_back({std::string(condition), last_word(condition)});
        return parts;
      }) {}

}  // namespace brunvik
