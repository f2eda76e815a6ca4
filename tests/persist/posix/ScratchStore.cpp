#include "tests/persist/ScratchStore.h"

#include <cstdlib>

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

}  // namespace qzbase::tests
