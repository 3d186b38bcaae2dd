#include "tests/support/print.h"

#include <ostream>
#include <string>
#include <type_traits>

#include "brunvik/ado/value.h"
#include "brunvik/foundation/members.h"
#include "tests/support/faults/step.h"

namespace brunvik::ado {

namespace {

void print_content(Empty, std::ostream& stream) { stream << "Empty"; }
void print_content(Null, std::ostream& stream) { stream << "Null"; }
void print_content(bool flag, std::ostream& stream) { stream << (flag ? "Boolean True" : "Boolean False"); }
void print_content(const std::string& text, std::ostream& stream) { stream << "String \"" << text << '"'; }
void print_content(Money amount, std::ostream& stream) { PrintTo(amount, &stream); }
void print_content(Date date, std::ostream& stream) { PrintTo(date, &stream); }

void print_content(const ObjectReference& object, std::ostream& stream) {
  stream << "Object " << static_cast<const void*>(object.get());
}

void print_content(const std::shared_ptr<const Array>& items, std::ostream& stream) {
  stream << '[';
  for (const Value& item : *items) {
    if (&item != &items->front()) stream << ", ";
    PrintTo(item, &stream);
  }
  stream << ']';
}

template <class Number>
requires std::is_arithmetic_v<Number>
void print_content(Number number, std::ostream& stream) {
  stream << name_of(type_of<Number>()) << ' ' << Value(number).as_text();
}

}  // namespace

void PrintTo(const Value& value, std::ostream* stream) {
  value.visit([&](const auto& content) { print_content(content, *stream); });
}

void PrintTo(const Money& amount, std::ostream* stream) { *stream << "Money " << amount.text(); }
void PrintTo(const Date& date, std::ostream* stream) { *stream << "Date " << timestamp_text(date); }

}  // namespace brunvik::ado

namespace brunvik {

void PrintTo(const Type& type, std::ostream* stream) { *stream << name_of(type); }
void PrintTo(const MemberKind& kind, std::ostream* stream) { *stream << name_of(kind); }

}  // namespace brunvik

namespace brunvik::test {

void PrintTo(const Step& step, std::ostream* stream) {
  *stream << step.begins << (step.holds.empty() ? "" : " ... " + step.holds);
  if (!step.name.empty()) *stream << " (" << step.name << ')';
  *stream << (step.ends ? ": ends with " + std::to_string(step.result) : ": goes on");
  if (!step.notice.empty()) *stream << ", tells \"" << step.notice << '"';
}

}  // namespace brunvik::test
