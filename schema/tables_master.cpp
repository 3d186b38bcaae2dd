// Master data and the configuration: written by the host, read here, but for a goods' average cost.
#include "schema/families.h"

namespace brunvik::schema {

namespace {

using enum Type;

// A column a line.
// clang-format off

constexpr Column basic_config[] = {
    {"keyname", Key},
    {"keyvalue", Text},
};

// One row for each class and models of a goods id, so the id alone is no key.
constexpr Column goods[] = {
    {"id", Key},
    {"Gname", Text},
    {"Class", Key},
    {"Enabled", Boolean},
    {"GType", Text},
    {"Unit", Key},
    {"Price", Money},
    {"Purchaseprice", Money},
    {"RetailPrice", Money},
    {"MinInventory", Single},
    {"Mnemonic", Text},
    {"MaxInventory", Single},
    {"ShelfLife", Long},
    {"Model1", Key},
    {"Model2", Key},
    {"UnitConverter", Money},
    {"MinUnit", Key},
    {"PriceA", Money},
    {"PriceB", Money},
    {"PriceC", Money},
    {"PriceD", Money},
    {"PriceE", Money},
    {"Popularity", Long},
    {"Guarantee", Long},
    {"Brand", Text},
    {"Barcode", Text},
    {"AverageCost", Money, zero},
    {"TecParameters", Memo},
    {"GCZYCPFlag", Integer},  // the opening stock takes a null for a flag of its own
};
constexpr std::string_view goods_indexes[] = {"id, Class, Model1, Model2"};

constexpr Column goods_unit[] = {
    {"id", Key},
    {"Unit", Key},
    {"UnitConverter", Money},
};
constexpr std::string_view goods_unit_indexes[] = {"id, Unit"};

constexpr Column contacts_company[] = {
    {"id", Key},
    {"FullName", Text},
};

constexpr Column warehouse[] = {
    {"id", Key},
    {"WName", Text},
};

constexpr Table family[] = {
    {"BasicConfig", basic_config, "keyname"},
    {"goods", goods, "", goods_indexes},
    {"GoodsUnit", goods_unit, "", goods_unit_indexes},
    {"ContactsCompany", contacts_company, "id"},
    {"Warehouse", warehouse, "id"},
};

// clang-format on

}  // namespace

std::span<const Table> master_tables() { return family; }

}  // namespace brunvik::schema
