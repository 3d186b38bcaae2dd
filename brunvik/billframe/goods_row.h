// What the rows of goods begin with: which bill they belong to, and which goods it is, with a copy of the goods' names.
#pragma once

#include <string>

#include "brunvik/foundation/members.h"

namespace brunvik {

class GoodsRow : public PublicObject {
 public:
  // The number of the bill and the position in it. The host gives each row a position of its own.
  std::string BillId;
  Integer Rownum = 0;
  std::string Gid, Gbarcode, Gname, Class, Model1, Model2;
  // The unit of the row's quantities.
  std::string Unit;

 protected:
  // The members above, which stand at the beginning of a row's table in this order.
  static MemberGroup goods_members();
};

}  // namespace brunvik
