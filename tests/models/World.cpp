#include "tests/models/World.h"

#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <random>
#include <sstream>

#include "qzbase/automation/ClassTable.h"
#include "qzbase/os/Utf8.h"
#include "qzbase/persist/CBuffer.h"
#include "tests/models/BufferModel.h"

namespace qzbase::models {

World::World(std::span<const Class* const> pClasses, bool pTells) : tells_(pTells) {
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

Pair World::Any(const Class& pClass) {
  std::vector<std::size_t> found;
  for (std::size_t i = 0; i < entries_.size(); ++i)
    if (&entries_[i].model->Table() == &pClass) found.push_back(i);
  if (found.empty() || Choose(12) == 0) return {nullptr, nullptr};
  return Object(found[static_cast<std::size_t>(Choose(found.size()))]);
}

Pair World::Object(std::size_t pEntry) const {
  return {entries_[pEntry].library, Ref<runtime::Object>(entries_[pEntry].model)};
}

Pair DrawObject(World& pWorld, const Class& pClass) {
  return pWorld.Any(pClass);
}

const Class& World::AnyLeaf() {
  std::vector<const Class*> found;
  for (const Entry& each : entries_)
    if (each.model->Table().name != u"CObjVector") found.push_back(&each.model->Table());
  return *found[static_cast<std::size_t>(Choose(found.size()))];
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
  const std::vector<Member>& members = entry.model->Table().members;
  const Member& member = members[static_cast<std::size_t>(Choose(members.size()))];
  std::size_t count = member.arguments.size();
  while (count > member.required && Choose(3) == 0) --count;
  std::vector<Variant> library, model;
  for (std::size_t i = 0; i < count; ++i) {
    const Pair pair = member.arguments[i](*this);
    library.push_back(pair.library);
    model.push_back(pair.model);
  }
  if (tells_) Tell(entry.library, member, library);

  Outcome expected;
  try {
    expected = Call(*entry.model, member, model);
  } catch (const TooMuch&) {
    return false;
  }
  runtime::ClearLastError();
  const Outcome actual = Call(*entry.library, member, library);
  if (actual.error == 0 && runtime::LastError().number != 0) difference_ = "it changed the last error";
  twins_.clear();
  if (SameOutcome(actual, expected, "the result")) Put(actual.value, expected.value);
  return difference_.empty();
}

void World::Tell(const Ref<runtime::Object>& pObject, const Member& pMember, const std::vector<Variant>& pArguments) {
  calls_ += Show(pObject) + "." + os::ToUtf8(pMember.name) +
            (pMember.kind == CallKind::Let   ? " Let("
             : pMember.kind == CallKind::Set ? " Set("
                                             : "(");
  for (const Variant& each : pArguments) calls_ += Show(each) + (&each == &pArguments.back() ? "" : ", ");
  calls_ += ")\n";
}

// An object that was handed out takes the place of another of its class, so that it is used and changed later.
void World::Put(const Variant& pLibrary, const Variant& pModel) {
  const auto* model = pModel.If<Ref<runtime::Object>>();
  if (!model || !*model) return;
  const auto twin = std::static_pointer_cast<Model>(*model);
  std::vector<Entry*> found;
  for (Entry& each : entries_)
    if (&each.model->Table() == &twin->Table()) found.push_back(&each);
  if (!found.empty())
    *found[static_cast<std::size_t>(Choose(found.size()))] = {*pLibrary.If<Ref<runtime::Object>>(), twin};
}

void World::CompareAll() {
  twins_.clear();
  for (std::size_t i = 0; i < entries_.size() && difference_.empty(); ++i)
    SameObject(entries_[i].library, entries_[i].model, Show(entries_[i].library));
}

bool World::SameOutcome(const Outcome& pLibrary, const Outcome& pModel, const std::string& pPath) {
  if (pLibrary.error == pModel.error) return Same(pLibrary.value, pModel.value, pPath);
  const auto told = [&](const Outcome& pOutcome) {
    return pOutcome.error ? "error " + std::to_string(pOutcome.error) : Show(pOutcome.value);
  };
  difference_ = pPath + ": library " + told(pLibrary) + ", model " + told(pModel);
  return false;
}

bool World::Same(const Variant& pLibrary, const Variant& pModel, const std::string& pPath) {
  const auto* left = pLibrary.If<Ref<runtime::Object>>();
  const auto* right = pModel.If<Ref<runtime::Object>>();
  if (left && right) return SameObject(*left, *right, pPath);
  const bool isSame = pLibrary.Visit([&]<class T>(const T& pPlain) {  // at first without making texts
    const T* other = pModel.If<T>();
    if constexpr (std::is_same_v<T, double>) return other && pPlain == *other && pPlain != 0;
    if constexpr (std::is_same_v<T, Text> || std::is_integral_v<T>) return other && pPlain == *other;
    return false;
  });
  if (isSame || Show(pLibrary) == Show(pModel)) return true;
  difference_ = pPath + ": library " + Show(pLibrary) + ", model " + Show(pModel);
  return false;
}

bool World::SameObject(const Ref<runtime::Object>& pLibrary, const Ref<runtime::Object>& pModel,
                       const std::string& pPath) {
  if (!pLibrary && !pModel) return true;
  const runtime::Object*& left = twins_[pLibrary.get()];
  const runtime::Object*& right = twins_[pModel.get()];
  if (left == pModel.get() && right == pLibrary.get()) return true;
  if (left || right || !pLibrary || !pModel) {
    difference_ = pPath + ": one side shares objects that the other does not";
    return false;
  }
  left = pModel.get();
  right = pLibrary.get();
  Model& model = static_cast<Model&>(*pModel);
  const auto* buffer = dynamic_cast<CBuffer*>(pLibrary.get());
  if (buffer && !Same(buffer->Capacity(), static_cast<Buffer&>(model).Capacity(), pPath + ".Capacity")) return false;
  for (const Member& each : model.Table().members)
    if (each.isShown && each.arguments.size() < 2 &&
        !SameSlots(*pLibrary, model, each, pPath + "." + os::ToUtf8(each.name)))
      return false;
  return true;
}

bool World::SameSlots(runtime::Object& pLibrary, Model& pModel, const Member& pMember, const std::string& pPath) {
  if (pMember.arguments.empty()) return SameOutcome(Call(pLibrary, pMember, {}), Call(pModel, pMember, {}), pPath);
  const auto isSlot = [&](Long pIndex) {
    return Call(pModel, pMember, {pIndex}).error != static_cast<Long>(RuntimeError::SubscriptOutOfRange);
  };
  Long upper = 0;
  while (upper < 40 && isSlot(upper + 1)) ++upper;
  if (upper == 40)
    for (Long step = 1 << 17; step > 0; step /= 2)
      if (isSlot(upper + step)) upper += step;
  for (Long i = 0; i <= upper + 1; i = i == 40 && upper > 50 ? upper - 5 : i + 1)
    if (!SameOutcome(Call(pLibrary, pMember, {i}), Call(pModel, pMember, {i}), pPath + "(" + std::to_string(i) + ")"))
      return false;
  return true;
}

// Tells all values apart, but for the payload of not-a-number.
std::string World::Show(const Variant& pValue) const {
  static constexpr const char* kKinds[] = {"empty", "null", "integer ", "", "single ", "double",
                                           "date",  "",     "",         "", ""};
  std::string text = kKinds[static_cast<std::size_t>(pValue.Kind())];
  const auto number = [&](double pNumber) {
    if (std::isnan(pNumber)) return text + " not-a-number";
    std::ostringstream digits;
    digits.precision(17);
    digits << ' ' << pNumber;
    return text + digits.str();
  };
  if (const auto* plain = pValue.If<double>()) return number(*plain);
  if (const auto* date = pValue.If<Date>()) return number(date->days);
  if (const auto* quoted = pValue.If<Text>()) return '"' + os::ToUtf8(*quoted) + '"';
  if (const auto* object = pValue.If<Ref<runtime::Object>>()) {
    for (std::size_t i = 0; i < entries_.size(); ++i)
      if (entries_[i].library == *object) return os::ToUtf8(entries_[i].model->Table().name) + '#' + std::to_string(i);
    return *object ? "an object" : "nothing";
  }
  if (const runtime::AnyArray* array = pValue.IfArray())
    return std::visit(
        [&]<class E>(const Array<E>& pArray) {
          text = pArray.IsAllocated() ? "array from " + std::to_string(pArray.LowerBound()) : "unallocated";
          for (const auto& each : pArray.Elements()) text += ' ' + Show(ToVariant(E(each)));
          return text;
        },
        *array);
  return pValue.IsEmpty() || pValue.IsNull() ? text : text + os::ToUtf8(runtime::ToText(pValue));
}

// ---- Sequences.

std::string Run(std::span<const Class* const> pClasses, std::span<const std::uint64_t> pSequence) {
  for (const bool tells : {false, true}) {
    World world(pClasses, tells);
    bool goesOn = true;
    for (std::size_t i = 0; i < pSequence.size() && goesOn; ++i) goesOn = world.Step(pSequence[i]);
    if (goesOn) world.CompareAll();
    if (world.Difference().empty()) return "";
    if (tells) return world.Calls() + world.Difference();
  }
  return "";
}

namespace {

// Leaves out calls as long as a difference remains.
std::vector<std::uint64_t> Shorten(std::span<const Class* const> pClasses, std::vector<std::uint64_t> pSequence) {
  for (std::size_t length = pSequence.size(); length > 0; length /= 2)
    for (std::size_t from = 0; from + length <= pSequence.size();) {
      std::vector<std::uint64_t> shorter = pSequence;
      const auto begin = shorter.begin() + static_cast<std::ptrdiff_t>(from);
      shorter.erase(begin, begin + static_cast<std::ptrdiff_t>(length));
      if (Run(pClasses, shorter).empty())
        from += length;
      else
        pSequence = std::move(shorter);
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
    std::string text = Run(pClasses, sequence) + "\nseed " + std::to_string(pSeed) + ", QZBASE_MODEL_SEQUENCE=\"";
    for (const std::uint64_t each : sequence) text += std::to_string(each) + " ";
    return text + "\"";
  }
  std::printf("seed %llu: %zu sequences\n", static_cast<unsigned long long>(pSeed), count);
  return "";
}

}  // namespace qzbase::models
