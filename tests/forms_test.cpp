// Every class's forms without a database: the statements are taken apart, and every column that they name is one of the
// member table of the header or of the rows. One that isn't is named with its class.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "brunvik/ado/errors.h"
#include "brunvik/ado/names.h"
#include "brunvik/automation/automation.h"
#include "brunvik/billframe/document.h"
#include "brunvik/foundation/last_failure.h"
#include "brunvik/settlement/voucher.h"
#include "tests/support/apartment.h"
#include "tests/support/scripted_connection.h"

namespace brunvik {
namespace {

// A form is the documents' own business; only here it is looked at from outside.
struct OpenedDocument : Document {
  static const DocumentForm& form_of(const Document& document) { return (document.*&OpenedDocument::form)(); }
};
struct OpenedVoucher : Voucher {
  static const VoucherForm& form_of(const Voucher& voucher) { return (voucher.*&OpenedVoucher::form)(); }
};

std::string lower(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), ado::lower);
  return text;
}

template <class Form>
void expect_statements_of(const Form& form, const automation::Class& each, const PublicObject& object) {
  const std::string table = lower(std::string(each.kind->header_table()));
  for (const Long status : {status::draft, status::audited}) {
    EXPECT_TRUE(lower(form.insert.text(object, status)).starts_with("insert into " + table + "("));
    EXPECT_TRUE(lower(form.update.text(object, status)).starts_with("update " + table + " set "));
  }
}

TEST(Forms, Of_every_class_name_columns_of_its_member_table_alone) {
  for (const automation::Class& each : automation::classes()) {
    SCOPED_TRACE(each.name);
    const auto object = each.create();
    try {
      if (const auto* document = dynamic_cast<const Document*>(object.get())) {
        const DocumentForm& form = OpenedDocument::form_of(*document);
        expect_statements_of(form, each, *object);
        EXPECT_FALSE(form.row_members_read.empty());
      } else if (const auto* voucher = dynamic_cast<const Voucher*>(object.get())) {
        expect_statements_of(OpenedVoucher::form_of(*voucher), each, *object);
      }
    } catch (const ado::RuntimeError& failure) {
      ADD_FAILURE() << each.name << ": " << failure.description();
    }
  }
}

// Books in which every number is stored, or none. What is selected has no columns but a count.
class UniformBooks final : public ado::Connection {
 public:
  explicit UniformBooks(bool stored) : stored_(stored) {}

  ado::Recordset Execute(std::string_view CommandText) override {
    if (!lower(std::string(CommandText)).starts_with("select")) return {};
    return stored_ ? test::table({"BillCount"}, {{Long{1}}}) : test::table({"BillCount"});
  }
  void BeginTrans() override {}
  void CommitTrans() override {}
  void RollbackTrans() override {}
  Long State() const noexcept override { return 1; }

 private:
  bool stored_;
};

Value argument_for(const Parameter& parameter) {
  if (parameter.make_record) return ado::ObjectReference(parameter.make_record());
  if (!parameter.make_rows) return "1";
  auto rows = parameter.make_rows();
  rows->add();
  return ado::ObjectReference(std::move(rows));
}

// A bill with a number and with a row in each collection.
std::shared_ptr<PublicObject> bill_with_rows(const automation::Class& each, const ado::ConnectionReference& books) {
  auto object = each.create();
  for (const Member& member : object->members()) {
    if (member.kind() == MemberKind::collection) member.rows(*object).add();
    if (member.type() == Type::Connection) member.put(*object, ado::ObjectReference(books));
    if (member.name() == "ID" || member.name() == "BillId") member.put(*object, "1");
  }
  return object;
}

// The frame's forms are opened above. What a verb makes at its first use is opened by calling it: links to orders and
// loans, the rows of vouchers, the stages of a ticket.
TEST(Forms, Of_every_verb_name_columns_of_its_member_table_alone) {
  test::NoticeRecorder host;
  for (const bool stored : {false, true}) {
    const auto books = std::make_shared<UniformBooks>(stored);
    const test::Session session(books);
    for (const automation::Class& each : automation::classes()) {
      for (const Member& verb : each.create()->members()) {
        if (verb.kind() != MemberKind::verb) continue;
        std::vector<Value> arguments;
        for (const Parameter& parameter : verb.parameters()) arguments.push_back(argument_for(parameter));
        verb.call(*bill_with_rows(each, books), arguments);
        const bool refused = last_failure().number == ado::error::no_such_member ||
                             last_failure().text.find("no property is written to") != std::string::npos;
        EXPECT_FALSE(refused) << each.name << '.' << verb.name() << ": " << last_failure().text;
      }
    }
  }
}

}  // namespace
}  // namespace brunvik
