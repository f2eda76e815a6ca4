// The whole public face against its golden text, and what the rows of a property must have in common.
#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "qzbase/automation/Arguments.h"
#include "qzbase/automation/Catalog.h"
#include "qzbase/automation/Identities.h"
#include "qzbase/os/Utf8.h"
#include "qzbase/runtime/Convert.h"
#include "tests/support/Corpus.h"

namespace qzbase::tests {
namespace {

using namespace automation;
using std::to_string;

std::string Named(const Identity& pIdentity) {
  return std::string(pIdentity.name) + " {" + std::string(pIdentity.guid) + "}";
}

std::string Text(const TypeDesc& pType) {
  static constexpr std::string_view kNames[] = {"",     "Boolean", "Byte",    "Integer", "Long", "Single", "Double",
                                                "Date", "String",  "Variant", "Object",  "",     "",       ""};
  const std::string bounds = pType.fixedLength != 0 ? "(0 To " + to_string(pType.fixedLength - 1) + ")" : "()";
  return std::string(pType.name.empty() ? kNames[static_cast<std::size_t>(pType.base)] : pType.name) +
         (pType.isArray ? bounds : "");
}

std::string DefaultText(const ParameterDesc& pParameter) {
  if (!pParameter.IsOptional()) return "";
  if (pParameter.defaultValue.kind == DefaultValue::Kind::Unset) return " = ?";
  const std::string quote = pParameter.defaultValue.kind == DefaultValue::Kind::Text ? "\"" : "";
  return " = " + quote + os::ToUtf8(runtime::ToText(DefaultOf(pParameter))) + quote;
}

std::string MemberText(const MemberTable& pMembers, const MemberDesc& pMember) {
  static constexpr const char* kKinds[] = {" method ", " get ", " let ", " set "};
  std::string parameters;
  for (const ParameterDesc& each : pMembers.Parameters(pMember))
    parameters += (parameters.empty() ? "" : ", ") + std::string(each.name) + ": " +
                  (each.IsByRef() ? each.MayChange() ? "ByRef " : "In ByRef " : "") + Text(each.type) +
                  DefaultText(each);
  const std::string result = Text(pMember.result);
  return to_string(pMember.id) + kKinds[static_cast<std::size_t>(pMember.kind)] + std::string(pMember.name) + "(" +
         parameters + ")" + (result.empty() ? "" : ": " + result) + (pMember.isHidden ? " hidden" : "");
}

std::string FaceText() {
  std::string text = "library " + std::string(kLibraryName) + " " + std::string(kLibraryVersion) + " {" +
                     std::string(kLibraryGuid) + "}\n";
  for (const EnumDesc& each : LibraryCatalog().enumerations) {
    text += "enum " + Named(*each.identity) + "\n";
    for (const EnumItem& item : each.items)
      text += std::string(each.identity->name) + "." + std::string(item.name) + " = " + to_string(item.value) + "\n";
  }
  for (const RecordDesc& each : LibraryCatalog().records) {
    text += "record " + Named(*each.identity) + "\n";
    for (const FieldDesc& field : each.fields)
      text += std::string(each.identity->name) + "." + std::string(field.name) + ": " + Text(field.type) + "\n";
  }
  for (const ClassDesc& each : LibraryCatalog().classes) {
    const bool isGlobal = each.identity->kind == IdentityKind::GlobalClass;
    text += (isGlobal ? "global class " : "class ") + Named(*each.identity) + " interface {" +
            std::string(each.identity->interfaceGuid) + "}\n";
    for (const MemberDesc& member : each.members->rows)
      text += std::string(each.identity->name) + " " + MemberText(*each.members, member) + "\n";
  }
  return text;
}

// A changed line here is a changed face: programs in the field call by id, slot and name. The file is edited by hand.
TEST(Face, IsTheGoldenOne) {
  EXPECT_EQ(ReadTestFile("golden/typelib.txt"), FaceText());
}

// What a get gives, the let and the set of the name take, by the same indices.
void CheckPut(const MemberTable& pMembers, const MemberDesc& pMember) {
  const auto get = pMembers.rowsOfId[static_cast<std::size_t>(pMember.id)][static_cast<std::size_t>(MemberKind::Get)];
  if (!pMember.IsPut() || get < 0) return;
  const MemberDesc& getter = pMembers.rows[static_cast<std::size_t>(get)];
  const auto taken = pMembers.Parameters(pMember);
  const auto given = pMembers.Parameters(getter);
  EXPECT_TRUE(taken.back().type == getter.result);
  EXPECT_TRUE(
      std::equal(given.begin(), given.end(), taken.begin(), taken.end() - 1, [](const auto& pL, const auto& pR) {
        return pL.name == pR.name && pL.type == pR.type && pL.IsOptional() == pR.IsOptional();
      }));
}

TEST(Face, PutsFitTheirGets) {
  for (const ClassDesc& each : LibraryCatalog().classes)
    for (const MemberDesc& member : each.members->rows) {
      SCOPED_TRACE(std::string(each.identity->name) + " " + MemberText(*each.members, member));
      CheckPut(*each.members, member);
    }
}

}  // namespace
}  // namespace qzbase::tests
