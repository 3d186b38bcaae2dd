// What the host refuses, in words that help: what it is about by its name, and what there is instead.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "brunvik/ado/errors.h"
#include "brunvik/foundation/members.h"

namespace brunvik::host {

// The beginning of a text that may be of any length, cut between two characters and marked by "..." where it is cut.
std::string shortened(std::string_view text);

// A run-time error that names what it is about, and goes on with what is to be said of that.
[[noreturn]] void refuse(Long number, std::string_view what, std::string_view more = {});

// "; there is new, put, get"
std::string there_is(const std::vector<std::string_view>& names);

// What is found by a name; where it isn't, the error says which name it was.
template <class Find>
auto named(std::string_view name, Find&& find) -> decltype(find(name)) {
  try {
    return find(name);
  } catch (const ado::RuntimeError& failure) {
    refuse(failure.number(), name);
  }
}

enum class Use { call, put, get, rows };

// The member of an object by its name, without regard to case. Error 438, with the members that there are for that
// use, where there is none of the name or it can't be used so.
const Member& member_for(Use use, const PublicObject& object, std::string_view name);

}  // namespace brunvik::host
