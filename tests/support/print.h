// How values stand in the message of a test that failed. Every test is compiled with this in front of it, so that all
// print the same.
#pragma once

#include <iosfwd>

namespace brunvik::ado {

class Money;
class Value;
struct Date;

void PrintTo(const Value& value, std::ostream* stream);
void PrintTo(const Money& amount, std::ostream* stream);
void PrintTo(const Date& date, std::ostream* stream);

}  // namespace brunvik::ado

namespace brunvik {

enum class Type;
enum class MemberKind;

void PrintTo(const Type& type, std::ostream* stream);
void PrintTo(const MemberKind& kind, std::ostream* stream);

}  // namespace brunvik

namespace brunvik::test {

struct Step;

void PrintTo(const Step& step, std::ostream* stream);

}  // namespace brunvik::test
