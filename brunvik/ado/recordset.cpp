#include "brunvik/ado/recordset.h"

#include <algorithm>
#include <utility>

#include "brunvik/ado/connection.h"
#include "brunvik/ado/errors.h"
#include "brunvik/ado/names.h"

namespace brunvik::ado {

Recordset::Recordset(std::vector<std::string> names, std::vector<Value> cells)
    : open_(true), names_(std::move(names)), cells_(std::move(cells)) {}

void Recordset::Close() noexcept {
  open_ = false;
  names_.clear();
  cells_.clear();
  record_ = 0;
}

void Recordset::set_active_connection(std::shared_ptr<Connection> connection) {
  if (connection && connection->State() == 0) raise(error::connection_closed);
  connection_ = std::move(connection);
}

void Recordset::Open(std::string_view source) {
  if (!connection_ || connection_->State() == 0) raise(error::connection_closed);
  auto connection = connection_;
  *this = connection->Execute(source);
  connection_ = std::move(connection);
}

bool Recordset::at_end() const {
  if (!open_) raise(error::object_closed);
  return record_ >= record_count();
}

void Recordset::MoveNext() {
  if (at_end()) raise(error::no_current_record);
  ++record_;
}

void Recordset::MoveFirst() {
  if (!open_) raise(error::object_closed);
  record_ = 0;
}

std::size_t Recordset::record_count() const noexcept { return names_.empty() ? 0 : cells_.size() / names_.size(); }

Column Recordset::column(std::string_view name) const {
  if (!open_) raise(error::object_closed);
  for (std::size_t place = 0; place < names_.size(); ++place) {
    if (same_name(names_[place], name)) return Column{place};
  }
  raise(error::no_such_field);
}

bool Recordset::has(std::string_view name) const noexcept {
  return std::any_of(names_.begin(), names_.end(), [&](const std::string& own) { return same_name(own, name); });
}

const Value& Recordset::value(Column column) const {
  if (at_end()) raise(error::no_current_record);
  return cells_[record_ * names_.size() + static_cast<std::size_t>(column)];
}

Recordset execute(const ConnectionReference& connection, std::string_view statement) {
  if (!connection) raise(error::object_not_set);
  return connection->Execute(statement);
}

}  // namespace brunvik::ado
