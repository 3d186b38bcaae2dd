// Owners of ODBC's handles.
#pragma once

#include <sql.h>
#include <sqlext.h>

#include <string_view>
#include <utility>

namespace brunvik::odbc {

template <SQLSMALLINT Type>
class Handle {
 public:
  Handle() = default;
  Handle(Handle&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
  Handle& operator=(Handle&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
  }
  ~Handle() {
    if (handle_) SQLFreeHandle(Type, handle_);
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  // Below the handle of the environment or of the connection. Without one where memory ran out, which the first use
  // of the handle reports.
  explicit Handle(SQLHANDLE parent) noexcept { SQLAllocHandle(Type, parent, &handle_); }

  SQLHANDLE get() const noexcept { return handle_; }
  static constexpr SQLSMALLINT type = Type;

 private:
  SQLHANDLE handle_ = SQL_NULL_HANDLE;
};

using Environment = Handle<SQL_HANDLE_ENV>;
using Database = Handle<SQL_HANDLE_DBC>;
using Statement = Handle<SQL_HANDLE_STMT>;

// ODBC reads a text through a pointer to what it could change.
inline SQLCHAR* as_characters(std::string_view text) noexcept {
  return reinterpret_cast<SQLCHAR*>(const_cast<char*>(text.data()));
}

}  // namespace brunvik::odbc
