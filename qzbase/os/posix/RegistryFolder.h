// The files of the registry store: one a root, each named like it.
//
//   the user's root       $XDG_CONFIG_HOME/qzbase/HKEY_CURRENT_USER.sqlite, else below ~/.config
//   machine-wide roots    /var/lib/qzbase/HKEY_LOCAL_MACHINE.sqlite and so on; $QZBASE_STATE_FOLDER names another
//                         folder, for tests and for machines that keep state elsewhere
#pragma once

#include <cstdint>
#include <string>

#include "qzbase/os/RegistryStore.h"

namespace qzbase::os {

struct RegistryFile {
  std::string folder;
  std::string path;
  bool isUsers = false;  // nobody else may look into the folder
};

// InvalidHandle for a root without a file; PathNotFound where nothing says which folder is the user's.
RegistryResult FindRegistryFile(std::int32_t pRoot, RegistryFile& pFile);

// Makes the folder, and those above it.
RegistryResult MakeRegistryFolder(const RegistryFile& pFile);

// PathNotFound, AccessDenied and so on for what a call of the system has left in `errno`.
RegistryResult ResultOfErrno(int pErrno) noexcept;

}  // namespace qzbase::os
