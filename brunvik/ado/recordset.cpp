#include "brunvik/ado/recordset.h"

#include <utility>

#include "brunvik/ado/connection.h"
#include "brunvik/ado/errors.h"
#include "brunvik/ado/names.h"

namespace brunvik::ado {

namespace {

// Equal for equal names; for other names seldom.
std::uint32_t mark_of(std::string_view name) noexcept {
  if (name.empty()) return 0;
  const auto letter = [&](std::size_t place) {
    return static_cast<std::uint32_t>(static_cast<unsigned char>(name[place]) | 0x20U);
  };
  return static_cast<std::uint32_t>(name.size()) ^ letter(0) << 8 ^ letter(name.size() / 2) << 16 ^
         letter(name.size() - 1) << 24;
}

}  // namespace

ColumnNames::ColumnNames(std::vector<std::string> names) : names_(std::move(names)) {
  for (const std::string& name : names_) marks_.push_back(mark_of(name));
}

std::size_t ColumnNames::find(std::string_view name) const noexcept {
  const std::uint32_t mark = mark_of(name);
  std::size_t place = 0;
  for (; place < marks_.size(); ++place) {
    if (marks_[place] == mark && same_name(names_[place], name)) break;
  }
  return place;
}

Recordset::Recordset(std::vector<std::string> names, std::vector<Value> cells)
    : Recordset(std::make_shared<const ColumnNames>(std::move(names)), std::move(cells)) {}

Recordset::Recordset(std::shared_ptr<const ColumnNames> names, std::vector<Value> cells)
    : open_(true), width_(names->list().size()), names_(std::move(names)), cells_(std::move(cells)) {}

void Recordset::Close() noexcept {
  open_ = false;
  width_ = 0;
  names_.reset();
  cells_.clear();
  record_ = 0;
}

void Recordset::set_active_connection(std::shared_ptr<Connection> connection) {
  if (connection && connection->State() == 0) raise(error::connection_closed);
  connection_ = std::move(connection);
}

void Recordset::Open(std::string_view source) {
  if (!connection_ || connection_->State() == 0) raise(error::connection_closed, source);
  auto connection = connection_;
  *this = send(*connection, source, Road::session);
  connection_ = std::move(connection);
}

bool Recordset::at_end() const {
  if (!open_) raise(error::object_closed);
  return record_ * width_ >= cells_.size();
}

void Recordset::MoveNext() {
  if (at_end()) raise(error::no_current_record);
  ++record_;
}

void Recordset::MoveFirst() {
  if (!open_) raise(error::object_closed);
  record_ = 0;
}

std::size_t Recordset::record_count() const noexcept { return width_ == 0 ? 0 : cells_.size() / width_; }

const std::vector<std::string>& Recordset::names() const noexcept {
  static const std::vector<std::string> none;
  return names_ ? names_->list() : none;
}

Column Recordset::column(std::string_view name) const {
  if (!open_) raise(error::object_closed);
  const std::size_t place = names_->find(name);
  if (place == width_) raise(error::no_such_field);
  return Column{place};
}

bool Recordset::has(std::string_view name) const noexcept { return open_ && names_->find(name) != width_; }

const Value& Recordset::value(Column column) const {
  if (at_end()) raise(error::no_current_record);
  return cells_[record_ * width_ + static_cast<std::size_t>(column)];
}

Recordset execute(const ConnectionReference& connection, std::string_view statement, Road road) {
  if (!connection) raise(error::object_not_set, statement);
  return send(*connection, statement, road);
}

}  // namespace brunvik::ado
