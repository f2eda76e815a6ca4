#include "qzbase/automation/idl/ManifestText.h"

#include "qzbase/automation/Identities.h"

namespace qzbase::automation::idl {
namespace {

// Marshals automation interfaces by their type library.
constexpr std::string_view kAutomationMarshaller = "{00020424-0000-0000-C000-000000000046}";

std::string Attribute(std::string_view pName, std::string_view pValue) {
  return " " + std::string(pName) + "=\"" + std::string(pValue) + "\"";
}

std::string Braced(std::string_view pGuid) {
  return "{" + std::string(pGuid) + "}";
}

std::string ClassElement(const Identity& pIdentity) {
  return "    <comClass" + Attribute("clsid", Braced(pIdentity.guid)) +
         Attribute("progid", std::string(kLibraryName) + "." + std::string(pIdentity.name)) +
         Attribute("threadingModel", "Apartment") + Attribute("tlbid", Braced(kLibraryGuid)) + "/>\n";
}

std::string InterfaceElement(const Identity& pIdentity) {
  return "  <comInterfaceExternalProxyStub" + Attribute("name", "_" + std::string(pIdentity.name)) +
         Attribute("iid", Braced(pIdentity.interfaceGuid)) + Attribute("tlbid", Braced(kLibraryGuid)) +
         Attribute("proxyStubClsid32", kAutomationMarshaller) + "/>\n";
}

}  // namespace

std::string ManifestText(const Catalog& pCatalog, std::string_view pArchitecture) {
  std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n";
  text += "<assembly xmlns=\"urn:schemas-microsoft-com:asm.v1\" manifestVersion=\"1.0\">\n";
  text += "  <assemblyIdentity" + Attribute("type", "win32") + Attribute("name", kAssemblyName) +
          Attribute("version", std::string(kLibraryVersion) + ".0.0") +
          Attribute("processorArchitecture", pArchitecture) + "/>\n";
  text += "  <file" + Attribute("name", std::string(kLibraryName) + ".dll") + ">\n";
  for (const ClassDesc& each : pCatalog.classes) text += ClassElement(*each.identity);
  text += "    <typelib" + Attribute("tlbid", Braced(kLibraryGuid)) + Attribute("version", kLibraryVersion) +
          Attribute("helpdir", "") + "/>\n  </file>\n";
  for (const ClassDesc& each : pCatalog.classes) text += InterfaceElement(*each.identity);
  return text + "</assembly>\n";
}

}  // namespace qzbase::automation::idl
