#include "tests/automation/CallValues.h"

#include <random>
#include <set>

#include "qzbase/automation/RecordObject.h"
#include "qzbase/automation/members/Core.h"
#include "qzbase/automation/members/Data.h"
#include "qzbase/automation/members/Layout.h"
#include "qzbase/automation/members/Platform.h"
#include "qzbase/os/Utf8.h"
#include "qzbase/runtime/Convert.h"
#include "tests/support/CorpusValue.h"

namespace qzbase::tests {

using namespace automation;
using namespace runtime;

namespace {

// They wait, show boxes, change files and folders or the machine, or have an answer of their own each time.
const std::set<std::string_view> kLeftOut = {
    "WaitUntil",     "SleepSecs",     "WaitSecs",        "SignalWindowsAppBusy", "DisplayError",  "DisplayMessage",
    "GetGUID",       "GetGUIDString", "TimeInCentiSecs", "NewTimeStamp",         "DeleteFile",    "ChangeDir",
    "MakeDir",       "DelDir",        "GetDirContents",  "WindowsCheckUser",     "SetDbgFileHdl", "ShowDebugLine",
    "REGDeleteValue"};

template <class E>
Variant ArrayOf(std::vector<E> pElements) {
  return Variant(Array<E>(1, std::move(pElements)));
}

template <class... R>
Ref<Object> NewRecord(TypeList<R...>, std::string_view pName) {
  Ref<Object> result;
  ((pName == identity<R>.name ? void(result = New<RecordObject<R>>()) : void()), ...);
  return result;
}

template <class... V>
Variant OneOf(std::size_t pAt, V... pValues) {
  const Variant values[] = {Variant(std::move(pValues))...};
  return pAt < std::size(values) ? values[pAt] : Variant();
}

// By base type; what has no plain values is made anew for each call.
Variant PlainValue(BaseType pBase) {
  return OneOf(static_cast<std::size_t>(pBase), Variant(), true, std::int16_t{7}, std::int16_t{7}, 1, 1.5F, 2.5,
               Date{40000.25}, u"a;b", 2.5, Variant(), Variant(), Variant(), 1);
}

Variant PlainArray(BaseType pBase) {
  return OneOf(static_cast<std::size_t>(pBase), Variant(), ArrayOf<bool>({true, false}),
               ArrayOf<std::uint8_t>({0, 200}), Variant(), ArrayOf<std::int32_t>({3, -1}), Variant(),
               ArrayOf<double>({2.5, -1e300}), Variant(), ArrayOf<std::u16string>({u"a", u""}));
}

std::string ShowObject(Object* pObject);

template <class E>
std::string ShowElements(const Array<E>& pArray) {
  if (!pArray.IsAllocated()) return "unallocated";
  std::string text = "[" + std::to_string(pArray.LowerBound()) + ":";
  for (const auto& each : pArray.Elements()) text += " " + Show(VariantValue<E>::To(static_cast<const E&>(each)));
  return text + "]";
}

std::string ShowObject(Object* pObject) {
  if (!pObject) return "unset";
  if (auto* record = dynamic_cast<Record*>(pObject)) {
    std::string text = std::string(record->Desc().identity->name) + " {";
    for (std::size_t i = 0; i < record->Desc().fields.size(); ++i) text += " " + Show(record->FieldValue(i));
    return text + "}";
  }
  const ClassEntry* entry = ClassOf(*pObject);
  if (!entry) return "stranger";
  const bool hasText = entry->members->Find(u"GetString") != kNoMember;
  return std::string(entry->identity->name) +
         (hasText ? " " + TextOrError([&] { return Show(pObject->Call(u"GetString")); }) : "");
}

Variant RandomValue(std::mt19937& pRandom, const TypeDesc& pType) {
  const std::size_t at = pRandom() % 14;
  if (at >= 10) return RightValue(pType);
  return OneOf(at, Variant(), Null(), nullptr, std::int16_t{-3}, static_cast<std::int32_t>(pRandom() % 7) - 2, 1e300,
               u"a;bb;ccc;a longer text than short texts are", RightValue({BaseType::Class, false, 0, "CStrVector"}),
               PlainArray(BaseType::Text), WrongValue(pType));
}

}  // namespace

CallKind MemberCall::Kind() const {
  static constexpr CallKind kKinds[] = {CallKind::Method, CallKind::Get, CallKind::Let, CallKind::Set};
  return kKinds[static_cast<std::size_t>(Member().kind)];
}

std::string MemberCall::Name() const {
  return std::string(entry->identity->name) + "." + std::string(Member().name);
}

std::vector<MemberCall> MembersOf(const ClassEntry& pEntry) {
  std::vector<MemberCall> calls;
  for (std::size_t row = 0; row < pEntry.members->rows.size(); ++row)
    if (!kLeftOut.contains(pEntry.members->rows[row].name)) calls.push_back({&pEntry, row});
  return calls;
}

std::vector<MemberCall> AllMembers() {
  std::vector<MemberCall> calls;
  for (const ClassEntry* entry : Classes())
    for (MemberCall& each : MembersOf(*entry)) calls.push_back(std::move(each));
  return calls;
}

MemberCall WithRightArguments(MemberCall pCall) {
  pCall.arguments.clear();
  for (const ParameterDesc& parameter : pCall.entry->members->Parameters(pCall.Member()))
    pCall.arguments.push_back({RightValue(parameter.type)});
  return pCall;
}

Variant RightValue(const TypeDesc& pType) {
  if (pType.isArray) return PlainArray(pType.base);
  if (pType.base == BaseType::Record) return Variant(NewRecord(AllRecords(), pType.name));
  if (pType.base == BaseType::Class) return Variant(FindClass(os::FromUtf8(pType.name))->create());
  return pType.base == BaseType::Object ? Variant(FindClass(u"CDblVector")->create()) : PlainValue(pType.base);
}

Variant WrongValue(const TypeDesc& pType) {
  if (pType.isArray) return Variant(5);
  if (pType.base == BaseType::Object || pType.base == BaseType::Class || pType.base == BaseType::Record)
    return Variant(u"x");
  return pType.base == BaseType::Text ? Variant(Null()) : Variant(u"x y");
}

MemberCall WithRandomArguments(MemberCall pCall, unsigned pSeed) {
  std::mt19937 random(pSeed);
  pCall.arguments.clear();
  for (const ParameterDesc& parameter : pCall.entry->members->Parameters(pCall.Member()))
    pCall.arguments.push_back({RandomValue(random, parameter.type)});
  return pCall;
}

std::string Show(const Variant& pValue) {
  if (const AnyArray* array = pValue.IfArray())
    return std::visit([](const auto& pArray) { return ShowElements(pArray); }, *array);
  if (const auto* object = pValue.If<Ref<Object>>()) return ShowObject(object->get());
  return std::to_string(static_cast<int>(pValue.Kind())) + " " + (pValue.IsNull() ? "" : os::ToUtf8(ToText(pValue)));
}

CallOutcome CallNatively(Object& pObject, const MemberCall& pCall) {
  CallOutcome outcome;
  std::vector<Variant> values;
  for (const CallArgument& each : pCall.arguments) values.push_back(each.value);
  std::vector<Variant*> pointers;
  for (std::size_t i = 0; i < values.size(); ++i)
    pointers.push_back(pCall.arguments[i].isOmitted ? nullptr : &values[i]);
  outcome.answer =
      TextOrError([&] { return Show(InvokeById(*pCall.entry, pObject, pCall.Member().id, pCall.Kind(), pointers)); });
  for (const Variant& each : values) outcome.arguments.push_back(Show(each));
  return outcome;
}

}  // namespace qzbase::tests
