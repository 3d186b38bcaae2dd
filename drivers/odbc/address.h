// ODBC's connection strings: those of one database, one for each server of a cluster.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace brunvik::odbc {

// The strings of the servers, which "||" stands between. A value in braces ends at its brace alone.
std::vector<std::string> servers_of(std::string_view address);

// The string with a password, where it has none and names a user; else as it is. Braces keep whatever the password
// holds.
std::string with_password(std::string_view connection_string, std::string_view password);

// The string with its password made out, to be shown.
std::string without_password(std::string_view connection_string);

// The string without its password, for a host that has it from elsewhere; as it is where it has none.
std::string stripped_of_password(std::string_view connection_string);

// A text that may hold the password of a string, without it.
std::string without_password_of(std::string_view connection_string, std::string text);

// The string with a value for a keyword that it doesn't name.
std::string with_default(std::string_view connection_string, std::string_view keyword, std::string_view value);

}  // namespace brunvik::odbc
