// Every document's form without a database: the statements are taken apart, and every column that they name is one of
// the member table of the header or of the rows. One that isn't is named with its class.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "brunvik/ado/errors.h"
#include "brunvik/ado/names.h"
#include "brunvik/automation/automation.h"
#include "brunvik/billframe/document.h"
#include "brunvik/settlement/voucher.h"

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

}  // namespace
}  // namespace brunvik
