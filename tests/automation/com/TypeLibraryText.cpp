#include "TypeLibraryText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <map>
#include <string_view>
#include <vector>

#include "Client.h"

namespace qzbase::tests {
namespace {

const std::map<int, std::string_view> kTypeNames = {
    {VT_BOOL, "Boolean"}, {VT_UI1, "Byte"},  {VT_I2, "Integer"},  {VT_I4, "Long"},         {VT_R4, "Single"},
    {VT_R8, "Double"},    {VT_DATE, "Date"}, {VT_BSTR, "String"}, {VT_VARIANT, "Variant"}, {VT_DISPATCH, "Object"}};
const std::map<int, std::string_view> kKindNames = {
    {INVOKE_FUNC, "method"}, {INVOKE_PROPERTYGET, "get"}, {INVOKE_PROPERTYPUT, "let"}, {INVOKE_PROPERTYPUTREF, "set"}};

// All names are plain ASCII.
std::string Narrow(std::u16string_view pText) {
  return {pText.begin(), pText.end()};
}

std::string NumberOf(long long pNumber) {
  return std::to_string(pNumber);
}

std::string Braced(REFGUID pId) {
  std::array<wchar_t, 40> text{};
  StringFromGUID2(pId, text.data(), static_cast<int>(text.size()));
  std::string result = " ";
  for (const wchar_t each : text)
    if (each != 0) result += static_cast<char>(each);
  return result;
}

// The parts of a type description, which the type frees.
class TypeInfo {
 public:
  explicit TypeInfo(ComRef<ITypeInfo> pInfo) : info_(std::move(pInfo)) { info_->GetTypeAttr(&attributes_); }
  ~TypeInfo() { info_->ReleaseTypeAttr(attributes_); }
  TypeInfo(const TypeInfo&) = delete;
  TypeInfo& operator=(const TypeInfo&) = delete;

  ITypeInfo* operator->() const { return info_.Get(); }
  const TYPEATTR& Attributes() const { return *attributes_; }

  std::string Name(MEMBERID pMember = MEMBERID_NIL) const {
    BSTR name = nullptr;
    info_->GetDocumentation(pMember, &name, nullptr, nullptr, nullptr);
    return Narrow(Taken(name));
  }
  // A remark where there is no help.
  std::string WithoutHelp(MEMBERID pMember = MEMBERID_NIL) const {
    BSTR help = nullptr;
    info_->GetDocumentation(pMember, nullptr, &help, nullptr, nullptr);
    return Taken(help).empty() ? " without help" : "";
  }

  ComRef<ITypeInfo> Referred(HREFTYPE pType) const {
    ComRef<ITypeInfo> result;
    EXPECT_EQ(S_OK, info_->GetRefTypeInfo(pType, result.Put()));
    return result;
  }
  ComRef<ITypeInfo> Implemented(UINT pIndex) const {
    HREFTYPE type = 0;
    EXPECT_EQ(S_OK, info_->GetRefTypeOfImplType(pIndex, &type));
    return Referred(type);
  }

