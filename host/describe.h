// What the public classes, the row records and the module procedures are, as text and as JSON.
#pragma once

#include <string>
#include <string_view>

namespace brunvik::host {

// Every public class, one a line.
std::string describe_classes();
std::string describe_classes_json();

// The members of a class or of a row record in their public order, one a line. Error 429 where there is neither; its
// text lists the row records.
std::string describe_class(std::string_view name);
std::string describe_class_json(std::string_view name);

// The module procedures, one a line.
std::string describe_procedures();
std::string describe_procedures_json();

}  // namespace brunvik::host
