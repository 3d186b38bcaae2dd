// The statements that lay the tables on an engine.
#pragma once

#include <string>
#include <vector>

namespace brunvik::schema {

enum class Engine { sqlite };

// One statement an element, without a closing semicolon, in an order in which an empty database can run them.
std::vector<std::string> statements(Engine engine);

}  // namespace brunvik::schema
