// Calls by name without any host: how they reach members, what becomes of their arguments, and the numbers of what goes
// wrong.
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "qzbase/automation/members/Core.h"
#include "qzbase/data/CDblVector.h"
#include "qzbase/os/Utf8.h"
#include "qzbase/runtime/Convert.h"
#include "tests/automation/CallValues.h"
#include "tests/support/AllocationMeter.h"
#include "tests/support/CorpusValue.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

using namespace automation;
using namespace runtime;
using enum CallKind;

constexpr CallKind kLetOrSet = static_cast<CallKind>(12);
const Variant kStranger(New<Object>());  // of no class that a table knows
const Variant kOmitted(New<Object>());

// One call of a fresh object; a vector holds (3;1;2).
struct Row {
  const char* name;
  CallKind kind;
  std::vector<Variant> arguments;
  std::string expected;  // the result or error; the vector after calls without result
  std::vector<std::string> after = {};
  std::vector<std::pair<std::u16string, Variant>> named = {};
};

bool IsOmitted(const Variant& pValue) {
  const auto* object = pValue.If<Ref<Object>>();
  return object && *object == *kOmitted.If<Ref<Object>>();
}

Ref<Object> Fresh(std::u16string_view pClass) {
  Ref<Object> object = CreateObject(u"QZBase." + std::u16string(pClass));
  if (pClass == u"CDblVector") object->Call(u"SetFromString", u"(3;1;2)");
  return object;
}

void Check(std::vector<Row> pRows) {
  for (Row& row : pRows) {
    const std::u16string name = os::FromUtf8(row.name);
    const Ref<Object> object = Fresh(name.substr(0, name.find(u'.')));
    std::vector<Variant*> arguments;
    std::vector<NamedArgument> named;
    std::vector<std::string> after;
    for (Variant& each : row.arguments) {
      after.push_back(Show(each));
      arguments.push_back(IsOmitted(each) ? nullptr : &each);
    }
    for (auto& [parameter, value] : row.named) named.push_back({parameter, &value});
    const std::string answer = TextOrError([&] {
      const Variant result = Invoke(*object, name.substr(name.find(u'.') + 1), row.kind, arguments, named);
      return Show(result.IsEmpty() ? Variant(object) : result);
    });
    EXPECT_EQ(answer, row.expected) << row.name << " with " << row.arguments.size();
    if (!row.after.empty()) after = row.after;  // else as before
    for (std::size_t i = 0; i < after.size(); ++i) EXPECT_EQ(Show(row.arguments[i]), after[i]) << row.name;
  }
}

template <class T>
Variant List(std::int32_t pLower, std::vector<T> pElements) {
  return Variant(Array<T>(pLower, std::move(pElements)));
}

Variant IndexRecord(std::int32_t pValue) {
  return VariantValue<TErrIndex>::To({pValue});
}

TEST(Invoke, ReachesMembersByNameAndKind) {
  Check({
      {"CDblVector.Size", Get, {}, "3 3"},
      {"CDblVector.sIzE", MethodOrGet, {}, "3 3"},
      {"CDblVector.Sort", MethodOrGet, {}, "CDblVector 7 (1;2;3)"},
      {"CDblVector.Value", Get, {std::int16_t{2}}, "5 1"},
      {"CDblVector.Value", Get, {99}, "error 9"},
      {"CDblVector.Siz", Get, {}, "error 438"},
      {"CDblVector.", Get, {}, "error 438"},
      {"CDblVector.Size", Method, {}, "error 438"},
      {"CDblVector.Sort", Get, {}, "error 438"},
      {"CDblVector.Value", Set, {1, 2.5}, "error 438"},
      {"GCMath.PI", Let, {3}, "error 438"},
  });
}

