// An account and a movement on it.
#include "tests/support/faults/document.h"

namespace brunvik::test {

namespace {

const Rehearsed account([] {
  return RehearsedDocument{
      .class_name = "ClsZHXX",
      .verbs = {{.verb = "Delete", .steps = {ends_telling("Delete():", "bill|delete from ZHXX where ZH=")}}},
      .always_refused = {"Add", "UpDate"}};
});

const Rehearsed movement([] {
  return RehearsedDocument{.class_name = "clsZHJYXX",
                           .verbs = {{.verb = "Delete", .steps = {ends("bill|delete from ZHJYXX where ID=")}}},
                           .always_refused = {"Add", "UpDate"}};
});

}  // namespace

}  // namespace brunvik::test
