// An account and a movement on it.
#include "tests/support/faults/document.h"

namespace brunvik::test {

namespace {

const Rehearsed account([] {
  return RehearsedDocument{
      .class_name = "ClsZHXX",
      .verbs = {{.verb = "Delete", .steps = {ends_telling("Delete():", "bill|delete from ZHXX where ZH=")}}},
      .unrehearsed = {"Add", "UpDate"}};
});

const Rehearsed movement([] {
  return RehearsedDocument{.class_name = "clsZHJYXX",
                           .verbs = {{.verb = "Delete", .steps = {ends("bill|delete from ZHJYXX where ID=")}}},
                           .unrehearsed = {"Add", "UpDate"}};
});

}  // namespace

}  // namespace brunvik::test
