// Master-data records, read on the session connection.
#pragma once

#include <string_view>

#include "brunvik/foundation/goods_record.h"

namespace brunvik {

inline namespace FenwerkOPT_Function {

// Fills the record from the goods of this id: 0, also for an unknown id, which leaves the record as it is. A null
// number is left as the record holds it, a null text reads as the empty text. After an error its number, and a notice.
Long GetGoodsById(std::string_view Id, GoodsRecord& Goods);

}  // namespace FenwerkOPT_Function

}  // namespace brunvik
