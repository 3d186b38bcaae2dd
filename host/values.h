// Values of the library as JSON, and JSON as values of the library.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include "brunvik/ado/value.h"
#include "brunvik/foundation/members.h"
#include "host/json.h"

namespace brunvik::host {

// The value that a JSON value stands for where a value of a type is wanted: a number is money to the ten-thousandth
// where money is wanted. Error 13 for what stands for no value.
Value to_value(const Json& json, Type wanted = Type::Variant);

// Money as a string of plain decimal text, a date as {"date": ...}, a record as {"row": ...}, rows as {"rows": ...}.
Json to_json(const Value& value);

// The properties of an object in their public order, without those that are objects or collections.
Json properties_of(const PublicObject& object);

// Puts each member of a JSON object to the property of that name; all of them, or none where one is refused.
void put_properties(PublicObject& object, const Json& values);

// A new row of a collection that gets this position, with these properties; none where one is refused.
void add_row(RowCollection& rows, std::size_t position, const Json& values);

// The arguments of a call in their order, records made as the class that the parameter takes. Error 450 for too many
// and for a missing one that may not be left out, with the name of what is called and of the argument.
std::vector<Value> to_arguments(std::string_view name, const Json& given, const std::vector<Parameter>& parameters);

// What a call left in its by-reference arguments; the others as they were given.
Json left_arguments(const Json& given, const std::vector<Parameter>& parameters, std::span<const Value> arguments);

}  // namespace brunvik::host
