// A goods record, as master data holds it.
#pragma once

#include <string>

#include "brunvik/foundation/members.h"

namespace brunvik {

class GoodsRecord : public PublicObject {
 public:
  std::string id, Gname, Class;
  bool Enabled = false;
  std::string GType;
  // The base unit: the unit of the stock balance and of the average cost.
  std::string Unit;
  Money Price, Purchaseprice, RetailPrice;
  Single MinInventory = 0;
  std::string Mnemonic;
  Single MaxInventory = 0;
  Long ShelfLife = 0;
  std::string Model1, Model2;
  Money UnitConverter;
  std::string MinUnit;
  Money PriceA, PriceB, PriceC, PriceD, PriceE;
  Long Popularity = 0;
  Long Guarantee = 0;
  std::string Brand, Barcode;
  // Cost of one base unit.
  Money AverageCost;
  std::string TecParameters;

  const Members& members() const override;
};

}  // namespace brunvik
