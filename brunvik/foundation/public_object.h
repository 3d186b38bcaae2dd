// What a host can reach by name: documents, their rows, the session's start.
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "brunvik/ado/errors.h"
#include "brunvik/ado/value.h"

namespace brunvik {

class Members;

class PublicObject : public ado::Object {
 public:
  // The table of the public members of the object's class.
  virtual const Members& members() const = 0;
};

// The rows of a bill, whatever their class, with 1-based positions.
class RowCollection : public ado::Object {
 public:
  virtual std::size_t Count() const noexcept = 0;

  // The row at a position from 1 to Count; error 9 at any other.
  virtual PublicObject& at(std::size_t position) = 0;
  const PublicObject& at(std::size_t position) const { return const_cast<RowCollection&>(*this).at(position); }

  // A new row at the end. It stands where it is until the next row comes or goes.
  virtual PublicObject& add() = 0;

  // Takes the last row away; there must be one.
  virtual void remove_last() noexcept = 0;

  // Room for this many rows.
  virtual void reserve(std::size_t count) = 0;

  virtual void clear() noexcept = 0;

  // Becomes a copy of rows of the same class; error 13 for rows of another class.
  virtual void assign(const RowCollection& other) = 0;
};

template <class RowType>
class Collection final : public RowCollection {
 public:
  using Row = RowType;

  std::size_t Count() const noexcept override { return rows_.size(); }

  Row& at(std::size_t position) override {
    if (position < 1 || position > rows_.size()) ado::raise(ado::error::subscript);
    return rows_[position - 1];
  }

  Row& add() override { return rows_.emplace_back(); }
  void add(Row row) { rows_.push_back(std::move(row)); }
  void reserve(std::size_t count) override { rows_.reserve(count); }
  void remove_last() noexcept override { rows_.pop_back(); }
  void clear() noexcept override { rows_.clear(); }

  void assign(const RowCollection& other) override {
    const auto* rows = dynamic_cast<const Collection*>(&other);
    if (!rows) ado::raise(ado::error::type_mismatch);
    *this = *rows;
  }

  auto begin() noexcept { return rows_.begin(); }
  auto end() noexcept { return rows_.end(); }
  auto begin() const noexcept { return rows_.begin(); }
  auto end() const noexcept { return rows_.end(); }

 private:
  std::vector<Row> rows_;
};

}  // namespace brunvik
