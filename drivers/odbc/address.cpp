#include "drivers/odbc/address.h"

#include <algorithm>
#include <array>
#include <optional>

#include "brunvik/ado/names.h"

namespace brunvik::odbc {

namespace {

struct Attribute {
  std::string_view keyword;
  std::string_view value;  // with its braces
};

std::string_view trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(" \t\r\n");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

// Behind the brace that closes the one at a place; a brace that stands there twice closes nothing.
std::size_t behind_brace(std::string_view text, std::size_t place) {
  for (;;) {
    place = text.find('}', place + 1);
    if (place == std::string_view::npos) return text.size();
    if (place + 1 == text.size() || text[place + 1] != '}') return place + 1;
    ++place;
  }
}

// The place of what ends an attribute or a string, or the end of the text. Braces are stepped over.
std::size_t find_outside_braces(std::string_view text, std::size_t place, std::string_view end) {
  while (place < text.size() && text.substr(place, end.size()) != end) {
    place = text[place] == '{' ? behind_brace(text, place) : place + 1;
  }
  return std::min(place, text.size());
}

std::vector<Attribute> attributes_of(std::string_view connection_string) {
  std::vector<Attribute> attributes;
  for (std::size_t place = 0; place < connection_string.size();) {
    const std::size_t end = find_outside_braces(connection_string, place, ";");
    const std::string_view attribute = connection_string.substr(place, end - place);
    const std::size_t sign = std::min(attribute.find('='), attribute.size());
    const std::string_view value = sign < attribute.size() ? attribute.substr(sign + 1) : std::string_view();
    attributes.push_back({trimmed(attribute.substr(0, sign)), trimmed(value)});
    place = end + 1;
  }
  return attributes;
}

bool is_password(const Attribute& attribute) {
  return ado::same_name(attribute.keyword, "PWD") || ado::same_name(attribute.keyword, "PASSWORD");
}

std::optional<std::string_view> find(std::string_view connection_string,
                                     std::initializer_list<std::string_view> keywords) {
  for (const Attribute& attribute : attributes_of(connection_string)) {
    for (const std::string_view keyword : keywords) {
      if (ado::same_name(attribute.keyword, keyword)) return attribute.value;
    }
  }
  return {};
}

// A value as the engine gets it, where a brace that stands twice is one.
std::string without_braces(std::string_view value) {
  if (!value.starts_with('{')) return std::string(value);
  value.remove_prefix(1);
  std::string bare;
  for (std::size_t place = 0; place < value.size(); ++place) {
    if (value[place] == '}' && (++place == value.size() || value[place] != '}')) break;
    bare += value[place];
  }
  return bare;
}

void add(std::string& connection_string, std::string_view keyword, std::string_view value) {
  if (!connection_string.empty() && !connection_string.ends_with(';')) connection_string += ';';
  connection_string.append(keyword).append("=").append(value);
}

}  // namespace

std::vector<std::string> servers_of(std::string_view address) {
  std::vector<std::string> servers;
  for (std::size_t place = 0; place <= address.size();) {
    const std::size_t end = find_outside_braces(address, place, "||");
    const std::string_view server = trimmed(address.substr(place, end - place));
    if (!server.empty()) servers.emplace_back(server);
    place = end + 2;
  }
  return servers;
}

std::string with_password(std::string_view connection_string, std::string_view password) {
  std::string complete(connection_string);
  if (password.empty() || find(connection_string, {"PWD", "PASSWORD"})) return complete;
  std::string value = "{";
  for (const char c : password) {
    value += c;
    if (c == '}') value += c;
  }
  add(complete, "PWD", value + "}");
  return complete;
}

std::string without_password(std::string_view connection_string) {
  std::string shown;
  for (const Attribute& attribute : attributes_of(connection_string)) {
    if (attribute.value.empty()) {
      shown.append(shown.empty() ? "" : ";").append(attribute.keyword);
    } else {
      add(shown, attribute.keyword, is_password(attribute) ? "***" : attribute.value);
    }
  }
  return shown;
}

std::string without_password_of(std::string_view connection_string, std::string text) {
  for (const Attribute& attribute : attributes_of(connection_string)) {
    if (!is_password(attribute)) continue;
    for (const std::string& form : {std::string(attribute.value), without_braces(attribute.value)}) {
      if (form.empty()) continue;
      for (std::size_t place = text.find(form); place != std::string::npos; place = text.find(form, place + 3)) {
        text.replace(place, form.size(), "***");
      }
    }
  }
  return text;
}

std::string stripped_of_password(std::string_view connection_string) {
  if (!find(connection_string, {"PWD", "PASSWORD"})) return std::string(connection_string);
  std::string rest;
  for (const Attribute& attribute : attributes_of(connection_string)) {
    if (!is_password(attribute) && !attribute.keyword.empty()) add(rest, attribute.keyword, attribute.value);
  }
  return rest;
}

std::string with_default(std::string_view connection_string, std::string_view keyword, std::string_view value) {
  std::string complete(connection_string);
  if (!find(connection_string, {keyword})) add(complete, keyword, value);
  return complete;
}

}  // namespace brunvik::odbc
