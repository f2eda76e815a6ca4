// Implementation notes. A root is a database file of two tables, which any tool that reads such files can show:
//
//   section (name)                       every section, and those above it
//   value (section, name, kind, data)    the bytes as the registry has them: a number 4, lowest first
//
// Names are kept in capitals, which is how they ignore case. Every change is one transaction with a roll-back journal
// beside the file, made durable before the call returns: a program that is killed leaves the journal, and whoever opens
// the file next undoes what was half done. A call opens the file and closes it again, so that nothing is held between
// calls, over a fork or at the end of a thread; a file that another program is writing is waited for.
//
// A file that is no such database, or is damaged, is never written to: its transaction fails before.
#include "qzbase/os/RegistryStore.h"

#include <algorithm>
#include <cerrno>
#include <functional>
#include <initializer_list>

#include <unicode/uchar.h>

#include "qzbase/os/CodePage.h"
#include "qzbase/os/Utf8.h"
#include "qzbase/os/posix/RegistryFolder.h"
#include "qzbase/os/posix/SqliteHandle.h"

namespace qzbase::os {
namespace {

using enum RegistryResult;

constexpr int kWaitMilliseconds = 30'000;
constexpr int kLayout = 1;  // of the tables, kept in the file

// What ends a call before its result; caught in `Guarded`.
struct StoreFault {
  RegistryResult result;
};

template <class Call>
RegistryResult Guarded(Call&& pCall) {
  try {
    pCall();
    return Success;
  } catch (const StoreFault& fault) {
    return fault.result;
  }
}

void Demand(RegistryResult pResult) {
  if (pResult != Success) throw StoreFault{pResult};
}

// The database library's result codes as the platform's.
RegistryResult ResultOfCode(int pCode, int pErrno) noexcept {
  switch (pCode & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return Busy;
    case SQLITE_NOMEM:
    case SQLITE_TOOBIG:
      return OutOfMemory;
    case SQLITE_FULL:
      return DiskFull;
    case SQLITE_READONLY:
    case SQLITE_PERM:
    case SQLITE_AUTH:
      return AccessDenied;
    case SQLITE_CANTOPEN:
      return ResultOfErrno(pErrno);
    case SQLITE_IOERR:
      return IoFailed;
    default:  // no database, a damaged one, or one without the tables
      return Corrupt;
  }
}

// The statements of one connection.
class Database {
 public:
  Database(const std::string& pPath, int pFlags) : mayMake_((pFlags & SQLITE_OPEN_CREATE) != 0) {
    sqlite3* database = nullptr;
    const int code = sqlite3_open_v2(pPath.c_str(), &database, SQLITE_OPEN_READWRITE | pFlags, nullptr);
    handle_.reset(database);
    Check(code);
    Check(sqlite3_busy_timeout(database, kWaitMilliseconds));
  }

  // A statement with texts for its first parameters.
  StatementHandle Prepare(const char* pSql, std::initializer_list<std::reference_wrapper<const std::string>> pTexts) {
    sqlite3_stmt* prepared = nullptr;
    Check(sqlite3_prepare_v2(handle_.get(), pSql, -1, &prepared, nullptr));
    StatementHandle statement(prepared);
    int place = 0;
    for (const std::string& text : pTexts)
      Check(sqlite3_bind_text64(prepared, ++place, text.data(), text.size(), nullptr, SQLITE_UTF8));
    return statement;
  }

  // Whether there is a row, the first or the next.
  bool Step(const StatementHandle& pStatement) {
    const int code = sqlite3_step(pStatement.get());
    Check(code);
    return code == SQLITE_ROW;
  }

  void Run(const char* pSql, std::initializer_list<std::reference_wrapper<const std::string>> pTexts = {}) {
    Step(Prepare(pSql, pTexts));
  }

  std::int32_t Number(const char* pSql) {
    const StatementHandle statement = Prepare(pSql, {});
    return Step(statement) ? sqlite3_column_int(statement.get(), 0) : 0;
  }

  bool HasChanged() const noexcept { return sqlite3_changes(handle_.get()) > 0; }

  void Check(int pCode) const {
    if (pCode == SQLITE_OK || pCode == SQLITE_ROW || pCode == SQLITE_DONE) return;
    const int systemError = handle_ ? sqlite3_system_errno(handle_.get()) : 0;
    // A file that could not be made is tried once more without making it, and is told to be missing then.
    throw StoreFault{ResultOfCode(pCode, mayMake_ && systemError == ENOENT ? EACCES : systemError)};
  }

