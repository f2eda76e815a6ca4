#include "tests/models/World.h"

#include <chrono>
#include <cmath>
#include <cstdio>
#include <random>

#include "qzbase/automation/ClassTable.h"
#include "qzbase/os/Utf8.h"
#include "qzbase/persist/CBuffer.h"
#include "tests/models/BufferModel.h"

namespace qzbase::models {

World::World(std::span<const Class* const> pClasses, bool pTells) : tells_(pTells) {
  slotsMade = 0;
  for (const Class* each : pClasses)
    entries_.push_back({automation::CreateObject(Text(u"QZBase.").append(each->name)), each->create()});
}

Long World::Choose(std::size_t pCount) {
  if (choices_ < pCount) {  // used up: as many more as it takes, always the same
    std::mt19937_64 more(choices_ + pCount);
    choices_ = more() | (std::uint64_t{1} << 63);
  }
  const auto chosen = static_cast<Long>(choices_ % pCount);
  choices_ /= pCount;
  return chosen;
}

// The objects of a class; of none, those that hold no others.
std::vector<std::size_t> World::Find(const Class* pClass) const {
  std::vector<std::size_t> found;
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    const Class& other = entries_[i].model->Table();
    if (pClass ? pClass == &other : other.name != u"CObjVector") found.push_back(i);
  }
  return found;
}

Pair World::Object(std::size_t pEntry) const {
  return {entries_[pEntry].library, Something(entries_[pEntry].model)};
}

Pair DrawObject(World& pWorld, const Class* pClass) {
  const std::vector<std::size_t> found = pWorld.Find(pClass);
  if (found.empty() || pWorld.Choose(12) == 0) return {nullptr, nullptr};
  return pWorld.Object(found[static_cast<std::size_t>(pWorld.Choose(found.size()))]);
}

World::Outcome World::Call(runtime::Object& pObject, const Member& pMember, std::vector<Variant> pArguments) {
  try {
    if (auto* model = dynamic_cast<Model*>(&pObject)) return {pMember.call(*model, pArguments), 0};
    return {pObject.Invoke(pMember.name, pMember.kind, pArguments), 0};
  } catch (const runtime::AutomationError& error) {
    return {{}, error.Number()};
  } catch (const std::exception&) {
    return {{}, -1};  // which no call raises
  }
}

bool World::Step(std::uint64_t pChoices) {
  choices_ = pChoices;
  const std::size_t reach = static_cast<std::size_t>(Choose(entries_.size())) + 1;
  const Entry entry = entries_[static_cast<std::size_t>(Choose(reach))];
  const Members& members = entry.model->Table().members;
  const Member& member = members[static_cast<std::size_t>(Choose(members.size()))];
  std::size_t count = member.arguments.size();
  while (count > member.required && Choose(3) == 0) --count;
  std::vector<Variant> library(count), model(count);
  std::string told = tells_ ? Show(entry.library) + "." + os::ToUtf8(member.name) : "";
  for (std::size_t i = 0; i < count; ++i) {
    const Pair pair = member.arguments[i](*this);
    library[i] = pair.library;
    model[i] = pair.model;
    if (tells_) told += " " + Show(library[i]);
  }
  if (tells_) calls += told + (member.kind == CallKind::MethodOrGet ? "\n" : " is assigned\n");

  Outcome expected;
  try {
    expected = Call(*entry.model, member, model);
  } catch (const TooMuch&) {
    return false;
  }
  runtime::ClearLastError();
  const Outcome actual = Call(*entry.library, member, library);
  if (actual.error == 0 && runtime::LastError().number != 0) return Differs("it changed the last error");
  twins_.clear();
  if (!Same(actual, expected, "the result")) return false;
  Put(actual.value, expected.value);
  return true;
}

// An object that was handed out takes the place of another of its class, so that it is used and changed later.
void World::Put(const Variant& pLibrary, const Variant& pModel) {
  const auto* model = pModel.If<Something>();
  if (!model || !*model) return;
  const auto twin = std::static_pointer_cast<Model>(*model);
  const std::vector<std::size_t> found = Find(&twin->Table());
  if (!found.empty())
    entries_[found[static_cast<std::size_t>(Choose(found.size()))]] = {*pLibrary.If<Something>(), twin};
}

void World::CompareAll() {
  twins_.clear();
  for (std::size_t i = 0; i < entries_.size() && difference.empty(); ++i)
    SameObject(entries_[i].library, entries_[i].model, Show(entries_[i].library));
}

bool World::Differs(const std::string& pHow) {
  difference = pHow;
  return false;
}

bool World::Same(const Outcome& pLibrary, const Outcome& pModel, const std::string& pPath) {
  const auto *number = pLibrary.value.If<Long>(), *other = pModel.value.If<Long>();
  if (number && other && *number == *other) return true;  // without making texts
  const auto *left = pLibrary.value.If<Something>(), *right = pModel.value.If<Something>();
  if (left && right) return SameObject(*left, *right, pPath);
  const auto told = [&](const Outcome& pOutcome) {
    return pOutcome.error ? "error " + std::to_string(pOutcome.error) : Show(pOutcome.value);
  };
  const std::string actual = told(pLibrary), expected = told(pModel);
  return actual == expected || Differs(pPath + ": library " + actual + ", model " + expected);
}

