// What stands once for all drivers, under the names that this driver's own files use.
#pragma once

namespace brunvik::dialects {}

namespace brunvik::sqlite {

using namespace dialects;

}  // namespace brunvik::sqlite
