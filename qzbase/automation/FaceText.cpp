#include "qzbase/automation/FaceText.h"

#include <array>
#include <charconv>
#include <cstddef>

#include "qzbase/automation/Identities.h"
#include "qzbase/os/Utf8.h"

namespace qzbase::automation {
namespace {

// In the order of the enumerators. Classes, records and enumerations go by their own names.
constexpr std::array<std::string_view, 14> kTypeNames = {
    "", "Boolean", "Byte", "Integer", "Long", "Single", "Double", "Date", "String", "Variant", "Object", "", "", ""};
constexpr std::array<std::string_view, kMemberKinds> kKindNames = {"method", "get", "let", "set"};

std::string Braced(std::string_view pGuid) {
  return " {" + std::string(pGuid) + "}";
}

// The shortest text that reads back as the same number, with an upper-case exponent.
std::string NumberText(double pValue) {
  std::array<char, 32> buffer;
  const auto end = std::to_chars(buffer.begin(), buffer.end(), pValue).ptr;
  std::string text(buffer.begin(), end);
  for (char& each : text)
    if (each == 'e') each = 'E';
  return text;
}

std::string DefaultText(const DefaultValue& pValue) {
  switch (pValue.kind) {
    case DefaultValue::Kind::None:
      return {};
    case DefaultValue::Kind::Unset:
      return " = ?";
    case DefaultValue::Kind::Boolean:
      return pValue.number != 0 ? " = True" : " = False";
    case DefaultValue::Kind::Long:
      return " = " + std::to_string(pValue.number);
    case DefaultValue::Kind::Double:
      return " = " + NumberText(pValue.real);
    case DefaultValue::Kind::Text:
      return " = \"" + os::ToUtf8(pValue.text) + "\"";
  }
  return {};
}

std::string ParameterText(const ParameterDesc& pParameter) {
  return std::string(pParameter.name) + ": " + TypeText(pParameter.type) + DefaultText(pParameter.defaultValue);
}

void AppendEnumeration(std::string& pText, const EnumDesc& pEnumeration) {
  const std::string name(pEnumeration.identity->name);
  pText += "enum " + name + Braced(pEnumeration.identity->guid) + "\n";
  for (const EnumItem& item : pEnumeration.items)
    pText += name + "." + std::string(item.name) + " = " + std::to_string(item.value) + "\n";
}

void AppendRecord(std::string& pText, const RecordDesc& pRecord) {
  const std::string name(pRecord.identity->name);
  pText += "record " + name + Braced(pRecord.identity->guid) + "\n";
  for (const FieldDesc& field : pRecord.fields)
    pText += name + "." + std::string(field.name) + ": " + TypeText(field.type) + "\n";
}

void AppendClass(std::string& pText, const ClassEntry& pClass) {
  const Identity& identity = *pClass.identity;
  pText += identity.kind == IdentityKind::GlobalClass ? "global class " : "class ";
  pText += std::string(identity.name) + Braced(identity.guid) + " interface" + Braced(identity.interfaceGuid) + "\n";
  for (const MemberDesc& member : pClass.members->rows) pText += MemberText(pClass, member) + "\n";
}

}  // namespace

std::string TypeText(const TypeDesc& pType) {
  std::string text = pType.isByRef ? "ByRef " : "";
  text += pType.name.empty() ? kTypeNames[static_cast<std::size_t>(pType.base)] : pType.name;
  if (pType.isArray) text += pType.fixedLength != 0 ? "(0 To " + std::to_string(pType.fixedLength - 1) + ")" : "()";
  return text;
}

std::string MemberText(const ClassEntry& pClass, const MemberDesc& pMember) {
  std::string text = std::string(pClass.identity->name) + " " + std::to_string(pMember.id) + " ";
  text += kKindNames[static_cast<std::size_t>(pMember.kind)];
  text += " " + std::string(pMember.name) + "(";
  bool first = true;
  for (const ParameterDesc& parameter : pClass.members->Parameters(pMember)) {
    text += (first ? "" : ", ") + ParameterText(parameter);
    first = false;
  }
  text += ")";
  if (pMember.result.base != BaseType::Void) text += ": " + TypeText(pMember.result);
  return pMember.isHidden ? text + " hidden" : text;
}

std::string FaceText() {
  std::string text = "library " + std::string(kLibraryName) + " " + std::string(kLibraryVersion) + Braced(kLibraryGuid);
  text += "\n";
  for (const EnumDesc& enumeration : Enumerations()) AppendEnumeration(text, enumeration);
  for (const RecordEntry& record : Records()) AppendRecord(text, *record.desc);
  for (const ClassEntry* entry : Classes()) AppendClass(text, *entry);
  return text;
}

}  // namespace qzbase::automation
