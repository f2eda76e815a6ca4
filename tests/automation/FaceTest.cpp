// One walk over all tables, which names no member, and the whole public face against its golden text.
#include <algorithm>
#include <cctype>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "qzbase/automation/ClassTable.h"
#include "qzbase/automation/FaceText.h"
#include "qzbase/os/Utf8.h"
#include "qzbase/runtime/Compare.h"
#include "qzbase/runtime/Convert.h"
#include "tests/support/Corpus.h"

namespace qzbase::tests {
namespace {

using namespace automation;
using namespace runtime;

std::string LowerCase(std::string_view pName) {
  std::string result(pName);
  for (char& each : result) each = static_cast<char>(std::tolower(each));
  return result;
}

// Calls `pVisit(class, member)` for every row.
void ForEachMember(auto pVisit) {
  for (const ClassEntry* entry : Classes()) {
    for (const MemberDesc& member : entry->members->rows) {
      SCOPED_TRACE(MemberText(*entry, member));
      pVisit(*entry, member);
    }
  }
}

bool IsName(std::string_view pText) {
  return !pText.empty() && std::isalpha(pText[0]) != 0 && pText.size() <= 40 &&
         std::all_of(pText.begin(), pText.end(), [](char c) { return std::isalnum(c) != 0 || c == '_'; });
}

// One sentence on one line, in characters that every type library can hold.
bool IsHelp(std::string_view pText) {
  return pText.size() > 5 && pText.size() <= 100 && pText.back() == '.' &&
         std::all_of(pText.begin(), pText.end(), [](char c) { return c >= ' ' && c < 127; });
}

// A type library keeps names in one pool, ignoring case, and the first spelling wins for all.
TEST(Face, NamesAreSpeltOneWayEverywhere) {
  std::map<std::string, std::string> spellings;
  const auto check = [&](std::string_view pName) {
    EXPECT_TRUE(IsName(pName)) << pName;
    const auto [at, isNew] = spellings.emplace(LowerCase(pName), pName);
    EXPECT_EQ(at->second, pName);
  };
  for (const EnumDesc& enumeration : Enumerations()) {
    check(enumeration.identity->name);
    for (const EnumItem& item : enumeration.items) check(item.name);
  }
  for (const RecordEntry& record : Records()) {
    check(record.desc->identity->name);
    for (const FieldDesc& field : record.desc->fields) check(field.name);
  }
  for (const ClassEntry* entry : Classes()) check(entry->identity->name);
  ForEachMember([&](const ClassEntry& pClass, const MemberDesc& pMember) {
    check(pMember.name);
    for (const ParameterDesc& parameter : pClass.members->Parameters(pMember)) check(parameter.name);
  });
}

TEST(Face, EverythingIsExplained) {
  for (const EnumDesc& each : Enumerations()) EXPECT_TRUE(IsHelp(each.identity->help)) << each.identity->name;
  for (const RecordEntry& each : Records()) {
    EXPECT_TRUE(IsHelp(each.desc->identity->help)) << each.desc->identity->name;
    for (const FieldDesc& field : each.desc->fields) EXPECT_TRUE(IsHelp(field.help)) << field.name;
  }
  for (const ClassEntry* each : Classes()) EXPECT_TRUE(IsHelp(each->identity->help)) << each->identity->name;
  ForEachMember([](const ClassEntry&, const MemberDesc& pMember) { EXPECT_TRUE(IsHelp(pMember.help)); });
}

// Registered once, used by nothing else, and written as the platform writes them.
TEST(Face, GuidsAreUnique) {
  std::set<std::string_view> guids;
  const auto check = [&](std::string_view pGuid) {
    EXPECT_TRUE(guids.insert(pGuid).second) << pGuid;
    ASSERT_EQ(pGuid.size(), 36u) << pGuid;
    for (std::size_t i = 0; i < pGuid.size(); ++i) {
      const bool isDash = i == 8 || i == 13 || i == 18 || i == 23;
      EXPECT_TRUE(isDash ? pGuid[i] == '-' : std::isxdigit(pGuid[i]) != 0 && std::islower(pGuid[i]) == 0) << pGuid;
    }
  };
  for (const EnumDesc& each : Enumerations()) check(each.identity->guid);
  for (const RecordEntry& each : Records()) check(each.desc->identity->guid);
  for (const ClassEntry* each : Classes()) {
    check(each->identity->guid);
    check(each->identity->interfaceGuid);
  }
}

// Ids from 1 on without gaps, in order of first appearance; a name finds its id, in any spelling.
TEST(Face, IdsCountTheNames) {
  for (const ClassEntry* entry : Classes()) {
    std::map<std::string, MemberId> ids;
    MemberId next = 1;
    for (const MemberDesc& member : entry->members->rows) {
      SCOPED_TRACE(MemberText(*entry, member));
      const auto [at, isNew] = ids.emplace(LowerCase(member.name), member.isDefault ? kDefaultMember : next);
      if (isNew && !member.isDefault) ++next;
      EXPECT_EQ(member.id, at->second);
      EXPECT_EQ(entry->members->Find(os::FromUtf8(member.name)), member.id);
      EXPECT_EQ(entry->members->Find(os::FromUtf8(LowerCase(member.name))), member.id);
    }
  }
}

TEST(Face, ParametersAreNamedOnce) {
  ForEachMember([](const ClassEntry& pClass, const MemberDesc& pMember) {
    std::set<std::string> names;
    for (const ParameterDesc& parameter : pClass.members->Parameters(pMember))
      EXPECT_TRUE(names.insert(LowerCase(parameter.name)).second) << parameter.name;
  });
}

// What a get gives, the let and the set of the name take, by the same indices.
TEST(Face, RowsOfAPropertyAgree) {
  ForEachMember([](const ClassEntry& pClass, const MemberDesc& pMember) {
    const std::int16_t get =
        pClass.members->rowsOfId[static_cast<std::size_t>(pMember.id)][static_cast<std::size_t>(MemberKind::Get)];
    if (!pMember.IsPut() || get < 0) return;
    const MemberDesc& getter = pClass.members->rows[static_cast<std::size_t>(get)];
    const auto taken = pClass.members->Parameters(pMember);
    const auto given = pClass.members->Parameters(getter);
    ASSERT_EQ(taken.size(), given.size() + 1);
    EXPECT_TRUE(taken.back().type.SameValueAs(getter.result));
    for (std::size_t i = 0; i < given.size(); ++i) {
      EXPECT_EQ(taken[i].name, given[i].name);
      EXPECT_TRUE(taken[i].type.SameValueAs(given[i].type));
      EXPECT_EQ(taken[i].IsOptional(), given[i].IsOptional());
    }
  });
}

VariantKind KindOf(BaseType pBase) {
  static const std::map<BaseType, VariantKind> kinds = {
      {BaseType::Boolean, VariantKind::Boolean}, {BaseType::Byte, VariantKind::Integer},
      {BaseType::Integer, VariantKind::Integer}, {BaseType::Long, VariantKind::Long},
      {BaseType::Single, VariantKind::Single},   {BaseType::Double, VariantKind::Double},
      {BaseType::Date, VariantKind::Date},       {BaseType::Text, VariantKind::String},
      {BaseType::Enumeration, VariantKind::Long}};
  return kinds.at(pBase);
}

// An omitted argument arrives as what its row says: it converts to the parameter's type without a loss.
TEST(Face, DefaultsConvert) {
  ForEachMember([](const ClassEntry& pClass, const MemberDesc& pMember) {
    for (const ParameterDesc& parameter : pClass.members->Parameters(pMember)) {
      if (!parameter.IsOptional() || parameter.defaultValue.kind == DefaultValue::Kind::Unset ||
          parameter.type.base == BaseType::Variant)
        continue;
      const Variant value = DefaultOf(parameter);
      const Variant converted = ConvertTo(value, KindOf(parameter.type.base));
      EXPECT_EQ(Compare(converted, value), Order::Equal) << parameter.name;
    }
  });
}

// Too many and too few arguments are an error of the call, before the member is reached.
TEST(Face, WrongCountsAreRefused) {
  ForEachMember([](const ClassEntry& pClass, const MemberDesc& pMember) {
    static const std::map<MemberKind, CallKind> kinds = {{MemberKind::Method, CallKind::Method},
                                                         {MemberKind::Get, CallKind::Get},
                                                         {MemberKind::Let, CallKind::Let},
                                                         {MemberKind::Set, CallKind::Set}};
    const Ref<Object> object = pClass.create();
    const auto parameters = pClass.members->Parameters(pMember);
    const auto errorWith = [&](std::size_t pCount) {
      std::vector<Variant> arguments(pCount);
      std::vector<Variant*> pointers(pCount);
      std::transform(arguments.begin(), arguments.end(), pointers.begin(), [](Variant& pEach) { return &pEach; });
      try {
        InvokeById(pClass, *object, pMember.id, kinds.at(pMember.kind), pointers);
        return 0;
      } catch (const AutomationError& error) {
        return error.Number();
      }
    };
    EXPECT_EQ(errorWith(parameters.size() + 1), 450);
    if (!parameters.empty() && !parameters.front().IsOptional()) {
      EXPECT_EQ(errorWith(0), 449);
    }
  });
}

std::string Shown(const Variant& pValue) {
  if (const auto* object = pValue.If<Ref<Object>>()) {
    if (!*object) return "unset";
    const ClassEntry* entry = ClassOf(**object);
    return entry ? std::string(entry->identity->name) : "record";
  }
  if (const AnyArray* array = pValue.IfArray())
    return std::visit([](const auto& pArray) { return std::to_string(pArray.Size()).append(" elements"); }, *array);
  return os::ToUtf8(ToText(pValue));
}

// The get of a fresh object without arguments: by name, and by the function itself.
TEST(Face, NameAndFunctionAgree) {
  std::size_t called = 0;
  ForEachMember([&](const ClassEntry& pClass, const MemberDesc& pMember) {
    if (pMember.kind != MemberKind::Get || pMember.parameterCount != 0) return;
    const Ref<Object> first = pClass.create();
    const Ref<Object> second = pClass.create();
    const auto slot = static_cast<std::size_t>(&pMember - pClass.members->rows.data());
    Variant direct;
    pClass.thunks[slot](*second, nullptr, direct);
    const Variant byName = first->Get(os::FromUtf8(pMember.name));
    EXPECT_EQ(byName.Kind(), direct.Kind());
    EXPECT_EQ(Shown(byName), Shown(direct));
    if (!pMember.result.isArray && pMember.result.base <= BaseType::Text) {
      EXPECT_EQ(byName.Kind(), KindOf(pMember.result.base));
    }
    ++called;
  });
  EXPECT_GT(called, Classes().size() / 2);
}

std::vector<std::string> Lines(const std::string& pText) {
  std::vector<std::string> lines;
  std::istringstream stream(pText);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

// The lines of one list that are not in the other, each with a mark.
std::string Missing(const std::vector<std::string>& pLines, const std::vector<std::string>& pOther, char pMark) {
  const std::set<std::string> other(pOther.begin(), pOther.end());
  std::string text;
  for (const std::string& line : pLines)
    if (!other.contains(line)) text.append(1, pMark).append(" ").append(line).append("\n");
  return text;
}

// A changed line here is a changed face: programs in the field call by id, slot and name. The file is edited by hand;
// the lines to take out and to put in are shown.
TEST(Face, IsTheGoldenOne) {
  const std::vector<std::string> expected = Lines(ReadTestFile("golden/typelib.txt"));
  const std::vector<std::string> actual = Lines(FaceText());
  EXPECT_TRUE(actual == expected) << Missing(expected, actual, '-') << Missing(actual, expected, '+')
                                  << "(or the same lines in another order)";
}

}  // namespace
}  // namespace qzbase::tests
