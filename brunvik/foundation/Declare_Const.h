// The keys of the configuration table BasicConfig, as a database in use holds them.
#pragma once

#include <array>
#include <string_view>

namespace brunvik {

inline namespace Declare_Const {

namespace config {

// Whether a saved bill waits for an audit: the switches that the library reads itself.
inline constexpr std::string_view audit_of_broken_goods = "启用坏件审核";
inline constexpr std::string_view audit_of_accounts = "启用帐款审核";
inline constexpr std::string_view audit_of_trade = "启用进销审核";
inline constexpr std::string_view audit_of_warehouse = "启用仓库业务审核";

// The host's own settings. The library keeps their names and reads none of them.
inline constexpr std::string_view audit_in_use = "启用审核";
inline constexpr std::string_view retail_in_use = "启用零售";
inline constexpr std::string_view broken_goods_in_use = "启用坏件管理";
inline constexpr std::string_view after_service_in_use = "启用售服业务";
inline constexpr std::string_view machine_building_in_use = "启用装机业务";
inline constexpr std::string_view undo_audit_allowed = "允许撤销审核";
inline constexpr std::string_view serial_numbers_in_use = "启用唯一序列号管理";
inline constexpr std::string_view negative_stock_allowed = "允许负库存";
inline constexpr std::string_view factory_and_sale_dates_recorded = "记录出厂/销售日期";
inline constexpr std::string_view update_after_save = "保存单据后默认自动更新";
inline constexpr std::string_view model1_in_use = "启用规格1";
inline constexpr std::string_view model2_in_use = "启用规格2";
inline constexpr std::string_view member_card_in_use = "启用会员卡";
inline constexpr std::string_view discount_card_in_use = "启用折扣卡";
inline constexpr std::string_view lock_when_idle = "空闲后锁定界面";
inline constexpr std::string_view lock_when_idle_after = "空闲后锁定界面时间设定";
inline constexpr std::string_view back_up_at_exit = "软件退出后自动备份数据库";
inline constexpr std::string_view back_up_folder = "备份数据库的目录";
inline constexpr std::string_view first_steps_hidden = "隐藏初始化向导";
inline constexpr std::string_view warranty_remarks_field = "保修备注字段";
inline constexpr std::string_view model1_field = "规格1字段";
inline constexpr std::string_view model2_field = "规格2字段";
inline constexpr std::string_view retail_price_field = "零售价字段";
inline constexpr std::string_view wholesale_price_1_field = "一级批发价字段";
inline constexpr std::string_view wholesale_price_2_field = "二级批发价字段";
inline constexpr std::string_view wholesale_price_3_field = "三级批发价字段";
inline constexpr std::string_view wholesale_price_4_field = "四级批发价字段";
inline constexpr std::string_view wholesale_price_5_field = "五级批发价字段";
inline constexpr std::string_view several_units_in_use = "商品使用多单位";
inline constexpr std::string_view price_control_in_use = "启用主营产品价格控制";
inline constexpr std::string_view warranty_terms = "保修条款设置";
inline constexpr std::string_view default_invoice_type = "默认发票类型";
inline constexpr std::string_view default_price_with_tax = "默认价格含税";
inline constexpr std::string_view default_sales_price = "默认销售价格";
inline constexpr std::string_view barcode_in_use = "商品使用条码";
inline constexpr std::string_view member_card_points_rate = "会员卡积分率(元/分)";
inline constexpr std::string_view closing_in_use = "启用结账";
inline constexpr std::string_view reopening_in_use = "启用反结账";
inline constexpr std::string_view default_amount_paid_now = "默认现收金额";
inline constexpr std::string_view standard_cost_method = "标准成本计算方式";
inline constexpr std::string_view purchase_rounding_in_use = "启用采购单抹零";
inline constexpr std::string_view purchase_rounding_method = "采购单抹零方式";
inline constexpr std::string_view purchase_rounding_places = "采购单抹零位数";
inline constexpr std::string_view purchase_return_rounding_in_use = "启用采购退货单抹零";
inline constexpr std::string_view purchase_return_rounding_method = "采购退货单抹零方式";
inline constexpr std::string_view purchase_return_rounding_places = "采购退货单抹零位数";
inline constexpr std::string_view sales_rounding_in_use = "启用销售单抹零";
inline constexpr std::string_view sales_rounding_method = "销售单抹零方式";
inline constexpr std::string_view sales_rounding_places = "销售单抹零位数";
inline constexpr std::string_view sales_return_rounding_in_use = "启用销售退货单抹零";
inline constexpr std::string_view sales_return_rounding_method = "销售退货单抹零方式";
inline constexpr std::string_view sales_return_rounding_places = "销售退货单抹零位数";
inline constexpr std::string_view machine_quote_rounding_in_use = "启用装机报价单抹零";
inline constexpr std::string_view machine_quote_rounding_method = "装机报价单抹零方式";
inline constexpr std::string_view machine_quote_rounding_places = "装机报价单抹零位数";
inline constexpr std::string_view retail_rounding_in_use = "启用零售抹零";
inline constexpr std::string_view retail_rounding_method = "零售抹零方式";
inline constexpr std::string_view retail_rounding_places = "零售抹零位数";
inline constexpr std::string_view paid_now_in_use = "启用现收";
inline constexpr std::string_view payment_plans_make_vouchers = "启用用款计划生成其它收/付款单";
inline constexpr std::string_view payment_plan_settled_mark = "用款计划的结款标记";
inline constexpr std::string_view payment_plan_settled_from = "用款计划的结款开始日期";
inline constexpr std::string_view payment_plan_period = "用款计划的时间范围";
inline constexpr std::string_view receipt_plan_void_after_days = "收款计划超期作废天数";
inline constexpr std::string_view payment_plan_void_after_days = "付款计划超期作废天数";

// All of them, in the order of the table.
inline constexpr std::array all{
    audit_of_broken_goods,
    audit_of_accounts,
    audit_of_trade,
    audit_of_warehouse,
    audit_in_use,
    retail_in_use,
    broken_goods_in_use,
    after_service_in_use,
    machine_building_in_use,
    undo_audit_allowed,
    serial_numbers_in_use,
    negative_stock_allowed,
    factory_and_sale_dates_recorded,
    update_after_save,
    model1_in_use,
    model2_in_use,
    member_card_in_use,
    discount_card_in_use,
    lock_when_idle,
    lock_when_idle_after,
    back_up_at_exit,
    back_up_folder,
    first_steps_hidden,
    warranty_remarks_field,
    model1_field,
    model2_field,
    retail_price_field,
    wholesale_price_1_field,
    wholesale_price_2_field,
    wholesale_price_3_field,
    wholesale_price_4_field,
    wholesale_price_5_field,
    several_units_in_use,
    price_control_in_use,
    warranty_terms,
    default_invoice_type,
    default_price_with_tax,
    default_sales_price,
    barcode_in_use,
    member_card_points_rate,
    closing_in_use,
    reopening_in_use,
    default_amount_paid_now,
    standard_cost_method,
    purchase_rounding_in_use,
    purchase_rounding_method,
    purchase_rounding_places,
    purchase_return_rounding_in_use,
    purchase_return_rounding_method,
    purchase_return_rounding_places,
    sales_rounding_in_use,
    sales_rounding_method,
    sales_rounding_places,
    sales_return_rounding_in_use,
    sales_return_rounding_method,
    sales_return_rounding_places,
    machine_quote_rounding_in_use,
    machine_quote_rounding_method,
    machine_quote_rounding_places,
    retail_rounding_in_use,
    retail_rounding_method,
    retail_rounding_places,
    paid_now_in_use,
    payment_plans_make_vouchers,
    payment_plan_settled_mark,
    payment_plan_settled_from,
    payment_plan_period,
    receipt_plan_void_after_days,
    payment_plan_void_after_days,
};

}  // namespace config

}  // namespace Declare_Const

}  // namespace brunvik
