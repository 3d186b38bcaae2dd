#include "brunvik/foundation/column_statement.h"

#include <algorithm>
#include <utility>

#include "brunvik/ado/errors.h"
#include "brunvik/ado/names.h"
#include "brunvik/foundation/Declare_EnumType.h"
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
} catch (const ado::RuntimeError& error) {
  throw ado::RuntimeError(error.number(), beginning(text) + ": " + error.description(), std::string(text));
}

ColumnStatement::Form ColumnStatement::resolved(const Parts& parts, const Members& members,
                                                const std::vector<ColumnSource>& sources, bool audited) {
  Form form;
  for (const Value& value : parts.values) {
    const ColumnSource* own_source = nullptr;
    for (const ColumnSource& source : sources) {
      const bool counts = !audited || source.kind != ColumnSource::Kind::constant_unless_audited;
      if (counts && ado::same_name(source.column, value.column)) own_source = &source;
    }
    form.text += value.text_before;
    form.places.push_back({value.text_before.size(), source_of(value.column, members, own_source)});
    if (!own_source || own_source->kind == ColumnSource::Kind::property) {
      form.members_written.push_back(&members.written_to(value.column));
    }
  }
  form.text += parts.tail;
  return form;
}

ColumnStatement::Source ColumnStatement::source_of(std::string_view column, const Members& members,
                                                   const ColumnSource* own_source) {
  if (!own_source) return source_of(members.written_to(column));
  switch (own_source->kind) {
    case ColumnSource::Kind::constant:
    case ColumnSource::Kind::constant_unless_audited:
      return Constant{own_source->value};
    case ColumnSource::Kind::argument:
      return Argument{};
    case ColumnSource::Kind::bill_number:
      return BillNumber{};
    case ColumnSource::Kind::worked_out:
      return own_source->work_out;
    case ColumnSource::Kind::property:
      break;
  }
  return source_of(members.named(own_source->property));
}

ColumnStatement::Source ColumnStatement::source_of(const Member& member) {
  return std::visit(
      [&](auto pointer) -> Source {
        if constexpr (std::is_constructible_v<Source, decltype(pointer)>) {
          return pointer;
        } else {
          return &member;
        }
      },
      member.place().pointer());
}

Statement ColumnStatement::text(const PublicObject& object, Long status, std::string_view number) const {
  return Statement([&](StatementWriter& statement) { write_to(statement, object, status, number); });
}

void ColumnStatement::write_to(StatementWriter& statement, const PublicObject& object, Long status,
                               std::string_view number) const {
  const Form& form = status == status::audited ? audited_ : other_;
  std::string_view text = form.text;
  for (const Place& place : form.places) {
    statement.add(text.substr(0, place.text_size));
    text.remove_prefix(place.text_size);
    std::visit(
        [&](const auto& source) {
          using Kind = std::remove_cvref_t<decltype(source)>;
          if constexpr (std::is_member_object_pointer_v<Kind>) {
            write_property(statement, object.*source);
          } else if constexpr (std::is_same_v<Kind, const Member*>) {
            source->write_to(statement, object);
          } else if constexpr (std::is_same_v<Kind, Constant>) {
            statement.add(std::int64_t{source.value});
          } else if constexpr (std::is_same_v<Kind, Argument>) {
            statement.add(std::int64_t{status});
          } else if constexpr (std::is_same_v<Kind, BillNumber>) {
            statement.add_quoted(number);
          } else {
            write_property(statement, source(object));
          }
        },
        place.source);
  }
  statement.add(text);
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
