#include "brunvik/automation/automation.h"

#include "brunvik/ado/errors.h"
#include "brunvik/ado/names.h"
#include "brunvik/billframe/stock_row.h"
#include "brunvik/foundation/goods_record.h"
#include "brunvik/purchasing/purchase_receipt.h"
#include "brunvik/purchasing/purchase_return.h"
#include "brunvik/sales/sales_issue.h"
#include "brunvik/sales/sales_return.h"
#include "brunvik/settlement/advance.h"
#include "brunvik/settlement/pay_bill.h"
#include "brunvik/settlement/receipt_bill.h"
#include "brunvik/stock/InitBrunvikVariable.h"
#include "brunvik/warehouse/count_report.h"
#include "brunvik/warehouse/other_stock_document.h"
#include "brunvik/warehouse/stock_adjustment.h"

namespace brunvik::automation {

namespace {

template <class Made>
std::shared_ptr<PublicObject> make() {
  return std::make_shared<Made>();
}

template <class Document>
Class document() {
  const Kind& kind = Document().kind();
  return {kind.class_name, &kind, make<Document>};
}

template <class Named>
const Named& named(std::span<const Named> all, std::string_view name, Long error) {
  for (const Named& entry : all) {
    if (ado::same_name(entry.name, name)) return entry;
  }
  ado::raise(error);
}

template <class Row>
std::shared_ptr<RowCollection> make_rows() {
  return std::make_shared<Collection<Row>>();
}

struct RecordClass {
  std::string_view name;
  std::shared_ptr<RowCollection> (*create_rows)();
};

}  // namespace

std::span<const Class> classes() {
  static const std::vector<Class> classes{
      {"InitBrunvikVariable", nullptr, make<InitBrunvikVariable>},
      document<clsPurchaseInBill>(),
      document<clsPurchaseOutBill>(),
      document<clsSalesInBill>(),
      document<clsSalesOutBill>(),
      document<clsOthersInBill>(),
      document<clsOthersOutBill>(),
      document<clsReportOfOverflowBill>(),
      document<clsReportOfLossesBill>(),
      document<clsTZBill>(),
      document<clsPurchaseInBjkcBill>(),
      document<clsPurchaseOutBjkcBill>(),
      document<clsSalesOutBjkcBill>(),
      document<clsSalesInBjkcBill>(),
      document<clsPayBill>(),
      document<clsReceiptBill>(),
      document<clsAdvanceBill>(),
      document<clsAdvanceYSBill>(),
  };
  return classes;
}

const Class& class_named(std::string_view name) { return named(classes(), name, ado::error::no_such_class); }

std::shared_ptr<PublicObject> create(std::string_view class_name) { return class_named(class_name).create(); }

Value get(const PublicObject& object, std::string_view member) { return object.members().named(member).get(object); }

void put(PublicObject& object, std::string_view member, const Value& value) {
  object.members().named(member).put(object, value);
}

RowCollection& rows(PublicObject& object, std::string_view member) {
  return object.members().named(member).rows(object);
}

Value call(PublicObject& object, std::string_view member, std::vector<Value>& arguments) {
  return object.members().named(member).call(object, arguments);
}

const Procedure& procedure_named(std::string_view name) {
  return named(procedures(), name, ado::error::no_such_member);
}

Value call_procedure(std::string_view name, std::vector<Value>& arguments) {
  const Procedure& procedure = procedure_named(name);
  complete_arguments(procedure.parameters, arguments);
  return procedure.call(arguments);
}

std::shared_ptr<RowCollection> create_rows(std::string_view record_class) {
  static constexpr std::array record_classes{
      RecordClass{"StockRow", make_rows<StockRow>},       RecordClass{"CountRow", make_rows<CountRow>},
      RecordClass{"PaymentRow", make_rows<PaymentRow>},   RecordClass{"SettledRow", make_rows<SettledRow>},
      RecordClass{"GoodsRecord", make_rows<GoodsRecord>},
  };
  return named(std::span<const RecordClass>(record_classes), record_class, ado::error::no_such_class).create_rows();
}

}  // namespace brunvik::automation
