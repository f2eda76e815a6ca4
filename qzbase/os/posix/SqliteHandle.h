// Handles of the database library that close themselves: one alias line for each kind.
#pragma once

#include <memory>

#include <sqlite3.h>

namespace qzbase::os {

struct SqliteClose {
  void operator()(sqlite3* pDatabase) const noexcept { sqlite3_close(pDatabase); }
  void operator()(sqlite3_stmt* pStatement) const noexcept { sqlite3_finalize(pStatement); }
};

using DatabaseHandle = std::unique_ptr<sqlite3, SqliteClose>;
using StatementHandle = std::unique_ptr<sqlite3_stmt, SqliteClose>;

}  // namespace qzbase::os
