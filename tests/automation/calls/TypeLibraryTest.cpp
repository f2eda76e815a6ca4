// The type library inside the server, read back through the system, says what the tables say.
#include <string>

#include <gtest/gtest.h>

#include "qzbase/automation/Catalog.h"
#include "qzbase/automation/com/Conversion.h"
#include "qzbase/automation/com/Guid.h"
#include "qzbase/automation/com/Module.h"
#include "qzbase/os/Utf8.h"
#include "qzbase/runtime/Convert.h"
#include "tests/automation/calls/HostCalls.h"

namespace qzbase::tests {
namespace {

using namespace automation;
using namespace automation::com;

std::string Taken(BSTR pText) {
  const OwnedText text = OwnedText::Owning(pText);
  return os::ToUtf8(TextIn(text.Get()));
}

// A type description with its attributes, which it frees.
class Described {
 public:
  explicit Described(ComRef<ITypeInfo> pInfo) : info_(std::move(pInfo)) { info_->GetTypeAttr(&attributes_); }
  // Found by its identifier.
  explicit Described(const Identity& pIdentity) : Described(TypeInfoOf(ParseGuid(pIdentity.guid))) {
    EXPECT_EQ(std::pair(std::string(pIdentity.name), std::string(pIdentity.help)), Texts());
  }
  ~Described() { info_->ReleaseTypeAttr(attributes_); }
  Described(const Described&) = delete;
  Described& operator=(const Described&) = delete;

  ITypeInfo* operator->() const { return info_.Get(); }
  const TYPEATTR& Attributes() const { return *attributes_; }

  Described Referred(HREFTYPE pType) const {
    ComRef<ITypeInfo> result;
    EXPECT_EQ(S_OK, info_->GetRefTypeInfo(pType, result.Put()));
    return Described(std::move(result));
  }
  Described Implemented(UINT pAt) const {
    HREFTYPE type = 0;
    EXPECT_EQ(S_OK, info_->GetRefTypeOfImplType(pAt, &type));
    return Referred(type);
  }
  // Name and help.
  std::pair<std::string, std::string> Texts(MEMBERID pMember = MEMBERID_NIL) const {
    BSTR name = nullptr;
    BSTR help = nullptr;
    info_->GetDocumentation(pMember, &name, &help, nullptr, nullptr);
    return {Taken(name), Taken(help)};
  }

  std::string TypeName(const TYPEDESC& pType) const {
    if (pType.vt == VT_PTR) return TypeName(*pType.lptdesc) + "*";
    if (pType.vt == VT_SAFEARRAY) return TypeName(*pType.lptdesc) + "()";
    if (pType.vt == VT_CARRAY)
      return TypeName(pType.lpadesc->tdescElem) + "(" + std::to_string(pType.lpadesc->rgbounds[0].cElements) + ")";
    return pType.vt == VT_USERDEFINED ? Referred(pType.hreftype).Texts().first : std::to_string(pType.vt);
  }

