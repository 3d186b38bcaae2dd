// Books in which the tables of some kinds are full.
#pragma once

#include <span>
#include <string>

#include "brunvik/billframe/catalogue.h"

namespace brunvik::bench {

// Lays books in a new file, with so many bills in each of the kinds' headers: 365 a day, the day of the clock among
// them, of all kinds of the table in turn day by day, and two rows of each in every table of rows. StockBill is filled
// as by lay_books, with a thousand bills where it is no table of the kinds.
void lay_family_books(const std::string& path, std::span<const Kind* const> kinds, int bills);

}  // namespace brunvik::bench
