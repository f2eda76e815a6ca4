#include "tests/persist/ScratchStore.h"

#include <cstdlib>

#include <gtest/gtest.h>

#include "qzbase/os/RegistryStore.h"
#include "qzbase/os/posix/SqliteHandle.h"
#include "qzbase/persist/TRegKey.h"

namespace qzbase::tests {

// In memory where the system has a place for that: a kill is as hard there, and disks take their time.
ScratchStore::ScratchStore()
    : folder_(std::filesystem::exists("/dev/shm") ? "/dev/shm" : std::filesystem::temp_directory_path()) {
  setenv("XDG_CONFIG_HOME", (Folder() / "config").c_str(), 1);
  setenv("QZBASE_STATE_FOLDER", (Folder() / "state").c_str(), 1);
}
ScratchStore::~ScratchStore() {
  unsetenv("XDG_CONFIG_HOME");
  unsetenv("QZBASE_STATE_FOLDER");
}

// The store itself gives every text its zero, which is cut off again.
void ScratchStore::StoreUnended(const std::string& pSection, const std::string& pKey, const std::string& pText) {
  os::WriteRegistryValue(HKEY_CURRENT_USER, pSection, pKey, {os::RegistryKind::Text, {pText.begin(), pText.end()}});
  const char* config = std::getenv("XDG_CONFIG_HOME");
  ASSERT_NE(config, nullptr);
  const std::string file = std::string(config) + "/qzbase/HKEY_CURRENT_USER.sqlite";
  sqlite3* database = nullptr;
  sqlite3_open(file.c_str(), &database);
  const os::DatabaseHandle handle(database);
  const char* cut = "UPDATE value SET data = substr(data, 1, length(data) - 1) WHERE kind = 1";
  EXPECT_EQ(sqlite3_exec(database, cut, nullptr, nullptr, nullptr), SQLITE_OK);
}

}  // namespace qzbase::tests
