// What becomes of a verb when the database fails it: each verb of each class is run with each of its statements failing
// in turn. What was done stays, nothing is undone, and only what the books can do without is gone on from.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "brunvik/automation/automation.h"
#include "tests/support/apartment.h"
#include "tests/support/books.h"
#include "tests/support/faults/books.h"
#include "tests/support/faults/document.h"
#include "tests/support/faults/frame.h"
#include "tests/support/rehearsed_connection.h"

namespace brunvik::test {
namespace {

using Texts = std::vector<std::string>;

// How a road to the database is met.
enum class Way { open, closed, unset };

struct Circumstances {
  // The statement that fails, counted from 1; 0 for none.
  std::size_t fails_at = 0;
  Way bill = Way::open;
  Way session = Way::open;
};

struct Outcome {
  Long result = 0;
  Texts statements;
  Texts notices;
  std::vector<Value> arguments;
};

class FaultRuns : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    books_ = lay_books();
    run(*books_, fault_books());
  }
  static void TearDownTestSuite() { books_.reset(); }

  // Runs the verb once on the books as they were laid.
  static Outcome outcome(const Verb& verb, const Circumstances& circumstances = {}) {
    books_->BeginTrans();
    run(*books_, verb.before);
    const auto rehearsal = std::make_shared<Rehearsal>();
    const auto road = [&](const char* name, Way way) {
      auto connection = std::make_shared<RehearsedConnection>(books_, name, rehearsal);
      connection->closed = way == Way::closed;
      return way == Way::unset ? nullptr : connection;
    };
    NoticeRecorder host;
    const FixedClock clock;
    const auto object = automation::create(verb.class_name);
    {
      const Session loading(books_);
      automation::put(*object, "ADOConn", ado::ObjectReference(books_));
      std::vector<Value> bill{rehearsed_document(verb.class_name).bill()};
      if (published(*object, "LoadById")) {
        EXPECT_EQ(automation::call(*object, "LoadById", bill), Value(Long{0}));
      }
      if (verb.prepare) verb.prepare(*object);
    }
    if (!verb.number.empty()) automation::put(*object, published(*object, "ID") ? "ID" : "BillId", verb.number);
    automation::put(*object, "ADOConn", ado::ObjectReference(road("bill", circumstances.bill)));
    const Session session(road("session", circumstances.session));
    rehearsal->fails_at = circumstances.fails_at;
    Outcome outcome;
    outcome.arguments = verb.arguments;
    const Value result = automation::call(*object, verb.verb, outcome.arguments);
    outcome.result = result.get_if<std::string>() ? 0 : result.as_long();  // a number of a bill says nothing of errors
    outcome.statements = rehearsal->statements;
    outcome.notices = host.take();
    books_->RollbackTrans();
    return outcome;
  }

  static ado::ConnectionReference books_;
};

ado::ConnectionReference FaultRuns::books_;

class Faults : public FaultRuns, public ::testing::WithParamInterface<Verb> {};
class FaultsOfAConnection : public FaultRuns {};

Texts notices_of(const Step& step, const std::string& text) {
  Texts notices;
  if (!step.notice.empty()) notices.push_back(step.notice + text);
  if (!step.further_notice.empty()) notices.push_back(step.further_notice);
  return notices;
}

// The steps that a verb takes when this one of them fails.
Steps steps_taken(const Steps& steps, std::size_t failed) {
  const Step& step = steps[failed];
  Steps taken(steps.begin(), steps.begin() + static_cast<std::ptrdiff_t>(failed) + 1);
  if (step.ends) return taken;
  for (std::size_t place = failed + 1; place < steps.size(); ++place) {
    const std::string& name = steps[place].name;
    const bool skipped = !name.empty() && std::find(step.skips.begin(), step.skips.end(), name) != step.skips.end();
    if (!skipped) taken.push_back(steps[place]);
  }
  return taken;
}

bool is_step(const std::string& statement, const Step& step) {
  return statement.starts_with(step.begins) && statement.find(step.holds) != std::string::npos;
}

void expect_steps(const Texts& statements, const Steps& steps) {
  for (std::size_t place = 0; place < std::max(statements.size(), steps.size()); ++place) {
    const std::string wanted = place < steps.size() ? steps[place].begins + " ... " + steps[place].holds : "no more";
    const std::string sent = place < statements.size() ? statements[place] : "nothing";
    ASSERT_TRUE(place < steps.size() && place < statements.size() && is_step(statements[place], steps[place]))
        << "statement " << place + 1 << " is to be " << wanted << "\nand is " << sent;
  }
}

