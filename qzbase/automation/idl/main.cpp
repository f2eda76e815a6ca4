// Writes what the Windows server is made of besides code: from the member tables, on the machine that builds.
//
//   qzbase_idl check                        nothing: only looks for faults
//   qzbase_idl idl FILE                     the interface definition of the type library
//   qzbase_idl header-idl FILE              the interface definition of the C++ header
//   qzbase_idl defaults LIBRARY FILE        the type library with the defaults that its compiler left out
//   qzbase_idl manifest amd64|x86 FILE      the manifest for use without registration
//
// Faults in the tables go to the error output, one a line; then nothing is written and the exit code is 1.
#include <cstdio>
#include <fstream>
#include <iterator>
#include <span>
#include <string>
#include <string_view>

#include "qzbase/automation/idl/CatalogCheck.h"
#include "qzbase/automation/idl/IdlText.h"
#include "qzbase/automation/idl/ManifestText.h"
#include "qzbase/automation/idl/TypelibDefaults.h"

namespace {

using namespace qzbase::automation;
using namespace qzbase::automation::idl;

bool HasFaults(const Catalog& pCatalog) {
  const auto faults = FaultsOf(pCatalog);
  for (const std::string& fault : faults) std::fprintf(stderr, "qzbase_idl: %s\n", fault.c_str());
  return !faults.empty();
}

int Write(const std::string& pText, const char* pFile) {
  std::FILE* file = std::fopen(pFile, "wb");
  const bool written = file && std::fwrite(pText.data(), 1, pText.size(), file) == pText.size();
  if (file && std::fclose(file) == 0 && written) return 0;
  std::fprintf(stderr, "qzbase_idl: cannot write %s\n", pFile);
  return 1;
}

int WriteWithDefaults(const Catalog& pCatalog, const char* pLibrary, const char* pFile) {
  std::ifstream file(pLibrary, std::ios::binary);
  std::string bytes(std::istreambuf_iterator<char>(file), {});
  if (WriteFloatingDefaults(bytes, pCatalog)) return Write(bytes, pFile);
  std::fprintf(stderr, "qzbase_idl: %s has no places for the defaults\n", pLibrary);
  return 1;
}

}  // namespace

int main(int pCount, char** pValues) {
  const std::span arguments(pValues, static_cast<std::size_t>(pCount));
  const std::string_view verb = pCount > 1 ? arguments[1] : "";
  const Catalog& catalog = LibraryCatalog();
  if (verb == "check" && pCount == 2) return HasFaults(catalog) ? 1 : 0;
  if (verb == "idl" && pCount == 3)
    return HasFaults(catalog) ? 1 : Write(IdlText(catalog, IdlUse::TypeLibrary), arguments[2]);
  if (verb == "header-idl" && pCount == 3)
    return HasFaults(catalog) ? 1 : Write(IdlText(catalog, IdlUse::Header), arguments[2]);
  if (verb == "defaults" && pCount == 4) return WriteWithDefaults(catalog, arguments[2], arguments[3]);
  if (verb == "manifest" && pCount == 4)
    return HasFaults(catalog) ? 1 : Write(ManifestText(catalog, arguments[2]), arguments[3]);
  std::fputs("usage: qzbase_idl check | idl FILE | header-idl FILE | defaults LIBRARY FILE | manifest amd64|x86 FILE\n",
             stderr);
  return 2;
}