bool World::SameObject(const Something& pLibrary, const Something& pModel, const std::string& pPath) {
  if (!pLibrary && !pModel) return true;
  const runtime::Object*& left = twins_[pLibrary.get()];
  const runtime::Object*& right = twins_[pModel.get()];
  if (left == pModel.get() && right == pLibrary.get()) return true;
  if (left || right || !pLibrary || !pModel)
    return Differs(pPath + ": one side shares objects that the other does not");
  left = pModel.get();
  right = pLibrary.get();
  auto& model = static_cast<Model&>(*pModel);
  const auto* buffer = dynamic_cast<CBuffer*>(pLibrary.get());
  if (buffer && !Same({buffer->Capacity()}, {static_cast<Buffer&>(model).Capacity()}, pPath + ".Capacity"))
    return false;
  for (const Member& each : model.Table().members)
    if (each.isShown && !SameSlots(*pLibrary, model, each, pPath + "." + os::ToUtf8(each.name))) return false;
  return true;
}

// Slot by slot to the first one that is not there; where there are many, with more and more left out.
bool World::SameSlots(runtime::Object& pLibrary, Model& pModel, const Member& pMember, const std::string& pPath) {
  for (Long i = 0;; i += 1 + i / 64) {
    const std::vector<Variant> index(pMember.arguments.size(), i);
    const Outcome actual = Call(pLibrary, pMember, index), expected = Call(pModel, pMember, index);
    if (!Same(actual, expected, pPath + "(" + std::to_string(i) + ")")) return false;
    const bool isBehind = i > 0 && expected.error == static_cast<Long>(RuntimeError::SubscriptOutOfRange);
    if (index.empty() || isBehind) return true;
  }
}

// Tells all values apart, but for the payload of not-a-number.
std::string World::Show(const Variant& pValue) const {
  static constexpr const char* kKinds[] = {"empty", "null", "integer ", "", "single ", "double ",
                                           "date ", "",     "",         "", ""};
  const std::string kind = kKinds[static_cast<std::size_t>(pValue.Kind())];
  const auto number = [&](double pNumber) {
    char digits[40];
    std::snprintf(digits, sizeof digits, "%.17g", pNumber);
    return kind + (std::isnan(pNumber) ? "not-a-number" : digits);
  };
  if (const auto* plain = pValue.If<double>()) return number(*plain);
  if (const auto* date = pValue.If<Date>()) return number(date->days);
  if (const auto* text = pValue.If<Text>()) return '"' + os::ToUtf8(*text) + '"';
  if (const auto* object = pValue.If<Something>()) {
    for (std::size_t i = 0; i < entries_.size(); ++i)
      if (entries_[i].library == *object) return os::ToUtf8(entries_[i].model->Table().name) + '#' + std::to_string(i);
    return *object ? "an object" : "nothing";
  }
  if (const runtime::AnyArray* array = pValue.IfArray())
    return std::visit(
        [&]<class E>(const Array<E>& pArray) {
          std::string text = pArray.IsAllocated() ? "array from " + std::to_string(pArray.LowerBound()) : "unallocated";
          using Shown = std::conditional_t<std::is_same_v<E, Byte>, std::int16_t, E>;
          for (const auto& each : pArray.Elements()) text += ' ' + Show(Shown(each));
          return text;
        },
        *array);
  return pValue.IsEmpty() || pValue.IsNull() ? kind : kind + os::ToUtf8(runtime::ToText(pValue));
}

// ---- Sequences.

std::string Run(std::span<const Class* const> pClasses, std::span<const std::uint64_t> pSequence, bool pTells) {
  World world(pClasses, pTells);
  bool goesOn = true;
  for (std::size_t i = 0; i < pSequence.size() && goesOn; ++i) goesOn = world.Step(pSequence[i]);
  if (goesOn) world.CompareAll();
  return world.difference.empty() ? "" : world.calls + world.difference;
}

namespace {

// Leaves out calls as long as a difference remains.
std::vector<std::uint64_t> Shorten(std::span<const Class* const> pClasses, std::vector<std::uint64_t> pSequence) {
  for (std::size_t i = pSequence.size(); i-- > 0;) {
    std::vector<std::uint64_t> shorter = pSequence;
    shorter.erase(shorter.begin() + static_cast<std::ptrdiff_t>(i));
    if (!Run(pClasses, shorter).empty()) pSequence = std::move(shorter);
  }
  return pSequence;
}

}  // namespace

std::string RunRandomly(std::span<const Class* const> pClasses, std::uint64_t pSeed, double pSeconds) {
  std::mt19937_64 random(pSeed);
  std::size_t count = 0;
  const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double>(pSeconds);
  for (; std::chrono::steady_clock::now() < end; ++count) {
    std::vector<std::uint64_t> sequence(1 + random() % 60);
    for (std::uint64_t& each : sequence) each = random();
    if (Run(pClasses, sequence).empty()) continue;
    sequence = Shorten(pClasses, std::move(sequence));
    std::string text = Run(pClasses, sequence, true) + "\nseed " + std::to_string(pSeed) + ", QZBASE_MODEL_SEQUENCE=\"";
    for (const std::uint64_t each : sequence) text += std::to_string(each) + " ";
    return text + "\"";
  }
  std::printf("seed %llu: %zu sequences\n", static_cast<unsigned long long>(pSeed), count);
  return "";
}

}  // namespace qzbase::models
