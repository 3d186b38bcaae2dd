// An open SQLite database with all that the driver keeps for it.
#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "brunvik/ado/recordset.h"
#include "drivers/dialects/cutter.h"
#include "drivers/dialects/host_transaction.h"
#include "drivers/dialects/shape_cache.h"
#include "drivers/sqlite/catalogue.h"
#include "drivers/sqlite/connection.h"
#include "drivers/sqlite/dialects.h"
#include "drivers/sqlite/shape.h"
#include "drivers/sqlite/waiting.h"

namespace brunvik::sqlite {

class Engine {
 public:
  Engine(const std::string& path, const Options& options);
  Engine(const Engine&) = delete;
  Engine& operator=(const Engine&) = delete;

  ado::Recordset execute(std::string_view text);
  void begin();
  void commit();
  void roll_back();
  std::size_t cached_statements() const noexcept { return shapes_.size(); }
  std::size_t held_bytes() const noexcept { return cutter_.held_bytes() + shapes_.held_bytes(); }

 private:
  struct Close {
    void operator()(sqlite3* database) const noexcept { sqlite3_close_v2(database); }
  };

  // Refuses the database of another program.
  void expect_known_tables(const std::string& path, const Options& options);

  ado::Recordset carry_out(std::string_view text);

  // Whether a transaction is open, by the engine's own account: it knows those begun as text, too, and the ones that it
  // has rolled back itself.
  bool in_transaction() const noexcept { return sqlite3_get_autocommit(database_.get()) == 0; }

  // After a statement that failed, in the catch clause.
  void see_what_failed() noexcept;

  // A statement that doesn't work on rows goes to the engine as it stands.
  ado::Recordset execute_as_it_stands(std::string_view text);

  Shape& shape_of(std::string_view text);
  Shape prepare_shape(std::string_view text);

  // Counts the changes of the tables, by whatever connection.
  std::int64_t schema_version(std::string_view text);

  Waiting waiting_;
  std::unique_ptr<sqlite3, Close> database_;
  Catalogue catalogue_;
  std::int64_t catalogue_version_ = 0;
  Cutter cutter_;
  ShapeCache<Shape> shapes_;
  std::vector<Literal> literals_;  // of a statement that was known
  std::optional<Shape> unkept_;
  Statement schema_version_;
  dialects::HostTransaction transaction_;
};

}  // namespace brunvik::sqlite
