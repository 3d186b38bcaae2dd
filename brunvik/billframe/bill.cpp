#include "brunvik/billframe/bill.h"

#include "brunvik/billframe/bill_number.h"
#include "brunvik/foundation/error_trap.h"
#include "brunvik/foundation/member_columns.h"

namespace brunvik {

void Bill::save(Saving saving) {
  save_header(saving);
  save_rows();
}

Long Bill::Save() noexcept {
  return trap([&] { save(Saving::bill); });
}

Long Bill::SaveAsDraft() noexcept {
  return trap([&] { save(Saving::draft); });
}

Long Bill::GetBill() noexcept {
  return trap([&] {
    read_header();
    read_rows();
  });
}

Long Bill::Delete() noexcept {
  return trap([&] {
    remove_rows();
    remove_header();
  });
}

Long Bill::LoadById(const std::string& BID) noexcept {
  return trap([&] {
    number() = BID;
    read_header();
    read_rows();
  });
}

Long Bill::GetLastId(std::string& LastId) noexcept { return last_of_series(LastId, {}); }
Long Bill::LoadLast() noexcept { return load_last_of_series({}); }

Long Bill::GetNearId(const std::string& CurBillID, std::string& NearBillID, bool NextPreviousId) noexcept {
  return neighbour_in_series(CurBillID, NearBillID, NextPreviousId, {});
}

Long Bill::GetPreviousId(const std::string& CurBillID, std::string& PreviousId) noexcept {
  return neighbour_in_series(CurBillID, PreviousId, false, {});
}

Long Bill::GetNextId(const std::string& CurBillID, std::string& NextId) noexcept {
  return neighbour_in_series(CurBillID, NextId, true, {});
}

Long Bill::LoadNext() noexcept { return load_neighbour_in_series(true, {}); }
Long Bill::LoadPreviou() noexcept { return load_neighbour_in_series(false, {}); }
Long Bill::GetNewId(std::string& BID) noexcept { return propose_number(BID, kind().prefix); }

Long Bill::last_of_series(std::string& LastId, std::string_view series) noexcept {
  return trap([&] {
    LastId.clear();
    find_last(LastId, series);
  });
}

Long Bill::load_last_of_series(std::string_view series) noexcept {
  return trap([&] {
    stop_unless_done(last_of_series(number(), series));
    if (number().empty()) return;
    read_header();
    read_rows();
  });
}

Long Bill::neighbour_in_series(const std::string& CurBillID, std::string& NearBillID, bool next,
                               std::string_view series) noexcept {
  return trap([&] { find_near(CurBillID, NearBillID, next, series); });
}

Long Bill::load_neighbour_in_series(bool next, std::string_view series) noexcept {
  return trap([&] {
    find_near(number(), number(), next, series);
    if (number().empty()) return;
    read_header();
    read_rows();
  });
}

std::string proposed_number(std::string_view table, std::string_view prefix) {
  return proposed_number(table, "ID", prefix);
}

Long Bill::propose_number(std::string& BID, std::string_view prefix) noexcept {
  // Whatever comes of it, the verb is done.
  trap([&] { BID = proposed_number(kind().header_table(), prefix); });
  return 0;
}

void Bill::read_properties(ado::Recordset set) {
  if (set.at_end()) return;
  MemberColumns::take(members(), *this, set);
}

std::string Bill::aggregated_id(const ado::Recordset& set) { return aggregated_number(set, "Id"); }

}  // namespace brunvik
