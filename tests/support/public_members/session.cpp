// The start of a session.
#include "tests/support/public_members/expected.h"

namespace brunvik::test {

namespace {

const ExpectedClass start("InitBrunvikVariable", R"(
property String: DATAType OperatorId
property Connection: ADOConn
verb Nothing: InitClase_PublicVariable()
)");

}  // namespace

}  // namespace brunvik::test