TEST(Invoke, TakesPositionalNamedAndOmittedArguments) {
  const std::string inserted = "CDblVector 7 (9;3;1;2)";
  Check({
      {"CDblVector.InsertValue", Method, {1}, "CDblVector 7 (-9.9999999999E+300;3;1;2)"},
      {"CDblVector.InsertValue", Method, {}, inserted, {}, {{u"pvalue", 9}, {u"PATPOS", 1}}},
      {"CDblVector.InsertValue", Method, {1}, inserted, {}, {{u"pValue", 9}}},
      {"CDblVector.InsertValue", Method, {}, "error 449"},
      {"CDblVector.InsertValue", Method, {kOmitted, 9}, "error 449"},
      {"CDblVector.InsertValue", Method, {}, "error 449", {}, {{u"pValue", 9}}},
      {"CDblVector.InsertValue", Method, {1}, "error 448", {}, {{u"pColour", 9}}},
      {"CDblVector.InsertValue", Method, {1}, "error 450", {}, {{u"pAtPos", 1}}},
      {"CDblVector.InsertValue", Method, {1, 2, 3}, "error 450"},
      {"CDblVector.Value", Get, {}, "5 3", {}, {{u"pIndex", 1}}},
      {"CDblVector.Value", Get, {1}, "error 448", {}, {{u"pNewValue", 1}}},
      {"CDblVector.Size", Get, {1}, "error 450"},
      {"GCConvert.DoubleToString", Method, {1234.5, kOmitted, false}, "7 1234.5"},
      {"CDblVector.AddValue", Method, {u"x"}, "error 13"},
      {"CDblVector.AddValue", Method, {Null()}, "error 94"},
      {"CDblVector.DeleteValue", Method, {1e10}, "error 6"},
      {"CDblVector.CopyFrom", Method, {nullptr}, "error 91"},
      {"CDblVector.CopyFrom", Method, {Variant(Fresh(u"CBuffer"))}, "error 13"},
      {"CDblVector.CopyFrom", Method, {kStranger}, "error 13"},
      {"CDblVector.SaveToBuffer", Method, {nullptr}, "CDblVector 7 (3;1;2)"},
  });
}

TEST(Invoke, PutsTheNewValueLast) {
  Check({
      {"CDblVector.Value", Let, {2, u"2.5"}, "CDblVector 7 (3;2.5;2)"},
      {"CDblVector.Value", kLetOrSet, {2, 2.5}, "CDblVector 7 (3;2.5;2)"},
      {"CDblVector.Value", Let, {2.5}, "CDblVector 7 (3;2.5;2)", {}, {{u"pIndex", 2}}},
      {"CDblVector.Value", Let, {}, "error 449"},
      {"CDblVector.Value", Let, {2.5}, "error 449"},
      {"CDblVector.Value", Let, {1, 2.5, 1}, "error 450"},
      {"TEntryDesc.VarDesc", Let, {1}, "error 438"},
      {"TEntryDesc.VarDesc", Set, {1}, "error 13"},
  });
  // A let copies, a set shares, and where there is but one of them, objects reach it by either.
  const Variant vector(Fresh(u"CDblVector"));
  for (const CallKind kind : {Let, Set, kLetOrSet}) {
    const Ref<Object> vectors = Fresh(u"CDblVectors");
    Variant arguments[] = {1, vector};
    vectors->Let(u"Size", 1);
    vectors->Invoke(u"Vector", kind, arguments);
    EXPECT_EQ(vectors->Call(u"VectorRef", 1).If<Ref<Object>>()->get() == vector.If<Ref<Object>>()->get(), kind != Let);
  }
  const Ref<Object> entry = Fresh(u"TEntryDesc");
  const Variant var(Fresh(u"TVarDesc"));
  entry->Let(u"VarDesc", var);
  EXPECT_EQ(*entry->Get(u"VarDesc").If<Ref<Object>>(), *var.If<Ref<Object>>());
}

// The variables are changed after a success, and only then.
TEST(Invoke, ChangesByReferenceArgumentsOnSuccessOnly) {
  Check({
      {"GCMath.Swap", Method, {1, u"a"}, "GCMath", {"7 a", "3 1"}},
      {"GCMath.Inc", Method, {4}, "3 5", {"3 5"}},
      {"GCMath.Inc", Method, {std::numeric_limits<std::int32_t>::max()}, "error 6"},
      {"GCMath.CalcMean",
       Method,
       {Variant(Fresh(u"CDblVector")), 0, 0},
       "3 0",
       {"CDblVector 7 (3;1;2)", "5 2", "5 0.816496580927726"}},
      {"GCStrings.GetNextToken", Method, {u"a;b", u";"}, "7 a", {"7 b", "7 ;"}},
      {"GCStrings.GetNextLine", Method, {u"x", 0}, "error 5"},
      {"GCStrings.ParseString", Method, {u"a;b", u";", List<Variant>(0, {1})}, "3 2", {"7 a;b", "7 ;", "[1: 7 a 7 b]"}},
      {"GCStrings.ParseValueList", Method, {u"{1;3E9}", List<std::int32_t>(0, {7})}, "error 6"},  // cannot hold it
  });
}

