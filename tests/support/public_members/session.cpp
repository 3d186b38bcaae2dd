// The start of a session, and the record of goods that the procedures fill.
#include "tests/support/public_members/expected.h"

namespace brunvik::test {

namespace {

const ExpectedClass start("InitBrunvikVariable", R"(
property String: DATAType OperatorId
property Connection: ADOConn
verb Nothing: InitClase_PublicVariable()
)");

const ExpectedRecord goods("GoodsRecord", R"(
property String: id Gname Class
property Boolean: Enabled
property String: GType Unit
property Money: Price Purchaseprice RetailPrice
property Single: MinInventory
property String: Mnemonic
property Single: MaxInventory
property Long: ShelfLife
property String: Model1 Model2
property Money: UnitConverter
property String: MinUnit
property Money: PriceA PriceB PriceC PriceD PriceE
property Long: Popularity Guarantee
property String: Brand Barcode
property Money: AverageCost
property String: TecParameters
)");

}  // namespace

}  // namespace brunvik::test
