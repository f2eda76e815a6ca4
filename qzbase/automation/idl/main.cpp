// Writes what the Windows server is made of besides code: from the member tables, on the machine that builds.
//
//   qzbase_idl check                        nothing: only looks for faults
//   qzbase_idl idl FILE                     the interface definition of the type library
//   qzbase_idl header-idl FILE              the interface definition of the C++ header
//   qzbase_idl manifest amd64|x86 FILE      the manifest for use without registration
//
// Faults in the tables go to the error output, one a line; then nothing is written and the exit code is 1.
#include <cstdio>
#include <span>
#include <string>
#include <string_view>

#include "qzbase/automation/idl/FaceCheck.h"
#include "qzbase/automation/idl/IdlText.h"
#include "qzbase/automation/idl/ManifestText.h"

namespace {

using namespace qzbase::automation::idl;

bool HasFaults(const Face& pFace) {
  const auto faults = FaultsOf(pFace);
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

}  // namespace

int main(int pCount, char** pValues) {
  const std::span arguments(pValues, static_cast<std::size_t>(pCount));
  const std::string_view verb = pCount > 1 ? arguments[1] : "";
  const Face& face = LibraryFace();
  if (verb == "check" && pCount == 2) return HasFaults(face) ? 1 : 0;
  if (verb == "idl" && pCount == 3)
    return HasFaults(face) ? 1 : Write(IdlText(face, IdlUse::TypeLibrary), arguments[2]);
  if (verb == "header-idl" && pCount == 3)
    return HasFaults(face) ? 1 : Write(IdlText(face, IdlUse::Header), arguments[2]);
  if (verb == "manifest" && pCount == 4)
    return HasFaults(face) ? 1 : Write(ManifestText(face, arguments[2]), arguments[3]);
  std::fputs("usage: qzbase_idl check | idl FILE | header-idl FILE | manifest amd64|x86 FILE\n", stderr);
  return 2;
}
