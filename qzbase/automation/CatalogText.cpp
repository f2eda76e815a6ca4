#include "qzbase/automation/CatalogText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <initializer_list>
#include <string_view>

#include "qzbase/automation/Identities.h"
#include "qzbase/os/Utf8.h"

namespace qzbase::automation {
namespace {

// In the order of the enumerators. Classes, records and enumerations go by their own names.
constexpr std::array<std::string_view, 14> kTypeNames = {
    "", "Boolean", "Byte", "Integer", "Long", "Single", "Double", "Date", "String", "Variant", "Object", "", "", ""};
constexpr std::array<std::string_view, kMemberKinds> kKindNames = {"method", "get", "let", "set"};

std::string Joined(std::initializer_list<std::string_view> pParts) {
  std::string text;
  for (const std::string_view part : pParts) text += part;
  return text;
}

// The shortest text that reads back as the same number, with an upper-case exponent.
std::string NumberText(double pValue) {
  std::array<char, 32> buffer;
  const auto end = std::to_chars(buffer.begin(), buffer.end(), pValue).ptr;
  std::replace(buffer.begin(), end, 'e', 'E');
  return {buffer.begin(), end};
}

std::string DefaultText(const DefaultValue& pValue) {
  switch (pValue.kind) {
    case DefaultValue::Kind::None:
      return {};
    case DefaultValue::Kind::Unset:
      return "?";
    case DefaultValue::Kind::Boolean:
      return pValue.number != 0 ? "True" : "False";
    case DefaultValue::Kind::Long:
      return std::to_string(pValue.number);
    case DefaultValue::Kind::Double:
      return NumberText(pValue.real);
    case DefaultValue::Kind::Text:
      return Joined({"\"", os::ToUtf8(pValue.text), "\""});
  }
  return {};
}

std::string ParameterText(const ParameterDesc& pParameter) {
  const std::string type = (!pParameter.IsByRef()    ? ""
                            : pParameter.MayChange() ? "ByRef "
                                                     : "In ByRef ") +
                           TypeText(pParameter.type);
  if (!pParameter.IsOptional()) return Joined({pParameter.name, ": ", type});
  return Joined({pParameter.name, ": ", type, " = ", DefaultText(pParameter.defaultValue)});
}

std::string EnumerationText(const EnumDesc& pEnumeration) {
  const std::string_view name = pEnumeration.identity->name;
  std::string text = Joined({"enum ", name, " {", pEnumeration.identity->guid, "}\n"});
  for (const EnumItem& item : pEnumeration.items)
    text += Joined({name, ".", item.name, " = ", std::to_string(item.value), "\n"});
  return text;
}

std::string RecordText(const RecordDesc& pRecord) {
  const std::string_view name = pRecord.identity->name;
  std::string text = Joined({"record ", name, " {", pRecord.identity->guid, "}\n"});
  for (const FieldDesc& field : pRecord.fields)
    text += Joined({name, ".", field.name, ": ", TypeText(field.type), "\n"});
  return text;
}

std::string ClassText(const ClassDesc& pClass) {
  const Identity& identity = *pClass.identity;
  const std::string_view kind = identity.kind == IdentityKind::GlobalClass ? "global class " : "class ";
  std::string text = Joined({kind, identity.name, " {", identity.guid, "} interface {", identity.interfaceGuid, "}\n"});
  for (const MemberDesc& member : pClass.members->rows) text += MemberText(pClass, member) + "\n";
  return text;
}

}  // namespace

std::string TypeText(const TypeDesc& pType) {
  const std::string_view name = pType.name.empty() ? kTypeNames[static_cast<std::size_t>(pType.base)] : pType.name;
  const std::string bounds = pType.fixedLength != 0 ? Joined({"(0 To ", std::to_string(pType.fixedLength - 1), ")"})
                             : pType.isArray        ? "()"
                                                    : "";
  return Joined({name, bounds});
}

std::string MemberText(const ClassDesc& pClass, const MemberDesc& pMember) {
  std::string parameters;
  for (const ParameterDesc& each : pClass.members->Parameters(pMember)) {
    if (!parameters.empty()) parameters += ", ";
    parameters += ParameterText(each);
  }
  const std::string result = TypeText(pMember.result);
  return Joined({pClass.identity->name, " ", std::to_string(pMember.id), " ",
                 kKindNames[static_cast<std::size_t>(pMember.kind)], " ", pMember.name, "(", parameters, ")",
                 result.empty() ? "" : ": ", result, pMember.isHidden ? " hidden" : ""});
}

std::string CatalogText(const Catalog& pCatalog) {
  std::string text = Joined({"library ", kLibraryName, " ", kLibraryVersion, " {", kLibraryGuid, "}\n"});
  for (const EnumDesc& each : pCatalog.enumerations) text += EnumerationText(each);
  for (const RecordDesc& each : pCatalog.records) text += RecordText(each);
  for (const ClassDesc& each : pCatalog.classes) text += ClassText(each);
  return text;
}

}  // namespace qzbase::automation
