// Late binding: how calls by name reach members, what becomes of their arguments, and the numbers of what goes wrong.
#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "qzbase/automation/Invoke.h"
#include "qzbase/os/Utf8.h"
#include "qzbase/runtime/Convert.h"
#include "tests/automation/SampleClass.h"
#include "tests/support/CorpusValue.h"

namespace qzbase::tests {
namespace {

using namespace runtime;
using automation::NamedArgument;

constexpr const automation::ClassEntry& kSample = automation::classEntry<Sample>;
const Variant kStranger(New<Object>());  // of no class that a table knows

// Values as a test row shows them: kind and text, arrays with their lower bound.
std::string Show(const Variant& pValue);

template <class T>
std::string ShowArray(const Array<T>& pArray) {
  if (!pArray.IsAllocated()) return "unallocated";
  std::string text("[");
  text.append(std::to_string(pArray.LowerBound())).append(":");
  for (const auto& each : pArray.Elements())
    text.append(" ").append(Show(automation::VariantValue<T>::To(static_cast<const T&>(each))));
  return text.append("]");
}

std::string ShowSample(const Object* pObject) {
  if (!pObject) return "object unset";
  if (const auto* sample = dynamic_cast<const Sample*>(pObject))
    return std::string("object ").append(os::ToUtf8(sample->Title()));
  if (const auto* point = dynamic_cast<const automation::RecordObject<SamplePoint>*>(pObject))
    return std::string("point ").append(os::ToUtf8(ToText(Variant(point->value.X)) + point->value.Label));
  return "object stranger";
}

std::string Show(const Variant& pValue) {
  static const char* const kinds[] = {"empty",   "null",  "integer ", "long ",   "single ",
                                      "double ", "date ", "text ",    "boolean "};
  if (const AnyArray* array = pValue.IfArray())
    return std::visit([](const auto& pArray) { return ShowArray(pArray); }, *array);
  if (const auto* object = pValue.If<Ref<Object>>()) return ShowSample(object->get());
  std::string text(kinds[static_cast<std::size_t>(pValue.Kind())]);
  if (pValue.IsNull()) return text;
  const auto* date = pValue.If<Date>();
  return text.append(os::ToUtf8(ToText(date ? Variant(date->days) : pValue)));
}

Variant SampleNamed(std::u16string_view pTitle) {
  const auto sample = New<Sample>();
  sample->LetTitle(pTitle);
  return Variant(sample);
}

Variant Point(double pX, std::u16string pLabel) {
  return automation::VariantValue<SamplePoint>::To({pX, std::move(pLabel), {}});
}

template <class T>
Variant List(std::int32_t pLower, std::vector<T> pElements) {
  return Variant(Array<T>(pLower, std::move(pElements)));
}

// One call of an object with the title "t": what a get or method answers, the title and the third item after a put, or
// the error, after which the object is as before.
struct Row {
  std::u16string name;
  CallKind kind;
  std::vector<Variant> arguments;
  std::string expected;
  std::vector<std::pair<std::u16string, Variant>> named = {};
};

std::vector<Variant*> Pointers(std::vector<Variant>& pVariables) {
  std::vector<Variant*> pointers(pVariables.size());
  std::transform(pVariables.begin(), pVariables.end(), pointers.begin(), [](Variant& pEach) { return &pEach; });
  return pointers;
}

std::string State(const Sample& pSample) {
  return os::ToUtf8(pSample.Title() + u"|" + ToText(Variant(pSample.Item(3, 0))));
}

void Check(std::vector<Row> pRows) {
  for (Row& row : pRows) {
    const auto sample = New<Sample>();
    sample->LetTitle(u"t");
    std::vector<NamedArgument> named;
    for (auto& [name, value] : row.named) named.push_back({name, &value});
    const std::string answer = TextOrError([&] {
      const Variant result = InvokeByName(kSample, *sample, row.name, row.kind, Pointers(row.arguments), named);
      const bool isPut = row.kind != CallKind::Get && row.kind != CallKind::Method && row.kind != CallKind::MethodOrGet;
      return isPut ? State(*sample) : Show(result);
    });
    EXPECT_EQ(answer, row.expected) << os::ToUtf8(row.name) << " with " << row.arguments.size();
    if (answer.starts_with("error")) {
      EXPECT_EQ(State(*sample), "t|0");
    }
  }
}

TEST(Invoke, ReachesMembersByNameAndKind) {
  using enum CallKind;
  Check({
      {u"Title", Get, {}, "text t"},
      {u"tItLe", MethodOrGet, {}, "text t"},
      {u"", Get, {}, "text t"},
      {u"Count", Get, {}, "long 4"},
      {u"Item", Get, {2}, "double 0"},
      {u"Item", Get, {std::int16_t{2}, u"5"}, "double 5"},
      {u"Darker", Method, {7}, "long 8"},
      {u"Titel", Get, {}, "error 438"},
      {u"Title", Method, {}, "error 438"},
      {u"Darker", Get, {7}, "error 438"},
      {u"Count", Let, {7}, "error 438"},
      {u"Item", Set, {2, 5.0}, "error 438"},
      {u"Item", Get, {9}, "error 9"},
      {u"Only", Get, {}, "error 438"},
  });
}

TEST(Invoke, TakesPositionalNamedAndOmittedArguments) {
  using enum CallKind;
  const std::string rest = "|True|36526|7||unset";
  Check({
      {u"Describe", Method, {u"a"}, "text a|2|0.5|word" + rest},
      {u"Describe",
       Method,
       {u"a", 3, 4.5, u"w", false, 1, 2, u"any", SampleNamed(u"o")},
       "text a|3|4.5|w|False|1|2|any|o"},
      {u"Describe", Method, {u"a", 3}, "text a|3|0.25|word" + rest, {{u"PFACTOR", Variant(0.25)}}},
      {u"Describe", Method, {}, "text a|2|0.5|w" + rest, {{u"pWord", Variant(u"w")}, {u"pText", Variant(u"a")}}},
      {u"Describe", Method, {}, "error 449"},
      {u"Describe", Method, {}, "error 449", {{u"pCount", Variant(1)}}},
      {u"Describe", Method, {u"a"}, "error 448", {{u"pColour", Variant(1)}}},
      {u"Describe", Method, {u"a"}, "error 450", {{u"pText", Variant(u"b")}}},
      {u"Describe", Method, {1, 2, 3, 4, 5, 6, 7, 8, nullptr, 10}, "error 450"},
      {u"Describe", Method, {u"a", u"many"}, "error 13"},
      {u"Describe", Method, {u"a", 1e10}, "error 6"},
      {u"Describe", Method, {u"a", Null()}, "error 94"},
      {u"Describe", Method, {u"a", 1, 2, nullptr}, "error 91"},
      {u"Count", Get, {1}, "error 450"},
      {u"Item", Get, {}, "error 449"},
      {u"Item", Get, {}, "double 0", {{u"pIndex", Variant(1)}}},
      {u"Item", Get, {1}, "error 448", {{u"pNewValue", Variant(1)}}},
      {u"Describe", Method, {u"a"}, "text a|2|0.5|word" + rest, {{u"pOther", Variant(nullptr)}}},
      {u"Describe", Method, {u"a"}, "text a|2|0.5|word" + rest, {{u"pOther", Variant(Null())}}},
      {u"Describe", Method, {u"a"}, "error 13", {{u"pOther", kStranger}}},
  });
}

TEST(Invoke, SkipsOmittedArgumentsBetweenOthers) {
  Sample sample;
  Variant text(u"a"), factor(8);
  const std::vector<Variant*> arguments = {&text, nullptr, &factor};
  EXPECT_EQ(Show(InvokeByName(kSample, sample, u"Describe", CallKind::Method, arguments)),
            "text a|2|8|word|True|36526|7||unset");
}

TEST(Invoke, PutsTheNewValueLast) {
  using enum CallKind;
  const Variant other = SampleNamed(u"o");
  Check({
      {u"Title", Let, {5}, "5|0"},
      {u"", Let, {u"new"}, "new|0"},
      {u"Item", Let, {3, u"2.5"}, "t|2.5"},
      {u"Item", Let, {3, 10, 2.5}, "t|12.5"},
      {u"Item", Let, {2.5}, "t|2.5", {{u"pIndex", Variant(3)}}},
      {u"Item", Let, {}, "error 449"},
      {u"Item", Let, {2.5}, "error 449"},
      {u"Item", Let, {3, 0, 2.5, 1}, "error 450"},
      {u"Only", Set, {other}, "set o|0"},
      {u"Only", Let, {other}, "set o|0"},
      {u"Only", Set, {nullptr}, "set nothing|0"},
      {u"Only", Let, {1}, "error 438"},
      {u"Only", Set, {1}, "error 13"},
      {u"Plain", Let, {other}, "let o|0"},
      {u"Plain", Set, {other}, "let o|0"},
      {u"Plain", Let, {nullptr}, "error 91"},
      {u"Plain", Let, {Variant()}, "error 91"},
      {u"Plain", Let, {kStranger}, "error 13"},
      {u"Plain", Let, {u"o"}, "error 13"},
      {u"Both", Let, {other}, "let o|0"},
      {u"Both", Set, {other}, "t|0"},
      {u"Both", CallKind(12), {other}, "t|0"},
      {u"Title", CallKind(12), {1}, "1|0"},
  });
}

TEST(Invoke, PassesObjectsArraysAndRecords) {
  using enum CallKind;
  const Variant mixed = List<Variant>(5, {1, u"2", std::int16_t{3}});
  Check({
      {u"Same", Method, {kStranger}, "object stranger"},
      {u"Same", Method, {nullptr}, "object unset"},
      {u"Both", Get, {}, "object unset"},

      {u"Total", Method, {List<double>(0, {1, 2.5})}, "double 3.5"},
      {u"Total", Method, {List<std::int32_t>(7, {1, 2})}, "double 3"},
      {u"Total", Method, {List<bool>(7, {true, false})}, "double -1"},
      {u"Total", Method, {mixed}, "double 6"},
      {u"Total", Method, {Variant()}, "double 0"},
      {u"Total", Method, {Variant(Array<std::uint8_t>())}, "double 0"},
      {u"Total", Method, {List<Variant>(0, {u"x"})}, "error 13"},
      {u"Total", Method, {1.5}, "error 13"},
      {u"Total", Method, {Null()}, "error 13"},
      {u"Join", Method, {mixed}, "text 1;2;3;"},

      {u"Middle", Method, {Point(1, u"a"), Point(5, u"b")}, "point 3ab"},
      {u"Middle", Method, {Point(1, u"a"), nullptr}, "error 91"},
      {u"Middle", Method, {Point(1, u"a"), kStranger}, "error 13"},
      {u"Middle", Method, {1, 2}, "error 13"},
  });
}

// The variables are changed after a success, and only then.
TEST(Invoke, ChangesByReferenceArgumentsOnSuccessOnly) {
  const struct {
    std::u16string name;
    std::vector<Variant> before;
    std::vector<std::string> after;
  } rows[] = {
      {u"Change",
       {u"a", 1, u"2", 3, 4, false, 5, Date{6}, 7, 8},
       {"text a!", "integer 2", "long 3", "single 4", "double 5", "boolean True", "integer 6", "date 7", "long 8",
        "text changed"}},
      {u"ChangeArray", {List<std::int32_t>(3, {1, 2})}, {"[3: long 2 long 4 long 2]"}},
      {u"ChangeArray", {List<double>(3, {1, 2})}, {"[3: double 2 double 4 double 2]"}},
      {u"ChangeArray", {List<Variant>(3, {u"1", 2.0})}, {"[3: long 2 long 4 long 2]"}},
      {u"ChangePoint", {Point(1, u"a")}, {"point 2a+"}},
      {u"ChangeObject", {SampleNamed(u"o")}, {"object "}},
      {u"ChangeObject", {nullptr}, {"object "}},
      {u"ChangePoints", {List<Ref<Object>>(1, {*Point(1, u"a").If<Ref<Object>>()})}, {"[1: point 2a+]"}},
      {u"ChangePoints", {List<Variant>(1, {Point(1, u"a")})}, {"[1: point 2a+]"}},
  };
  Sample sample;
  for (const auto& row : rows) {
    std::vector<Variant> arguments = row.before;
    const auto call = [&] {
      return TextOrError(
          [&] { return Show(InvokeByName(kSample, sample, row.name, CallKind::Method, Pointers(arguments))); });
    };
    arguments.push_back(Variant(true));
    std::vector<std::string> shown(row.before.size());
    std::transform(row.before.begin(), row.before.end(), shown.begin(), Show);
    EXPECT_EQ(call(), "error 61");
    for (std::size_t i = 0; i < shown.size(); ++i) EXPECT_EQ(Show(arguments[i]), shown[i]);
    arguments.pop_back();
    EXPECT_EQ(call(), "empty");
    for (std::size_t i = 0; i < row.after.size(); ++i) EXPECT_EQ(Show(arguments[i]), row.after[i]);
  }
}

// The array comes back in the caller's type; where that cannot hold it, the caller keeps what it has.
TEST(Invoke, LeavesAnArrayThatCannotTakeTheResult) {
  Sample sample;
  std::vector<Variant> arguments = {List<std::uint8_t>(0, {1, 200})};
  EXPECT_EQ(TextOrError([&] {
              return Show(InvokeByName(kSample, sample, u"ChangeArray", CallKind::Method, Pointers(arguments)));
            }),
            "error 6");
  EXPECT_EQ(Show(arguments[0]), "[0: integer 1 integer 200]");
}

TEST(Invoke, FieldsOfARecordArePropertiesOfItsObject) {
  const Variant variant = Point(1.5, u"a");
  Object& record = **variant.If<Ref<Object>>();
  record.Let(u"x", u"2.5");
  record.Let(u"LABEL", 7);
  record.Let(u"Bytes", Array<std::uint8_t>(0, {1, 2, 3}));
  EXPECT_EQ(Show(record.Get(u"X")), "double 2.5");
  EXPECT_EQ(Show(record.Get(u"label")), "text 7");
  EXPECT_EQ(Show(record.Get(u"Bytes")), "[0: integer 1 integer 2 integer 3]");
  const std::pair<std::function<Variant()>, std::string> faults[] = {
      {[&] { return record.Get(u"Y"); }, "error 438"},
      {[&] { return record.Call(u"X"); }, "error 438"},
      {[&] { return record.Get(u"X", 1); }, "error 450"},
      {[&] { return record.Invoke(u"X", CallKind::Let, {}); }, "error 449"},
      {[&] { return record.Let(u"X", u"x"), Variant(); }, "error 13"},
      {[&] { return record.Let(u"Bytes", Array<std::uint8_t>(0, 1)), Variant(); }, "error 10"},
  };
  for (const auto& fault : faults) EXPECT_EQ(TextOrError([&] { return Show(fault.first()); }), fault.second);
}

}  // namespace
}  // namespace qzbase::tests