TEST_P(Faults, At_each_statement_leave_what_was_done_and_end_or_go_on_as_the_document_says) {
  const Verb& verb = GetParam();
  const Outcome clean = outcome(verb);
  EXPECT_EQ(clean.result, 0);
  EXPECT_EQ(clean.notices, Texts{});
  expect_steps(clean.statements, verb.steps);
  if (HasFailure()) return;

  for (std::size_t failed = 0; failed < verb.steps.size(); ++failed) {
    SCOPED_TRACE("statement " + std::to_string(failed + 1) + " fails: " + clean.statements[failed]);
    const Step& step = verb.steps[failed];
    const Outcome fault = outcome(verb, {.fails_at = failed + 1});
    EXPECT_EQ(fault.result, step.result);
    EXPECT_EQ(fault.notices, notices_of(step, std::string(rehearsed_text)));
    ASSERT_GT(fault.statements.size(), failed);
    for (std::size_t place = 0; place <= failed; ++place) EXPECT_EQ(fault.statements[place], clean.statements[place]);
    expect_steps(fault.statements, steps_taken(verb.steps, failed));
  }
}

TEST_F(FaultsOfAConnection, That_is_the_bills_end_every_verb_at_its_first_statement) {
  for (const Verb& verb : rehearsed_verbs()) {
    SCOPED_TRACE(name_of(verb));
    const Step& first = verb.steps.front();
    if (!first.begins.starts_with("bill|")) continue;  // it begins on the session's road
    if (!first.ends) continue;                         // what it begins with doesn't hold it up
    // A verb that gives no number of an error gives the same for all of them.
    const auto result_of = [&](Long error) { return first.result == rehearsed_number ? error : first.result; };
    const Outcome unset = outcome(verb, {.bill = Way::unset});
    EXPECT_EQ(unset.result, result_of(91));
    EXPECT_EQ(unset.notices, notices_of(first, "对象变量或 With 块变量未设置"));
    EXPECT_EQ(unset.statements, Texts{});
    const Outcome closed = outcome(verb, {.bill = Way::closed});
    EXPECT_EQ(closed.result, result_of(3704));
    EXPECT_EQ(closed.notices, notices_of(first, "对象关闭时，不允许操作。"));
    EXPECT_EQ(closed.statements, Texts{});
  }
}

