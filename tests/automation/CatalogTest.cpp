// One walk over all tables, which names no member, and the whole public face against its golden text.
#include <algorithm>
#include <cctype>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "qzbase/automation/CatalogText.h"
#include "qzbase/automation/ClassTable.h"
#include "qzbase/os/Utf8.h"
#include "qzbase/runtime/Compare.h"
#include "qzbase/runtime/Convert.h"
#include "tests/support/Corpus.h"
#include "tests/support/CorpusValue.h"

namespace qzbase::tests {
namespace {

using namespace automation;
using namespace runtime;

std::string LowerCase(std::string_view pName) {
  std::string result(pName);
  for (char& each : result) each = static_cast<char>(std::tolower(each));
  return result;
}

// The texts of the catalog, each looked at where the walk meets it.
class CatalogTexts {
 public:
  // A type library keeps names in one pool, ignoring case, and the first spelling wins for all.
  void Name(std::string_view pName) {
    EXPECT_TRUE(!pName.empty() && std::isalpha(pName[0]) != 0 && pName.size() <= 40) << pName;
    EXPECT_TRUE(std::all_of(pName.begin(), pName.end(), [](char c) { return std::isalnum(c) != 0 || c == '_'; }));
    EXPECT_EQ(spellings_.emplace(LowerCase(pName), pName).first->second, pName);
  }

  // One sentence on one line, in characters that every type library can hold.
  static void Help(std::string_view pText) {
    EXPECT_TRUE(pText.size() > 5 && pText.size() <= 100 && pText.back() == '.') << pText;
    EXPECT_TRUE(std::all_of(pText.begin(), pText.end(), [](char c) { return c >= ' ' && c < 127; })) << pText;
  }

  // Registered once, used by nothing else, and written as the platform writes them.
  void Guid(std::string_view pGuid) {
    EXPECT_TRUE(guids_.insert(pGuid).second) << pGuid;
    std::string shape(pGuid);
    for (char& each : shape) each = std::isxdigit(each) != 0 && std::islower(each) == 0 ? 'X' : each;
    EXPECT_EQ(shape, "XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX");
  }

  void Everything(const Identity& pIdentity) {
    Name(pIdentity.name);
    Help(pIdentity.help);
    Guid(pIdentity.guid);
  }

