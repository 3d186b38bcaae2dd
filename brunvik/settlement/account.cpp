#include "brunvik/settlement/account.h"

#include "brunvik/foundation/error_trap.h"
#include "brunvik/foundation/late_binding.h"
#include "brunvik/foundation/sql_text.h"

namespace brunvik {

const Members& ClsZHXX::members() const {
  using C = ClsZHXX;
  static const Members table{
      connection<&C::ADOConn>("ADOConn"), property<&C::Zh>("Zh", "ZH"), property<&C::Khh>("Khh", "KHH"),
      property<&C::Ye>("Ye", "YE"),       verb<&C::Add>("Add"),         verb<&C::UpDate>("UpDate"),
      verb<&C::Delete>("Delete"),
  };
  return table;
}

Long ClsZHXX::Add() noexcept {
  return trap("Add():",
              [&] { execute(sql("insert into ZHXX(ZH,KHH,YE,)  values( '{raw}','{raw}',{},)", Zh, Khh, Ye)); });
}

Long ClsZHXX::UpDate() noexcept {
  return trap("UpDate():",
              [&] { execute(sql("update ZHXX set ZH='{raw}',KHH='{raw}',YE={}, where ZH={like}", Zh, Khh, Ye, Zh)); });
}

Long ClsZHXX::Delete() noexcept {
  return trap("Delete():", [&] { execute(sql("delete from ZHXX where ZH={like}", Zh)); });
}

const Members& clsZHJYXX::members() const {
  using C = clsZHJYXX;
  static const Members table{
      connection<&C::ADOConn>("ADOConn"),
      property<&C::ID>("ID", "ID"),
      property<&C::ZhID>("ZhID", "ZHID"),
      property<&C::Jyzy>("Jyzy", "JYZY"),
      property<&C::Jysj>("Jysj", "JYSJ"),
      property<&C::Jyje>("Jyje", "JYJE"),
      property<&C::Jyfs>("Jyfs", "JYFS"),
      property<&C::Jylx>("Jylx", "JYLX"),
      property<&C::ZczhID>("ZczhID", "ZCZHID"),
      property<&C::Dyid>("Dyid", "DYID"),
      property<&C::Cjsj>("Cjsj", "CJSJ"),
      property<&C::Czy>("Czy", "CZY"),
      property<&C::Jbr>("Jbr", "JBR"),
      property<&C::DYDJH>("DYDJH", "DYDJH"),
      verb<&C::Add>("Add"),
      verb<&C::UpDate>("UpDate"),
      verb<&C::Delete>("Delete"),
  };
  return table;
}

Long clsZHJYXX::Add() noexcept {
  return trap([&] {
    execute(
        sql("insert into ZHJYXX(ID,ZHID,JYZY,JYSJ,JYJE,JYFS,JYLX,ZCZHID,DYID,CJSJ,CZY,JBR,DYDJH)  "
            "values( '{raw}','{raw}','{raw}','{raw}',{},{},{},'{raw}','{raw}','{raw}','{raw}','{raw}','{raw})",
            ID, ZhID, Jyzy, Jysj, Jyje, Jyfs, Jylx, ZczhID, Dyid, Cjsj, Czy, Jbr, DYDJH));
  });
}

Long clsZHJYXX::UpDate() noexcept {
  return trap([&] {
    execute(
        sql("update ZHJYXX set ID='{raw}',ZH='{raw}',JYZY='{raw}',JYSJ='{raw}',JYJE={},JYFS={},JYLX={},ZCZH='{raw}',"
            "DYID='{raw}',CJSJ='{raw}',CZY='{raw}',JBR='{raw}',DYDJH ='{raw}' where ID={like}",
            ID, ZhID, Jyzy, Jysj, Jyje, Jyfs, Jylx, ZczhID, Dyid, Cjsj, Czy, Jbr, DYDJH, ID));
  });
}

Long clsZHJYXX::Delete() noexcept {
  return trap([&] { execute(sql("delete from ZHJYXX where ID={like}", ID)); });
}

}  // namespace brunvik
