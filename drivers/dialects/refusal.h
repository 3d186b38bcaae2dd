// A statement that is refused before its engine sees it.
#pragma once

#include <string>
#include <string_view>

namespace brunvik::dialects {

// Throws a RuntimeError of statement_refused.
[[noreturn]] void refuse(std::string reason, std::string_view statement);

}  // namespace brunvik::dialects