 private:
  DatabaseHandle handle_;
  bool mayMake_;
};

// An empty file has no tables yet, and is no fault: it is what a kill can leave of a file's first transaction.
bool HasTables(Database& pDatabase) {
  const std::int32_t layout = pDatabase.Number("PRAGMA user_version");
  if (layout == 0 && pDatabase.Number("SELECT count(*) FROM sqlite_master") == 0) return false;
  Demand(layout == kLayout ? Success : Corrupt);
  return true;
}

void MakeTables(Database& pDatabase) {
  pDatabase.Run("CREATE TABLE section (name TEXT PRIMARY KEY) WITHOUT ROWID");
  pDatabase.Run(
      "CREATE TABLE value (section TEXT NOT NULL, name TEXT NOT NULL, kind INTEGER NOT NULL, data BLOB NOT NULL, "
      "PRIMARY KEY (section, name))");
  static_assert(kLayout == 1);
  pDatabase.Run("PRAGMA user_version = 1");
}

// The form in which names are equal: in capitals, and ending where the platform's functions see the end.
std::string Folded(const std::string& pName) {
  std::u16string name = FromCodePage(pName.c_str());
  for (char16_t& unit : name) unit = static_cast<char16_t>(u_toupper(unit));
  return ToUtf8(name);
}

// "a\b" is {"A", "A\B"}: the sections from the root down, the one that is meant last. Names between "\" are not empty.
std::vector<std::string> SectionsDownTo(const std::string& pSection) {
  const std::string section = Folded(pSection);
  Demand(section.starts_with('\\') ? BadPathName : Success);
  std::vector<std::string> sections = {""};
  for (std::size_t at = 0; at < section.size();) {
    const std::size_t end = std::min(section.find('\\', at), section.size());
    if (end > at)
      sections.push_back(sections.back() + (sections.back().empty() ? "" : "\\") + section.substr(at, end - at));
    at = end + 1;
  }
  return sections;
}

enum class Missing : std::uint8_t { IsMade, IsAFault };

std::string FileOf(std::int32_t pRoot, Missing pMissing) {
  RegistryFile file;
  Demand(FindRegistryFile(pRoot, file));
  if (pMissing == Missing::IsMade) Demand(MakeRegistryFolder(file));
  return file.path;
}

// Calls `pChange` in a transaction of its own. A fault leaves the transaction open, and closing the file undoes it.
template <class Call>
RegistryResult Change(std::int32_t pRoot, Missing pMissing, Call&& pChange) {
  const RegistryResult result = Guarded([&] {
    Database database(FileOf(pRoot, pMissing), pMissing == Missing::IsMade ? SQLITE_OPEN_CREATE : 0);
    database.Run("BEGIN IMMEDIATE");
    if (!HasTables(database)) {
      Demand(pMissing == Missing::IsMade ? Success : NotFound);
      MakeTables(database);
    }
    pChange(database);
    database.Run("COMMIT");
  });
  return result == PathNotFound && pMissing == Missing::IsAFault ? NotFound : result;
}

// Makes what is missing and returns the section's name as it is kept.
std::string MakeSection(Database& pDatabase, const std::string& pSection) {
  const std::vector<std::string> sections = SectionsDownTo(pSection);
  for (const std::string& section : sections) pDatabase.Run("INSERT OR IGNORE INTO section VALUES (?)", {section});
  return sections.back();
}

// A text gets the final zero that the registry gives it.
std::vector<std::uint8_t> StoredBytes(const RegistryValue& pValue) {
  std::vector<std::uint8_t> bytes = pValue.data;
  if (pValue.kind == RegistryKind::Text && !bytes.empty() && bytes.back() != 0) bytes.push_back(0);
  return bytes;
}

}  // namespace

RegistryResult MakeRegistrySection(std::int32_t pRoot, const std::string& pSection) {
  return Change(pRoot, Missing::IsMade, [&](Database& pDatabase) { MakeSection(pDatabase, pSection); });
}

RegistryResult WriteRegistryValue(std::int32_t pRoot, const std::string& pSection, const std::string& pKey,
                                  const RegistryValue& pValue) {
  return Change(pRoot, Missing::IsMade, [&](Database& pDatabase) {
    const std::string section = MakeSection(pDatabase, pSection);
    if (pValue.kind == RegistryKind::None) return;
    const std::string key = Folded(pKey);
    const std::vector<std::uint8_t> data = StoredBytes(pValue);
    const auto statement = pDatabase.Prepare("INSERT OR REPLACE INTO value VALUES (?, ?, ?, ?)", {section, key});
    const void* bytes = data.empty() ? "" : static_cast<const void*>(data.data());
    pDatabase.Check(sqlite3_bind_int64(statement.get(), 3, static_cast<std::uint32_t>(pValue.kind)));
    pDatabase.Check(sqlite3_bind_blob64(statement.get(), 4, bytes, data.size(), nullptr));
    pDatabase.Step(statement);
  });
}

RegistryResult ReadRegistryValue(std::int32_t pRoot, const std::string& pSection, const std::string& pKey,
                                 RegistryValue& pValue) {
  const RegistryResult result = Guarded([&] {
    Database database(FileOf(pRoot, Missing::IsAFault), 0);
    Demand(HasTables(database) ? Success : NotFound);
    const std::string section = SectionsDownTo(pSection).back();
    const std::string key = Folded(pKey);
    const auto statement =
        database.Prepare("SELECT kind, data FROM value WHERE section = ? AND name = ?", {section, key});
    Demand(database.Step(statement) ? Success : NotFound);
    const auto* bytes = static_cast<const std::uint8_t*>(sqlite3_column_blob(statement.get(), 1));
    const int size = sqlite3_column_bytes(statement.get(), 1);
    database.Check(size > 0 && bytes == nullptr ? SQLITE_NOMEM : SQLITE_OK);
    pValue.kind = static_cast<RegistryKind>(sqlite3_column_int64(statement.get(), 0));
    pValue.data.assign(bytes, bytes + size);
  });
  return result == PathNotFound ? NotFound : result;
}

RegistryResult RemoveRegistryValue(std::int32_t pRoot, const std::string& pSection, const std::string& pKey) {
  return Change(pRoot, Missing::IsAFault, [&](Database& pDatabase) {
    const std::string section = SectionsDownTo(pSection).back();
    const std::string key = Folded(pKey);
    pDatabase.Run("DELETE FROM value WHERE section = ? AND name = ?", {section, key});
    Demand(pDatabase.HasChanged() ? Success : NotFound);
  });
}

RegistryResult RemoveRegistrySection(std::int32_t, const std::string&) {
  return InvalidHandle;
}

}  // namespace qzbase::os