 private:
  ComRef<ITypeInfo> info_;
  TYPEATTR* attributes_ = nullptr;
};

std::string TypeName(const TypeDesc& pType, bool pIsPointer = false) {
  const std::string name(pType.name);
  const std::string bound = pType.fixedLength != 0 ? std::to_string(pType.fixedLength) : "";
  return (pType.base == BaseType::Class ? "_" + name + "*"
          : name.empty()                ? std::to_string(TypeOf(pType) & ~VT_ARRAY)
                                        : name) +
         (pType.isArray ? "(" + bound + ")" : "") + (pIsPointer ? "*" : "");
}

// A variant that is left out says so to the member, which knows its default; so do variables.
void CheckParameter(const Described& pFace, const ELEMDESC& pActual, const ParameterDesc& pWanted) {
  EXPECT_EQ(TypeName(pWanted.type, pWanted.IsByRef()), pFace.TypeName(pActual.tdesc));
  const USHORT flags = pActual.paramdesc.wParamFlags;
  EXPECT_EQ(PARAMFLAG_FIN | (pWanted.MayChange() ? PARAMFLAG_FOUT : 0) | (pWanted.IsOptional() ? PARAMFLAG_FOPT : 0),
            flags & ~PARAMFLAG_FHASDEFAULT);
  const bool hasDefault = pWanted.IsOptional() && pWanted.defaultValue.kind != DefaultValue::Kind::Unset &&
                          pWanted.type.base != BaseType::Variant && !pWanted.IsByRef();
  ASSERT_EQ(hasDefault, (flags & PARAMFLAG_FHASDEFAULT) != 0);
  if (!hasDefault) return;
  const VARIANT& value = pActual.paramdesc.pparamdescex->varDefaultValue;
  EXPECT_EQ(runtime::ToText(DefaultOf(pWanted)), runtime::ToText(FromVariant(value, Digits::All)));
}

void CheckMember(const Described& pFace, const FUNCDESC& pActual, const MemberTable& pMembers, std::size_t pRow) {
  static constexpr INVOKEKIND kKinds[] = {INVOKE_FUNC, INVOKE_PROPERTYGET, INVOKE_PROPERTYPUT, INVOKE_PROPERTYPUTREF};
  const MemberDesc& wanted = pMembers.rows[pRow];
  const auto parameters = pMembers.Parameters(wanted);
  EXPECT_EQ(wanted.id, pActual.memid);
  EXPECT_EQ(kKinds[static_cast<std::size_t>(wanted.kind)], pActual.invkind);
  EXPECT_EQ((7 + pRow) * sizeof(void*), static_cast<std::size_t>(pActual.oVft));
  EXPECT_EQ(wanted.isHidden, (pActual.wFuncFlags & FUNCFLAG_FHIDDEN) != 0);
  EXPECT_EQ(std::pair(std::string(wanted.name), std::string(wanted.help)), pFace.Texts(pActual.memid));
  const bool hasResult = wanted.result.base != BaseType::Void;
  ASSERT_EQ(parameters.size() + (hasResult ? 1 : 0), static_cast<std::size_t>(pActual.cParams));
  BSTR names[kMaxParameters + 2] = {};
  UINT count = 0;
  EXPECT_EQ(S_OK, pFace->GetNames(pActual.memid, names, kMaxParameters + 2, &count));
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    const bool isNewValue = wanted.IsPut() && i + 1 == parameters.size();  // has no name of its own
    const std::string name = Taken(std::exchange(names[i + 1], nullptr));
    EXPECT_EQ(isNewValue ? name : parameters[i].name, name);
    CheckParameter(pFace, pActual.lprgelemdescParam[i], parameters[i]);
  }
  for (const BSTR name : names) SysFreeString(name);
  if (!hasResult) return;
  const ELEMDESC& result = pActual.lprgelemdescParam[parameters.size()];
  EXPECT_EQ(PARAMFLAG_FOUT | PARAMFLAG_FRETVAL, result.paramdesc.wParamFlags);
  EXPECT_EQ(TypeName(wanted.result, true), pFace.TypeName(result.tdesc));
}

void CheckClass(const ClassDesc& pWanted) {
  const Described actual(*pWanted.identity);
  const bool isGlobal = pWanted.identity->kind == IdentityKind::GlobalClass;
  EXPECT_EQ(TYPEFLAG_FCANCREATE | (isGlobal ? TYPEFLAG_FAPPOBJECT : 0), actual.Attributes().wTypeFlags);
  const Described face = actual.Implemented(0);
  EXPECT_EQ("_" + std::string(pWanted.identity->name), face.Texts().first);
  EXPECT_TRUE(ParseGuid(pWanted.identity->interfaceGuid) == face.Attributes().guid);
  const Described slots = face.Implemented(static_cast<UINT>(-1));  // the dual interface's other side
  ASSERT_EQ(pWanted.members->rows.size(), slots.Attributes().cFuncs);
  for (std::size_t i = 0; i < pWanted.members->rows.size(); ++i) {
    SCOPED_TRACE(std::string(pWanted.members->rows[i].name));
    FUNCDESC* member = nullptr;
    ASSERT_EQ(S_OK, slots->GetFuncDesc(static_cast<UINT>(i), &member));
    CheckMember(slots, *member, *pWanted.members, i);
    slots->ReleaseFuncDesc(member);
  }
}

// The fields of a record or the items of an enumeration.
template <class Row, class Check>
void CheckRows(const Identity& pIdentity, std::span<const Row> pRows, Check pCheck) {
  const Described actual(pIdentity);
  ASSERT_EQ(pRows.size(), actual.Attributes().cVars);
  for (std::size_t i = 0; i < pRows.size(); ++i) {
    VARDESC* field = nullptr;
    ASSERT_EQ(S_OK, actual->GetVarDesc(static_cast<UINT>(i), &field));
    EXPECT_EQ(pRows[i].name, actual.Texts(field->memid).first);
    pCheck(actual, *field, pRows[i]);
    actual->ReleaseVarDesc(field);
  }
}

TEST(TypeLibrary, SaysWhatTheTablesSay) {
  const Catalog& catalog = LibraryCatalog();
  EXPECT_EQ(2 * catalog.classes.size() + catalog.records.size() + catalog.enumerations.size(),
            TypeLibrary()->GetTypeInfoCount());
  for (const ClassDesc& each : catalog.classes) {
    SCOPED_TRACE(std::string(each.identity->name));
    CheckClass(each);
  }
  for (const RecordDesc& each : catalog.records)
    CheckRows(*each.identity, each.fields, [](const Described& pInfo, const VARDESC& pActual, const FieldDesc& pRow) {
      EXPECT_EQ(TypeName(pRow.type), pInfo.TypeName(pActual.elemdescVar.tdesc)) << pRow.name;
    });
  for (const EnumDesc& each : catalog.enumerations)
    CheckRows(*each.identity, each.items, [](const Described&, const VARDESC& pActual, const EnumItem& pRow) {
      EXPECT_EQ(pRow.value, pActual.lpvarValue->lVal) << pRow.name;
    });
}

}  // namespace
}  // namespace qzbase::tests
