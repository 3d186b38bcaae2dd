// What the public classes are and what members they have, as text and as JSON.
#pragma once

#include <string>
#include <string_view>

namespace brunvik::host {

// Every public class, one a line.
std::string describe_classes();
std::string describe_classes_json();

// The members of a class in their public order, one a line. Error 429 where there is no such class.
std::string describe_class(std::string_view name);
std::string describe_class_json(std::string_view name);

}  // namespace brunvik::host
