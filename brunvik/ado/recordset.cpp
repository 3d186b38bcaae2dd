#include "brunvik/ado/recordset.h"

#include <bit>
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
  slots_.resize(std::bit_ceil(2 * names_.size() + 1));
  for (std::size_t place = 0; place < names_.size(); ++place) {
    const std::uint32_t mark = mark_of(names_[place]);
    std::size_t slot = first_slot(mark);
    while (slots_[slot].place != 0) slot = (slot + 1) & (slots_.size() - 1);
    slots_[slot] = {mark, static_cast<std::uint32_t>(place + 1)};
  }
}

std::size_t ColumnNames::first_slot(std::uint32_t mark) const noexcept {
  return (mark * 0x9e3779b1U >> 16) & (slots_.size() - 1);
}

// A goods record of 28 columns is read by name for each row that moves: name by name through the list that would be
// three in ten of all that the library does in an audit.
std::size_t ColumnNames::find(std::string_view name) const noexcept {
  const std::uint32_t mark = mark_of(name);
  for (std::size_t slot = first_slot(mark); slots_[slot].place != 0; slot = (slot + 1) & (slots_.size() - 1)) {
    const std::size_t place = slots_[slot].place - 1;
    if (slots_[slot].mark == mark && same_name(names_[place], name)) return place;
  }
  return names_.size();
}

Recordset::Recordset(std::vector<std::string> names, std::vector<Value> cells)
    : Recordset(std::make_shared<const ColumnNames>(std::move(names)), std::move(cells)) {}

Recordset::Recordset(std::shared_ptr<const ColumnNames> names, std::vector<Value> cells)
    : open_(true), width_(names->list().size()), names_(std::move(names)), cells_(std::move(cells)) {}

void Recordset::Close() noexcept {
  if (!open_) return;
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
  Recordset opened = send(*connection_, source, Road::session);
  open_ = opened.open_;
  width_ = opened.width_;
  names_ = std::move(opened.names_);
  cells_ = std::move(opened.cells_);
  record_ = 0;
}

void Recordset::raise_closed() { raise(error::object_closed); }
void Recordset::raise_no_record() { raise(error::no_current_record); }

void Recordset::MoveNext() {
  if (at_end()) raise_no_record();
  record_ += width_;
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

Recordset execute(const ConnectionReference& connection, std::string_view statement, Road road) {
  if (!connection) raise(error::object_not_set, statement);
  return send(*connection, statement, road);
}

}  // namespace brunvik::ado
