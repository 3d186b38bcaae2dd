#include "brunvik/ado/errors.h"

#include <array>
#include <utility>

namespace brunvik::ado {

namespace {

struct ErrorText {
  Long number;
  std::string_view text;
};

constexpr std::array error_texts{
    ErrorText{error::invalid_call, "无效的过程调用或参数"},
    ErrorText{error::overflow, "溢出"},
    ErrorText{error::out_of_memory, "内存溢出"},
    ErrorText{error::subscript, "下标越界"},
    ErrorText{error::division_by_zero, "除数为零"},
    ErrorText{error::type_mismatch, "类型不匹配"},
    ErrorText{error::internal, "内部错误"},
    ErrorText{error::object_not_set, "对象变量或 With 块变量未设置"},
    ErrorText{error::invalid_use_of_null, "无效使用 Null"},
    ErrorText{error::no_such_object, "要求对象"},
    ErrorText{error::no_such_class, "部件不能创建对象"},
    ErrorText{error::no_such_member, "对象不支持该属性或方法"},
    ErrorText{error::wrong_argument_count, "错误的参数号或无效的属性赋值"},
    ErrorText{error::no_current_record,
              "BOF 或 EOF 中有一个是“真”，或者当前的记录已被删除，所需的操作要求一个当前的记录。"},
    ErrorText{error::no_such_field, "在对应所需名称或序数的集合中，未找到项目。"},
    ErrorText{error::object_closed, "对象关闭时，不允许操作。"},
    ErrorText{error::connection_closed, "连接无法用于执行此操作。在此上下文中它可能已被关闭或无效。"},
    ErrorText{error::statement_refused, "语句被数据库拒绝"},
    ErrorText{error::no_such_table, "数据库中没有该表"},
    ErrorText{error::constraint_violated, "违反数据库约束"},
    ErrorText{error::data_overflow, "数据溢出"},
    ErrorText{error::timed_out, "数据库忙或超时"},
    ErrorText{error::provider_failed, "未指定的错误"},
    ErrorText{error::no_transaction, "没有打开的事务。"},
    ErrorText{error::transaction_open, "只能打开一个事务，而已有一个事务打开。"},
};

}  // namespace

std::string_view error_text(Long number) noexcept {
  for (const ErrorText& entry : error_texts) {
    if (entry.number == number) return entry.text;
  }
  return "应用程序定义或对象定义错误";
}

RuntimeError::RuntimeError(Long number) : RuntimeError(number, std::string(error_text(number))) {}

RuntimeError::RuntimeError(Long number, std::string description, std::string statement)
    : number_(number), description_(std::move(description)), statement_(std::move(statement)) {}

void raise(Long number, std::string_view statement) {
  throw RuntimeError(number, std::string(error_text(number)), std::string(statement));
}

}  // namespace brunvik::ado
