// What a host can reach by name: documents, their rows, the session's start.
#pragma once

#include <cstddef>
#include <memory>
#include <new>
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

  std::size_t size() const noexcept { return Count(); }

  // The row at a position from 1 to Count; error 9 at any other.
  virtual PublicObject& at(std::size_t position) = 0;
  const PublicObject& at(std::size_t position) const { return const_cast<RowCollection&>(*this).at(position); }
  PublicObject& operator[](std::size_t position) { return at(position); }
  const PublicObject& operator[](std::size_t position) const { return at(position); }

  // A new row at the end. It stands where it is until the next row comes or goes.
  virtual PublicObject& add() = 0;

  // A new row that gets this position, from 1 to one behind the last; the row that had it and those behind it move up.
  // Error 9 at any other position, and the rows stay as they are. A row's own Rownum is the host's to keep.
  virtual PublicObject& insert(std::size_t position) = 0;

  // Takes the row at a position from 1 to Count away, and those behind it close up; error 9 at any other.
  virtual void remove(std::size_t position) = 0;

  // Room for this many rows.
  virtual void reserve(std::size_t count) = 0;

  virtual void clear() noexcept = 0;

  // Becomes a copy of rows of the same class; error 13 for rows of another class.
  virtual void assign(const RowCollection& other) = 0;
};

// Where rows are kept. A new one has what its initialisers say; a vector of its own would write zeros all over it
// before, which is more than half of what adding a row takes.
template <class Row>
struct RowMemory : std::allocator<Row> {
  template <class Other>
  struct rebind {
    using other = RowMemory<Other>;
  };

  RowMemory() = default;
  template <class Other>
  RowMemory(const RowMemory<Other>&) noexcept {}

  void construct(Row* place) { ::new (static_cast<void*>(place)) Row; }
};

template <class RowType>
class Collection final : public RowCollection {
 public:
  using Row = RowType;

  std::size_t Count() const noexcept override { return rows_.size(); }

  Row& at(std::size_t position) override { return rows_[index_of(position, rows_.size())]; }
  const Row& at(std::size_t position) const { return rows_[index_of(position, rows_.size())]; }
  Row& operator[](std::size_t position) { return at(position); }
  const Row& operator[](std::size_t position) const { return at(position); }

  Row& add() override { return rows_.emplace_back(); }
  void add(Row row) { rows_.push_back(std::move(row)); }
  Row& insert(std::size_t position) override { return *rows_.emplace(place_of(index_of(position, rows_.size() + 1))); }
  void remove(std::size_t position) override { rows_.erase(place_of(index_of(position, rows_.size()))); }
  void reserve(std::size_t count) override { rows_.reserve(count); }
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
  // Where a position from 1 to the last one stands in the vector.
  static std::size_t index_of(std::size_t position, std::size_t last) {
    if (position < 1 || position > last) ado::raise(ado::error::subscript);
    return position - 1;
  }
  auto place_of(std::size_t index) noexcept { return rows_.begin() + static_cast<std::ptrdiff_t>(index); }

  std::vector<Row, RowMemory<Row>> rows_;
};

}  // namespace brunvik
