// MariaDB: statements in the words of either dialect are written in its own.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "drivers/dialects/columns.h"
#include "drivers/dialects/cutter.h"
#include "drivers/dialects/shape_cache.h"
#include "drivers/odbc/mariadb_settings.h"
#include "drivers/odbc/mariadb_shape.h"
#include "drivers/odbc/server.h"

namespace brunvik::odbc {

inline constexpr std::string_view mariadb_name = "MariaDB";

// What the engine says of its columns.
class MariaDbCatalogue final : public dialects::Catalogue {
 public:
  explicit MariaDbCatalogue(const Link& link) : link_(link) {}

 private:
  dialects::TableDescription read(std::string_view name) override;

  const Link& link_;
};

class MariaDb final : public Server {
 public:
  // Throws a RuntimeError where the server or its database has a setting that no connection can mend, and a Failure
  // where the server is part of a cluster and not ready.
  MariaDb(Link link, const Options& options);

  ado::Recordset execute(std::string_view statement) override;
  void begin() override;
  void commit() override;
  void roll_back() override;
  bool is_cut_off() override { return !is_ready(link_); }
  std::size_t cached_statements() const noexcept override { return shapes_.size(); }
  ado::Recordset tables() override;
  std::string_view name() const noexcept override { return mariadb_name; }

 private:
  void expect_not_too_long(std::string_view statement) const;
  void forget_tables();
  void let_others_begin();
  ado::Recordset execute_as_it_stands(std::string_view statement);
  MariaDbShape& shape_of(std::string_view statement);

  MariaDbCatalogue catalogue_;
  dialects::Cutter cutter_;
  dialects::ShapeCache<MariaDbShape> shapes_;
  std::vector<dialects::Literal> literals_;  // of a statement that was known
  std::optional<MariaDbShape> unkept_;
  Statement direct_;
  std::string seconds_to_wait_;
  std::size_t longest_statement_ = 0;
  bool in_transaction_ = false;
};

}  // namespace brunvik::odbc
