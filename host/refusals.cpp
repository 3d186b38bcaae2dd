#include "host/refusals.h"

#include <fmt/format.h>

#include "brunvik/ado/names.h"

namespace brunvik::host {

namespace {

// Enough to know a text again by, in bytes.
constexpr std::size_t longest = 200;

bool fits(Use use, const Member& member) {
  switch (use) {
    case Use::call:
      return member.kind() == MemberKind::verb;
    case Use::put:
      return member.kind() == MemberKind::property || member.kind() == MemberKind::collection;
    case Use::get:
      return member.kind() != MemberKind::verb;
    case Use::rows:
      return member.kind() == MemberKind::collection;
  }
  return false;
}

}  // namespace

std::string shortened(std::string_view text) {
  if (text.size() <= longest) return std::string(text);
  const auto continues = [&](std::size_t place) { return (static_cast<unsigned char>(text[place]) & 0xC0U) == 0x80U; };
  std::size_t end = longest;
  while (end > 0 && continues(end)) --end;
  return std::string(text.substr(0, end)).append("...");
}

void refuse(Long number, std::string_view what, std::string_view more) {
  throw ado::RuntimeError(number,
                          std::string(ado::error_text(number)).append(": ").append(shortened(what)).append(more));
}

std::string there_is(const std::vector<std::string_view>& names) {
  return fmt::format("; there is {}", names.empty() ? "none" : fmt::format("{}", fmt::join(names, ", ")));
}

const Member& member_for(Use use, const PublicObject& object, std::string_view name) {
  std::vector<std::string_view> names;
  for (const Member& member : object.members()) {
    if (!fits(use, member)) continue;
    if (ado::same_name(member.name(), name)) return member;
    if (member.type() != Type::Connection) names.push_back(member.name());
  }
  refuse(ado::error::no_such_member, name, there_is(names));
}

}  // namespace brunvik::host