 private:
  ComRef<ITypeInfo> info_;
  TYPEATTR* attributes_ = nullptr;
};

// The name of a record, an enumeration, or of the class that an interface belongs to.
std::string ReferredName(const TypeInfo& pInfo, HREFTYPE pType) {
  const std::string name = TypeInfo(pInfo.Referred(pType)).Name();
  return name.starts_with('_') ? name.substr(1) : name;
}

bool IsInterface(const TypeInfo& pInfo, const TYPEDESC& pType) {
  if (pType.vt != VT_USERDEFINED) return false;
  const TYPEKIND kind = TypeInfo(pInfo.Referred(pType.hreftype)).Attributes().typekind;
  return kind == TKIND_DISPATCH || kind == TKIND_INTERFACE;
}

std::string TypeText(const TypeInfo& pInfo, const TYPEDESC& pType) {
  switch (pType.vt) {
    case VT_PTR:
      if (IsInterface(pInfo, *pType.lptdesc)) return ReferredName(pInfo, pType.lptdesc->hreftype);
      return "ByRef " + TypeText(pInfo, *pType.lptdesc);
    case VT_SAFEARRAY:
      return TypeText(pInfo, *pType.lptdesc) + "()";
    case VT_CARRAY:
      return TypeText(pInfo, pType.lpadesc->tdescElem) + "(0 To " +
             NumberOf(static_cast<long long>(pType.lpadesc->rgbounds[0].cElements) - 1) + ")";
    case VT_USERDEFINED:
      return ReferredName(pInfo, pType.hreftype);
    default:
      return kTypeNames.contains(pType.vt) ? std::string(kTypeNames.at(pType.vt)) : "type " + NumberOf(pType.vt);
  }
}

std::string DefaultText(const PARAMDESC& pParameter) {
  if ((pParameter.wParamFlags & PARAMFLAG_FOPT) == 0) return "";
  if ((pParameter.wParamFlags & PARAMFLAG_FHASDEFAULT) == 0) return " = ?";
  const VARIANT& value = pParameter.pparamdescex->varDefaultValue;
  switch (value.vt) {
    case VT_BOOL:
      return value.boolVal != VARIANT_FALSE ? " = True" : " = False";
    case VT_I4:
      return " = " + NumberOf(value.lVal);
    case VT_R8: {
      std::array<char, 32> text{};
      const auto end = std::to_chars(text.begin(), text.end(), value.dblVal).ptr;
      std::replace(text.begin(), end, 'e', 'E');
      return " = " + std::string(text.begin(), end);
    }
    case VT_BSTR:
      return " = \"" + Narrow(automation::com::TextIn(value.bstrVal)) + "\"";
    default:
      return " = type " + NumberOf(value.vt);
  }
}

// ---- Members.

// The name of a member and those of its parameters. The new value of a put has none.
std::vector<std::string> NamesOf(const TypeInfo& pInfo, const FUNCDESC& pMember) {
  std::vector<BSTR> names(static_cast<std::size_t>(pMember.cParams) + 1);
  UINT count = 0;
  EXPECT_EQ(S_OK, pInfo->GetNames(pMember.memid, names.data(), static_cast<UINT>(names.size()), &count));
  std::vector<std::string> result;
  for (const BSTR name : names) result.push_back(Narrow(Taken(name)));
  if ((pMember.invkind & (INVOKE_PROPERTYPUT | INVOKE_PROPERTYPUTREF)) != 0) result.back() = "pNewValue";
  return result;
}

std::string MemberText(const TypeInfo& pInfo, const FUNCDESC& pMember) {
  const std::vector<std::string> names = NamesOf(pInfo, pMember);
  std::string parameters;
  std::string result;
  for (std::size_t i = 0; i < static_cast<std::size_t>(pMember.cParams); ++i) {
    const ELEMDESC& each = pMember.lprgelemdescParam[i];
    if ((each.paramdesc.wParamFlags & PARAMFLAG_FRETVAL) != 0) {
      result = ": " + TypeText(pInfo, *each.tdesc.lptdesc);
    } else {
      const std::string type = TypeText(pInfo, each.tdesc);
      const bool isInOnly = type.starts_with("ByRef") && (each.paramdesc.wParamFlags & PARAMFLAG_FOUT) == 0;
      parameters += (i == 0 ? "" : ", ") + names[i + 1] + (isInOnly ? ": In " : ": ") + type;
      parameters += DefaultText(each.paramdesc);
    }
  }
  return NumberOf(pMember.memid) + " " + std::string(kKindNames.at(pMember.invkind)) + " " + names[0] + "(" +
         parameters + ")" + result + ((pMember.wFuncFlags & FUNCFLAG_FHIDDEN) != 0 ? " hidden" : "");
}

void AppendMembers(std::string& pText, const std::string& pClass, const TypeInfo& pInterface) {
  constexpr std::size_t kInheritedSlots = 7;
  for (UINT i = 0; i < pInterface.Attributes().cFuncs; ++i) {
    FUNCDESC* member = nullptr;
    if (FAILED(pInterface->GetFuncDesc(i, &member))) {
      pText += pClass + " member " + NumberOf(i) + " cannot be read\n";
      continue;
    }
    pText += pClass + " " + MemberText(pInterface, *member) + pInterface.WithoutHelp(member->memid);
    const auto offset = static_cast<std::size_t>(member->oVft);
    if (offset != (kInheritedSlots + i) * sizeof(void*)) pText += " at " + NumberOf(member->oVft);
    pText += "\n";
    pInterface->ReleaseFuncDesc(member);
  }
}

void AppendClass(std::string& pText, const TypeInfo& pClass) {
  const std::string name = pClass.Name();
  const TypeInfo face(pClass.Implemented(0));
  // The dispatch interface's other side.
  const TypeInfo slots(face.Implemented(static_cast<UINT>(-1)));
  pText += (pClass.Attributes().wTypeFlags & TYPEFLAG_FAPPOBJECT) != 0 ? "global class " : "class ";
  pText += name + Braced(pClass.Attributes().guid) + " interface" + Braced(face.Attributes().guid);
  if (face.Name() != "_" + name) pText += " named " + face.Name();
  if ((pClass.Attributes().wTypeFlags & TYPEFLAG_FCANCREATE) == 0) pText += " not creatable";
  pText += pClass.WithoutHelp() + "\n";
  AppendMembers(pText, name, slots);
}

// ---- Records and enumerations.

void AppendFields(std::string& pText, const TypeInfo& pInfo) {
  const bool isRecord = pInfo.Attributes().typekind == TKIND_RECORD;
  const std::string name = pInfo.Name();
  pText += (isRecord ? "record " : "enum ") + name + Braced(pInfo.Attributes().guid) + pInfo.WithoutHelp() + "\n";
  for (UINT i = 0; i < pInfo.Attributes().cVars; ++i) {
    VARDESC* field = nullptr;
    ASSERT_EQ(S_OK, pInfo->GetVarDesc(i, &field));
    pText += name + "." + pInfo.Name(field->memid);
    pText += isRecord ? ": " + TypeText(pInfo, field->elemdescVar.tdesc) : " = " + NumberOf(field->lpvarValue->lVal);
    pText += "\n";
    pInfo->ReleaseVarDesc(field);
  }
}

void AppendKind(std::string& pText, ITypeLib& pLibrary, TYPEKIND pKind) {
  for (UINT i = 0; i < pLibrary.GetTypeInfoCount(); ++i) {
    TYPEKIND kind{};
    pLibrary.GetTypeInfoType(i, &kind);
    if (kind != pKind) continue;
    ComRef<ITypeInfo> info;
    ASSERT_EQ(S_OK, pLibrary.GetTypeInfo(i, info.Put()));
    const TypeInfo type(std::move(info));
    if (kind == TKIND_COCLASS)
      AppendClass(pText, type);
    else
      AppendFields(pText, type);
  }
}

}  // namespace

std::string TypeLibraryText(ITypeLib& pLibrary) {
  BSTR name = nullptr;
  TLIBATTR* attributes = nullptr;
  pLibrary.GetDocumentation(-1, &name, nullptr, nullptr, nullptr);
  pLibrary.GetLibAttr(&attributes);
  std::string text = "library " + Narrow(Taken(name)) + " " + NumberOf(attributes->wMajorVerNum) + "." +
                     NumberOf(attributes->wMinorVerNum) + Braced(attributes->guid) + "\n";
  pLibrary.ReleaseTLibAttr(attributes);
  for (const TYPEKIND kind : {TKIND_ENUM, TKIND_RECORD, TKIND_COCLASS}) AppendKind(text, pLibrary, kind);
  return text;
}

}  // namespace qzbase::tests