 private:
  std::map<std::string, std::string> spellings_;
  std::set<std::string_view> guids_;
};

// A name finds its id, in any spelling, and no two parameters share one.
void CheckNames(const ClassEntry& pClass, const MemberDesc& pMember) {
  for (const std::string& name : {std::string(pMember.name), LowerCase(pMember.name)})
    EXPECT_EQ(pClass.members->Find(os::FromUtf8(name)), pMember.id);
  std::set<std::string> names;
  for (const ParameterDesc& parameter : pClass.members->Parameters(pMember))
    EXPECT_TRUE(names.insert(LowerCase(parameter.name)).second) << parameter.name;
}

// What a get gives, the let and the set of the name take, by the same indices.
void CheckProperty(const ClassEntry& pClass, const MemberDesc& pMember) {
  const std::int16_t get =
      pClass.members->rowsOfId[static_cast<std::size_t>(pMember.id)][static_cast<std::size_t>(MemberKind::Get)];
  if (!pMember.IsPut() || get < 0) return;
  const MemberDesc& getter = pClass.members->rows[static_cast<std::size_t>(get)];
  const auto taken = pClass.members->Parameters(pMember);
  const auto given = pClass.members->Parameters(getter);
  ASSERT_EQ(taken.size(), given.size() + 1);
  EXPECT_TRUE(taken.back().type == getter.result);
  EXPECT_TRUE(std::equal(given.begin(), given.end(), taken.begin(), [](const auto& pGiven, const auto& pTaken) {
    return pGiven.name == pTaken.name && pGiven.type == pTaken.type && pGiven.IsOptional() == pTaken.IsOptional();
  }));
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
void CheckDefaults(const ClassEntry& pClass, const MemberDesc& pMember) {
  for (const ParameterDesc& parameter : pClass.members->Parameters(pMember)) {
    if (!parameter.IsOptional() || parameter.defaultValue.kind == DefaultValue::Kind::Unset ||
        parameter.type.base == BaseType::Variant)
      continue;
    const Variant value = DefaultOf(parameter);
    EXPECT_EQ(Compare(ConvertTo(value, KindOf(parameter.type.base)), value), Order::Equal) << parameter.name;
  }
}

// Too many and too few arguments are an error of the call, before the member is reached.
void CheckCounts(const ClassEntry& pClass, const MemberDesc& pMember) {
  static const std::map<MemberKind, CallKind> kinds = {{MemberKind::Method, CallKind::Method},
                                                       {MemberKind::Get, CallKind::Get},
                                                       {MemberKind::Let, CallKind::Let},
                                                       {MemberKind::Set, CallKind::Set}};
  const Ref<Object> object = pClass.create();
  const auto parameters = pClass.members->Parameters(pMember);
  const auto answerTo = [&](std::size_t pCount) {
    Variant argument;
    const std::vector<Variant*> arguments(pCount, &argument);
    return TextOrError([&] {
      InvokeById(pClass, *object, pMember.id, kinds.at(pMember.kind), arguments);
      return std::string();
    });
  };
  EXPECT_EQ(answerTo(parameters.size() + 1), "error 450");
  if (!parameters.empty() && !parameters.front().IsOptional()) {
    EXPECT_EQ(answerTo(0), "error 449");
  }
}

std::string Shown(const Variant& pValue) {
  if (const auto* object = pValue.If<Ref<Object>>()) {
    const ClassEntry* entry = *object ? ClassOf(**object) : nullptr;
    return entry ? std::string(entry->identity->name) : *object ? "record" : "unset";
  }
  if (const AnyArray* array = pValue.IfArray())
    return std::visit([](const auto& pArray) { return std::to_string(pArray.Size()).append(" elements"); }, *array);
  return CorpusValueText(pValue);
}

// The get of a fresh object without arguments: by name, and by the function itself.
void CheckGet(const ClassEntry& pClass, const MemberDesc& pMember) {
  if (pMember.kind != MemberKind::Get || pMember.parameterCount != 0) return;
  const Ref<Object> object = pClass.create();
  Variant direct;
  pClass.functions[static_cast<std::size_t>(&pMember - pClass.members->rows.data())](*object, nullptr, direct);
  const Variant byName = pClass.create()->Get(os::FromUtf8(pMember.name));
  EXPECT_EQ(Shown(byName), Shown(direct));
  if (!pMember.result.isArray && pMember.result.base <= BaseType::Text) {
    EXPECT_EQ(byName.Kind(), KindOf(pMember.result.base));
  }
}

TEST(Catalog, TablesKeepTheRules) {
  CatalogTexts texts;
  for (const EnumDesc& enumeration : LibraryCatalog().enumerations) {
    texts.Everything(*enumeration.identity);
    for (const EnumItem& item : enumeration.items) texts.Name(item.name);
  }
  for (const RecordDesc& record : LibraryCatalog().records) {
    texts.Everything(*record.identity);
    for (const FieldDesc& field : record.fields) {
      texts.Name(field.name);
      texts.Help(field.help);
    }
  }
  for (const ClassEntry* entry : Classes()) {
    texts.Everything(*entry->identity);
    texts.Guid(entry->identity->interfaceGuid);
    for (const MemberDesc& member : entry->members->rows) {
      SCOPED_TRACE(MemberText({entry->identity, entry->members}, member));
      texts.Name(member.name);
      texts.Help(member.help);
      for (const ParameterDesc& parameter : entry->members->Parameters(member)) texts.Name(parameter.name);
      for (const auto check : {CheckNames, CheckProperty, CheckDefaults, CheckCounts, CheckGet}) check(*entry, member);
    }
  }
}

// A changed line here is a changed face: programs in the field call by id, slot and name. The file is edited by hand.
TEST(Catalog, IsTheGoldenOne) {
  EXPECT_EQ(ReadTestFile("golden/typelib.txt"), CatalogText(LibraryCatalog()));
}

}  // namespace
}  // namespace qzbase::tests
