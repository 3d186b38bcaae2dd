// Small books for the tests of the drivers: a few columns of a few tables, laid in each engine's own words.
#pragma once

#include <span>

#include "brunvik/ado/connection.h"
#include "schema/ddl.h"
#include "schema/tables.h"

namespace brunvik::test {

std::span<const schema::Table> small_tables();

void lay(ado::Connection& books, schema::Engine engine, std::span<const schema::Table> tables);

}  // namespace brunvik::test