TEST_F(FaultsOfAConnection, That_is_the_sessions_touch_no_verb_that_stays_on_the_bills_road) {
  for (const Verb& verb : rehearsed_verbs()) {
    SCOPED_TRACE(name_of(verb));
    const auto first_on_the_sessions = std::find_if(
        verb.steps.begin(), verb.steps.end(), [](const Step& step) { return step.begins.starts_with("session|"); });
    const Outcome unset = outcome(verb, {.session = Way::unset});
    if (first_on_the_sessions == verb.steps.end()) {
      EXPECT_EQ(unset.result, 0);
      EXPECT_EQ(unset.notices, Texts{});
      EXPECT_EQ(unset.statements, outcome(verb).statements);
    } else {
      // What has no tag fails in silence, and so does a receipt's draft, which drops its old rows without a look back.
      const bool drops_rows_in_silence = verb.class_name == "clsReceiptBill" && verb.verb == "SaveAsDraft";
      EXPECT_EQ(unset.notices.empty(), first_on_the_sessions->notice.empty() || drops_rows_in_silence);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Of, Faults, ::testing::ValuesIn(rehearsed_verbs()),
                         [](const auto& verb) { return name_of(verb.param); });

// What the books hold after a failure in the middle of a verb.
class FaultsInTheBooks : public ::testing::Test {
 protected:
  FaultsInTheBooks() { run(*books, fault_books()); }

  // Runs a verb on a bill; the statement of this number fails.
  Long verb(const char* class_name, const char* verb, std::size_t fails_at, const char* number = nullptr) {
    const auto object = automation::create(class_name);
    automation::put(*object, "ADOConn", ado::ObjectReference(bill));
    std::vector<Value> arguments{rehearsed_document(class_name).bill()};
    automation::call(*object, "LoadById", arguments);
    if (number) automation::put(*object, "ID", number);
    rehearsal->statements.clear();
    rehearsal->fails_at = fails_at;
    arguments.clear();
    return automation::call(*object, verb, arguments).as_long();
  }

  ado::ConnectionReference books = lay_books();
  std::shared_ptr<Rehearsal> rehearsal = std::make_shared<Rehearsal>();
  ado::ConnectionReference bill = std::make_shared<RehearsedConnection>(books, "bill", rehearsal);
  Session session{std::make_shared<RehearsedConnection>(books, "session", rehearsal)};
  NoticeRecorder host;
};

TEST_F(FaultsInTheBooks, A_header_stays_when_the_first_row_of_a_new_bill_fails) {
  EXPECT_EQ(verb("clsOthersInBill", "Save", 3, "QTR24030500009"), rehearsed_number);
  EXPECT_EQ(records(*books, "select Status from StockBill where Id='QTR24030500009'"), Texts{"2"});
}

TEST_F(FaultsInTheBooks, The_rows_in_front_of_a_row_that_fails_stay_and_the_old_ones_are_gone) {
  EXPECT_EQ(verb("clsOthersInBill", "Save", 5), rehearsed_number);
  EXPECT_EQ(records(*books, "select RowNum from StockBillItems where BillId='QTR24030500002'"), Texts{"1"});
}

TEST_F(FaultsInTheBooks, A_header_stays_when_its_rows_cannot_be_removed) {
  EXPECT_EQ(verb("clsOthersInBill", "Delete", 1), rehearsed_number);
  EXPECT_EQ(records(*books, "select count(*) from StockBill where Id='QTR24030500002'"), Texts{"1"});
}

TEST_F(FaultsInTheBooks, A_bill_whose_second_post_fails_is_audited_with_its_first_row_posted) {
  // Marked, the first row costed and posted (a goods record, two factors, a balance, its update), the second costed.
  EXPECT_EQ(verb("clsOthersInBill", "Audit", 13), rehearsed_number);
  EXPECT_EQ(rehearsal->statements.back(),
            "session|insert into Inventory(WID,GId,Model1,Model2,Status,Class,Unit,InQty,OutQty,CurrentQty,Remarks) "
            "values('W1','G2','M8','',0,'五金','只',150,0,150,'')");
  EXPECT_EQ(records(*books, "select Status from StockBill where Id='QTR24030500002'"), Texts{"3"});
  EXPECT_EQ(records(*books, "select GId,CurrentQty from Inventory"), Texts{"G1|124"});
}

TEST_F(FaultsInTheBooks, What_a_voucher_settled_in_front_of_a_failure_stays_settled) {
  EXPECT_EQ(verb("clsPayBill", "Audite", 4), rehearsed_number);
  EXPECT_EQ(records(*books, "select PaidAmount from StockBill where Id='JHR24030500001'"), Texts{"60"});
  EXPECT_EQ(records(*books, "select Paidamount from OthersIEBill where Id='QTS24030500001'"), Texts{"0"});
  EXPECT_EQ(records(*books, "select Status from RPVouchers where Id='FKD24030500002'"), Texts{"3"});
}

TEST_F(FaultsInTheBooks, A_last_number_that_cannot_be_read_is_empty) {
  for (const char* class_name : {"clsOthersInBill", "clsTZBill", "clsSalesOutBill", "clsPayBill", "clsAdvanceBill"}) {
    const auto object = automation::create(class_name);
    std::vector<Value> arguments{"before"};
    EXPECT_EQ(automation::call(*object, "GetLastId", arguments), Value(Long{91}));
    EXPECT_EQ(arguments.front(), Value("")) << class_name;
  }
}

TEST(RehearsedDocuments, Have_every_class_with_every_verb) {
  std::set<std::string> rehearsed{"InitBrunvikVariable.InitClase_PublicVariable"};  // it sends nothing
  for (const Verb& verb : rehearsed_verbs()) rehearsed.insert(verb.class_name + "." + verb.verb);
  for (const RehearsedDocument& document : rehearsed_documents()) {
    for (const std::string& verb : document.unrehearsed) rehearsed.insert(document.class_name + "." + verb);
  }
  for (const automation::Class& each : automation::classes()) {
    for (const Member& member : each.create()->members()) {
      const std::string name = std::string(each.name) + "." + std::string(member.name());
      EXPECT_TRUE(member.kind() != MemberKind::verb || rehearsed.contains(name))
          << name << " is not rehearsed: its steps belong into its family's file in tests/support/faults";
    }
  }
}

TEST(RehearsedDocuments, Are_told_once_each) {
  std::set<std::string> classes, runs;
  for (const RehearsedDocument& document : rehearsed_documents()) {
    EXPECT_TRUE(classes.insert(document.class_name).second) << document.class_name;
  }
  for (const Verb& verb : rehearsed_verbs()) EXPECT_TRUE(runs.insert(name_of(verb)).second) << name_of(verb);
}

}  // namespace
}  // namespace brunvik::test