TEST(Invoke, PassesArraysAndRecords) {
  const Variant mixed = List<Variant>(5, {1, u"2", std::int16_t{3}});
  Check({
      {"CDblVector.SetFromArray", Method, {List<bool>(7, {true, false})}, "CDblVector 7 (-1;0)"},
      {"CDblVector.SetFromArray", Method, {mixed}, "CDblVector 7 (1;2;3)"},
      {"CDblVector.SetFromArray", Method, {Variant()}, "error 9"},
      {"CDblVector.SetFromArray", Method, {List<Variant>(0, {u"x"})}, "error 13"},
      {"CDblVector.SetFromArray", Method, {Null()}, "error 13"},
      {"GCError.ErrCode", Method, {IndexRecord(3)}, "3 1003"},
      {"GCError.ErrCode", Method, {nullptr}, "error 91"},
      {"GCError.ErrCode", Method, {kStranger}, "error 13"},
      {"GCError.ErrCode", Method, {VariantValue<TErrDesc>::To({})}, "error 13"},
  });
}

TEST(Invoke, FieldsOfARecordArePropertiesOfItsObject) {
  const Variant variant = Fresh(u"GCBase")->Call(u"GetGUID");
  Object& record = **variant.If<Ref<Object>>();
  record.Let(u"dATA1", u"2");
  record.Let(u"Data4", Array<std::uint8_t>(0, 7));
  EXPECT_EQ(Show(record.Get(u"Data1")), "3 2");
  EXPECT_EQ(Show(record.Get(u"Data4")), "[0: 2 0 2 0 2 0 2 0 2 0 2 0 2 0 2 0]");
  EXPECT_EQ(ErrorOf([&] { record.Get(u"Data5"); }), 438);
  EXPECT_EQ(ErrorOf([&] { record.Call(u"Data1"); }), 438);
  EXPECT_EQ(ErrorOf([&] { record.Get(u"Data1", 1); }), 450);
  EXPECT_EQ(ErrorOf([&] { record.Invoke(u"Data1", Let, {}); }), 449);
  EXPECT_EQ(ErrorOf([&] { record.Let(u"Data1", u"x"); }), 13);
  EXPECT_EQ(ErrorOf([&] { record.Let(u"Data4", Array<std::uint8_t>(0, 6)); }), 10);
}

TEST(Invoke, CreatesObjectsByName) {
  EXPECT_NE(std::dynamic_pointer_cast<CDblVector>(CreateObject(u"qzbase.CDBLVECTOR")), nullptr);
  for (const std::u16string_view name : {u"", u"QZBase", u"QZBase.", u"CDblVector", u"QZBase.CDblVecto",
                                         u"QZBase.CDblVector.1", u"QZBase.TErrDesc", u"Other.CDblVector"})
    EXPECT_EQ(ErrorOf([&] { CreateObject(name); }), 429) << os::ToUtf8(name);
  for (const ClassEntry* entry : Classes())
    EXPECT_EQ(ClassOf(*Fresh(os::FromUtf8(entry->identity->name))), entry) << entry->identity->name;
}

TEST(Invoke, CallsWithNumbersNeedNoMemory) {
  const Ref<Object> vector = Fresh(u"CDblVector");
  vector->Let(u"Value", 3.0, 1);  // a thread's first conversion reads the user's settings
  const std::size_t before = RequestedBytes();
  vector->Let(u"Value", 3, 2.5);
  const Variant value = vector->Get(u"Value", 3.0);
  EXPECT_EQ(RequestedBytes() - before, 0u);
  EXPECT_EQ(ToDouble(value), 2.5);
}

// An object that no table knows takes what it can.
TEST(Invoke, ForeignObjectsTakePositionalArguments) {
  class Host : public Object {
    Variant Invoke(std::u16string_view pName, CallKind, std::span<Variant> pArguments) override {
      pArguments[0] = Variant(std::u16string(pName));
      return Variant(static_cast<std::int32_t>(pArguments.size()));
    }
  };
  Host host;
  Variant first(1), second(2);
  const NamedArgument named[] = {{u"pName", &second}};
  EXPECT_EQ(ToLong(automation::Invoke(host, u"Paint", Method, std::vector{&first, &second})), 2);
  EXPECT_EQ(ToText(first), u"Paint");
  EXPECT_EQ(ErrorOf([&] { automation::Invoke(host, u"Paint", Method, std::vector{&first}, named); }), 448);
  EXPECT_EQ(ErrorOf([&] { automation::Invoke(host, u"Paint", Method, std::vector<Variant*>{nullptr}); }), 449);
}

}  // namespace
}  // namespace qzbase::tests
