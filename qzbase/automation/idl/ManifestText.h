// The manifest by which programs use the server without registering it: they name its assembly in a manifest of their
// own or activate this one, and have the DLL beside it.
#pragma once

#include <string>
#include <string_view>

#include "qzbase/automation/Catalog.h"

namespace qzbase::automation::idl {

// The name of the assembly and of its file. Not the DLL's own, since Windows looks into a DLL of the assembly's name
// first.
inline constexpr std::string_view kAssemblyName = "QZBase.Server";

// `pArchitecture` is that of the DLL: "amd64" or "x86".
std::string ManifestText(const Catalog& pCatalog, std::string_view pArchitecture);

}  // namespace qzbase::automation::idl
