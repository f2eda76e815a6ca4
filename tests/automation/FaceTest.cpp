// The whole public face against its golden text, and what the rows of a property must have in common.
#include <algorithm>
#include <cctype>
#include <charconv>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "qzbase/automation/Catalog.h"
#include "qzbase/automation/ClassTable.h"
#include "qzbase/automation/Identities.h"
#include "qzbase/os/Utf8.h"
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

// The shortest text that reads back as the same number.
std::string Text(double pValue) {
  char digits[32];
  std::string text(digits, std::to_chars(digits, std::end(digits), pValue).ptr);
  std::replace(text.begin(), text.end(), 'e', 'E');
  return text;
}

std::string Text(const DefaultValue& pValue) {
  switch (pValue.kind) {
    case DefaultValue::Kind::None:
      return "";
    case DefaultValue::Kind::Unset:
      return " = ?";
    case DefaultValue::Kind::Boolean:
      return pValue.number != 0 ? " = True" : " = False";
    case DefaultValue::Kind::Long:
      return " = " + to_string(pValue.number);
    case DefaultValue::Kind::Double:
      return " = " + Text(pValue.real);
    default:
      return " = \"" + os::ToUtf8(pValue.text) + "\"";
  }
}

std::string MemberText(const MemberTable& pMembers, const MemberDesc& pMember) {
  static constexpr const char* kKinds[] = {" method ", " get ", " let ", " set "};
  std::string parameters;
  for (const ParameterDesc& each : pMembers.Parameters(pMember))
    parameters += (parameters.empty() ? "" : ", ") + std::string(each.name) + ": " +
                  (each.IsByRef() ? each.MayChange() ? "ByRef " : "In ByRef " : "") + Text(each.type) +
                  Text(each.defaultValue);
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

TEST(Face, EveryGuidIsUsedOnce) {
  std::set<std::string_view> guids;
  const auto add = [&](std::string_view pGuid) { EXPECT_TRUE(guids.insert(pGuid).second) << pGuid; };
  for (const EnumDesc& each : LibraryCatalog().enumerations) add(each.identity->guid);
  for (const RecordDesc& each : LibraryCatalog().records) add(each.identity->guid);
  for (const ClassDesc& each : LibraryCatalog().classes) {
    add(each.identity->guid);
    add(each.identity->interfaceGuid);
  }
}

// What a get gives, the let and the set of the name take, by the same indices; any spelling finds them.
void CheckMember(const MemberTable& pMembers, const MemberDesc& pMember) {
  std::string name(pMember.name);
  std::transform(name.begin(), name.end(), name.begin(), [](char c) { return static_cast<char>(std::toupper(c)); });
  EXPECT_EQ(pMembers.Find(os::FromUtf8(name)), pMember.id);
  const auto get = pMembers.rowsOfId[static_cast<std::size_t>(pMember.id)][static_cast<std::size_t>(MemberKind::Get)];
  if (!pMember.IsPut() || get < 0) return;
  const MemberDesc& getter = pMembers.rows[static_cast<std::size_t>(get)];
  const auto taken = pMembers.Parameters(pMember);
  const auto given = pMembers.Parameters(getter);
  ASSERT_EQ(taken.size(), given.size() + 1);
  EXPECT_TRUE(taken.back().type == getter.result);
  EXPECT_TRUE(std::equal(given.begin(), given.end(), taken.begin(), [](const auto& pGiven, const auto& pTaken) {
    return pGiven.name == pTaken.name && pGiven.type == pTaken.type && pGiven.IsOptional() == pTaken.IsOptional();
  }));
}

TEST(Face, RowsOfOneNameFitEachOther) {
  for (const ClassEntry* entry : Classes())
    for (const MemberDesc& member : entry->members->rows) {
      SCOPED_TRACE(std::string(entry->identity->name) + " " + MemberText(*entry->members, member));
      CheckMember(*entry->members, member);
    }
}

}  // namespace
}  // namespace qzbase::tests
