// Where the system keeps settings: values with names, in sections below a few roots.
//
// On Windows it is the registry. Elsewhere every root is a file (os/posix/RegistryFolder.h says where) and the roots
// behave as the registry's do: sections are paths of names with "\" between them, all names ignore case, and what a
// call has written is there whole or not at all, whenever the program is killed and however many write at once.
//
// A section and a key are 8-bit texts of the system's code page (CodePage.h). An empty section is the root itself.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace qzbase::os {

// The platform's result codes. On Windows any other may come back too.
enum class RegistryResult : std::int32_t {
  Success = 0,
  NotFound = 2,  // no such section, or no such key in it
  PathNotFound = 3,
  AccessDenied = 5,
  InvalidHandle = 6,  // no such root
  OutOfMemory = 14,
  DiskFull = 112,
  BadPathName = 161,  // a section begins with "\"
  Busy = 170,
  Corrupt = 1015,  // the store is damaged, and left as it is
  IoFailed = 1016,
};

// The platform's numbers of the kinds that this library keeps; do not change them. Others may be read.
enum class RegistryKind : std::uint32_t { None = 0, Text = 1, Binary = 3, Number = 4 };

struct RegistryValue {
  RegistryKind kind = RegistryKind::None;
  std::vector<std::uint8_t> data;
};

// Roots are numbered as in TRegKey; the platform knows number n as the handle 0x80000000 + n.

// Makes a section, and those above it, unless it is there.
RegistryResult MakeRegistrySection(std::int32_t pRoot, const std::string& pSection);

// Makes the section where it is missing; of no kind, the value is not written. A text is given without a final zero and
// stored with one, unless it is empty or its own last character is a zero.
RegistryResult WriteRegistryValue(std::int32_t pRoot, const std::string& pSection, const std::string& pKey,
                                  const RegistryValue& pValue);

// `pValue` is left as it was unless the value could be read.
RegistryResult ReadRegistryValue(std::int32_t pRoot, const std::string& pSection, const std::string& pKey,
                                 RegistryValue& pValue);

RegistryResult RemoveRegistryValue(std::int32_t pRoot, const std::string& pSection, const std::string& pKey);

// Deletes a section below an open section of the caller's, which `pHandle` stands for. Nothing in this library holds
// one open, so that on systems without a registry of their own every handle is invalid.
RegistryResult RemoveRegistrySection(std::int32_t pHandle, const std::string& pSection);

}  // namespace qzbase::os
