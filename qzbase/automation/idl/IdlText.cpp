#include "qzbase/automation/idl/IdlText.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "qzbase/automation/Identities.h"
#include "qzbase/automation/idl/TypelibDefaults.h"

namespace qzbase::automation::idl {
namespace {

// In the order of the enumerators. Classes, records and enumerations go by their own names.
constexpr std::array<std::string_view, 14> kTypeNames = {
    "void", "VARIANT_BOOL", "unsigned char", "short",      "long", "float", "double",
    "DATE", "BSTR",         "VARIANT",       "IDispatch*", "",     "",      ""};
constexpr std::array<std::string_view, kMemberKinds> kKindAttributes = {"", ", propget", ", propput", ", propputref"};

std::string Quoted(std::string_view pText) {
  std::string text = "\"";
  for (const char each : pText) {
    if (each == '"' || each == '\\') text += '\\';
    text += each;
  }
  return text + "\"";
}

std::string TypeName(const TypeDesc& pType) {
  std::string name(pType.name.empty() ? kTypeNames[static_cast<std::size_t>(pType.base)] : pType.name);
  if (pType.base == BaseType::Class) name = "_" + name + "*";
  return pType.isArray && pType.fixedLength == 0 ? "SAFEARRAY(" + name + ")" : name;
}

std::string Attributes(const Identity& pIdentity, std::string_view pGuid, std::string_view pOthers = "") {
  std::string text = "[uuid(" + std::string(pGuid) + "), helpstring(" + Quoted(pIdentity.help) + ")";
  return text.append(pOthers) + "]";
}

// ---- Enumerations and records.

// Names all in capitals may be macros of the system's headers, which then would spoil the header made from this.
bool MayBeMacro(std::string_view pName) {
  return std::none_of(pName.begin(), pName.end(), [](char pEach) { return pEach >= 'a' && pEach <= 'z'; });
}

void AppendMacroGuards(std::string& pText, const EnumDesc& pEnumeration, bool pBefore) {
  for (const EnumItem& item : pEnumeration.items) {
    if (!MayBeMacro(item.name)) continue;
    const std::string name(item.name);
    pText += "  cpp_quote(\"#pragma " + std::string(pBefore ? "push" : "pop") + "_macro(\\\"" + name + "\\\")\")\n";
    if (pBefore) pText += "  cpp_quote(\"#undef " + name + "\")\n";
  }
}

void AppendEnumeration(std::string& pText, const EnumDesc& pEnumeration) {
  const std::string name(pEnumeration.identity->name);
  AppendMacroGuards(pText, pEnumeration, true);
  pText += "  typedef " + Attributes(*pEnumeration.identity, pEnumeration.identity->guid) + "\n  enum " + name + " {\n";
  for (const EnumItem& item : pEnumeration.items) {
    pText += "    " + std::string(item.name) + " = " + std::to_string(item.value);
    pText += &item == &pEnumeration.items.back() ? "\n" : ",\n";
  }
  pText += "  } " + name + ";\n";
  AppendMacroGuards(pText, pEnumeration, false);
}

void AppendRecord(std::string& pText, const RecordDesc& pRecord) {
  const std::string name(pRecord.identity->name);
  pText += "  typedef " + Attributes(*pRecord.identity, pRecord.identity->guid) + "\n  struct " + name + " {\n";
  for (const FieldDesc& field : pRecord.fields) {
    pText += "    " + TypeName(field.type) + " " + std::string(field.name);
    if (field.type.fixedLength != 0) pText += "[" + std::to_string(field.type.fixedLength) + "]";
    pText += ";\n";
  }
  pText += "  } " + name + ";\n";
}

// ---- Interfaces.

std::string DefaultAttribute(const ParameterDesc& pParameter) {
  using Kind = DefaultValue::Kind;
  const DefaultValue& value = pParameter.defaultValue;
  const BaseType base = pParameter.type.base;
  if (value.kind == Kind::None) return "";
  if (base == BaseType::Single) return "";  // a wrong default would be silent
  if (IsFloatingDefault(pParameter)) return ", defaultvalue(0)";
  if (pParameter.IsByRef()) return ", optional";
  switch (value.kind) {
    case Kind::Boolean:
      return value.number != 0 ? ", defaultvalue(-1)" : ", defaultvalue(0)";
    case Kind::Long:
      return ", defaultvalue(" + std::to_string(value.number) + ")";
    case Kind::Text:
      return ", defaultvalue(" + Quoted(std::string(value.text.begin(), value.text.end())) + ")";
    default:
      return ", optional";
  }
}

std::string ParameterText(const ParameterDesc& pParameter, IdlUse pUse) {
  const bool byRef = pParameter.IsByRef();
  const std::string attributes = std::string(pParameter.MayChange() ? "[in, out" : "[in") +
                                 (pUse == IdlUse::TypeLibrary ? DefaultAttribute(pParameter) : "");
  return attributes + "] " + TypeName(pParameter.type) + (byRef ? "* " : " ") + std::string(pParameter.name);
}

void AppendMember(std::string& pText, const MemberTable& pTable, const MemberDesc& pMember, IdlUse pUse) {
  pText += "    [id(" + std::to_string(pMember.id) + ")";
  pText += kKindAttributes[static_cast<std::size_t>(pMember.kind)];
  if (pMember.isHidden) pText += ", hidden";
  pText += ", helpstring(" + Quoted(pMember.help) + ")]\n    HRESULT " + std::string(pMember.name) + "(";
  bool first = true;
  const auto append = [&](const std::string& pParameter) {
    pText += (first ? "" : ", ") + pParameter;
    first = false;
  };
  for (const ParameterDesc& parameter : pTable.Parameters(pMember)) append(ParameterText(parameter, pUse));
  if (pMember.result.base != BaseType::Void)
    append("[out, retval] " + TypeName(pMember.result) + "* " + std::string(kResultName));
  pText += ");\n";
}

void AppendInterface(std::string& pText, const ClassDesc& pClass, IdlUse pUse) {
  const Identity& identity = *pClass.identity;
  pText += "  " + Attributes(identity, identity.interfaceGuid, ", object, dual, oleautomation, hidden, nonextensible");
  pText += "\n  interface _" + std::string(identity.name) + " : IDispatch {\n";
  for (const MemberDesc& member : pClass.members->rows) AppendMember(pText, *pClass.members, member, pUse);
  pText += "  };\n";
}

void AppendClass(std::string& pText, const ClassDesc& pClass) {
  const Identity& identity = *pClass.identity;
  const bool isGlobal = identity.kind == IdentityKind::GlobalClass;
  const std::string name(identity.name);
  pText += "  " + Attributes(identity, identity.guid, isGlobal ? ", appobject" : "") + "\n";
  pText += "  coclass " + name + " {\n    [default] interface _" + name + ";\n  };\n";
}

}  // namespace

std::string IdlText(const Catalog& pCatalog, IdlUse pUse) {
  std::string text = "// Made from the member tables by qzbase_idl: do not edit.\nimport \"oaidl.idl\";\n\n";
  text += "[uuid(" + std::string(kLibraryGuid) + "), version(" + std::string(kLibraryVersion) + "), helpstring(" +
          Quoted(kLibraryHelp) + ")]\nlibrary " + std::string(kLibraryName) + " {\n";
  text += "  importlib(\"stdole2.tlb\");\n";
  for (const EnumDesc& each : pCatalog.enumerations) AppendEnumeration(text, each);
  for (const RecordDesc& each : pCatalog.records) AppendRecord(text, each);
  for (const ClassDesc& each : pCatalog.classes) text += "  interface _" + std::string(each.identity->name) + ";\n";
  for (const ClassDesc& each : pCatalog.classes) AppendInterface(text, each, pUse);
  for (const ClassDesc& each : pCatalog.classes) AppendClass(text, each);
  return text + "};\n";
}

}  // namespace qzbase::automation::idl
