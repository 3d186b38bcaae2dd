// The number types of the books, under the names that bookkeepers' tools have always given them.
#pragma once

#include <cstdint>

namespace brunvik::ado {

using Byte = std::uint8_t;
using Integer = std::int16_t;
using Long = std::int32_t;
using Single = float;
using Double = double;

}  // namespace brunvik::ado

namespace brunvik {

using ado::Byte;
using ado::Double;
using ado::Integer;
using ado::Long;
using ado::Single;

}  // namespace brunvik
