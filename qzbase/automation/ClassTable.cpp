#include "qzbase/automation/ClassTable.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <typeinfo>
#include <utility>
#include <vector>

#include "qzbase/automation/Identities.h"
#include "qzbase/automation/NameIndex.h"
#include "qzbase/runtime/AutomationError.h"

namespace qzbase::automation {

namespace {

using runtime::CallKind;
using runtime::Object;
using runtime::Raise;
using runtime::Ref;
using runtime::RuntimeError;
using runtime::Variant;

// All classes, and a hash table of their types. Types are looked up by address: within one program a type has one.
class ClassList {
 public:
  ClassList() {
    std::size_t count = 0;
    for (const auto room : ForEachRoom([]<Room kRoom> { return EntriesOfRoom<kRoom>(); }))
      for (const ClassEntry& entry : room) all_[count++] = &entry;
    for (const ClassEntry* entry : all_) {
      std::size_t at = BucketOf(*entry->type);
      while (buckets_[at]) at = (at + 1) % kBuckets;
      buckets_[at] = entry;
    }
  }

  std::span<const ClassEntry* const> All() const noexcept { return all_; }

  const ClassEntry* Find(const std::type_info& pType) const noexcept {
    for (std::size_t at = BucketOf(pType); buckets_[at]; at = (at + 1) % kBuckets)
      if (buckets_[at]->type == &pType) return buckets_[at];
    return nullptr;
  }

 private:
  static constexpr std::size_t kCount = AllClasses::kSize;
  static constexpr std::size_t kBuckets = std::bit_ceil(2 * kCount + 1);

  static std::size_t BucketOf(const std::type_info& pType) noexcept {
    return (reinterpret_cast<std::uintptr_t>(&pType) / alignof(std::type_info)) % kBuckets;
  }

  std::array<const ClassEntry*, kCount> all_{};
  std::array<const ClassEntry*, kBuckets> buckets_{};
};

const ClassList& List() {
  static const ClassList list;
  return list;
}

// An object that only knows positional arguments in a row.
Variant InvokeForeign(Object& pObject, std::u16string_view pName, CallKind pKind,
                      std::span<Variant* const> pArguments) {
  std::vector<Variant> arguments;
  arguments.reserve(pArguments.size());
  for (const Variant* argument : pArguments) {
    if (!argument) Raise(RuntimeError::ArgumentNotOptional);
    arguments.push_back(*argument);
  }
  Variant result = pObject.Invoke(pName, pKind, arguments);
  for (std::size_t i = 0; i < pArguments.size(); ++i) *pArguments[i] = std::move(arguments[i]);
  return result;
}

}  // namespace

std::span<const ClassEntry* const> Classes() {
  return List().All();
}

const ClassEntry* FindClass(std::u16string_view pName) {
  for (const ClassEntry* entry : Classes())
    if (EqualNames(entry->identity->name, pName)) return entry;
  return nullptr;
}

const ClassEntry* ClassOf(const Object& pObject) {
  return List().Find(typeid(pObject));
}

Ref<Object> CreateObject(std::u16string_view pProgId) {
  const std::size_t dot = std::min(pProgId.find(u'.'), pProgId.size());
  const ClassEntry* entry = EqualNames(kLibraryName, pProgId.substr(0, dot)) && dot < pProgId.size()
                                ? FindClass(pProgId.substr(dot + 1))
                                : nullptr;
  if (!entry) Raise(RuntimeError::CannotCreateObject);
  return entry->create();
}

Variant Invoke(Object& pObject, std::u16string_view pName, CallKind pKind, std::span<Variant* const> pArguments,
               std::span<const NamedArgument> pNamed) {
  if (const ClassEntry* entry = ClassOf(pObject))
    return InvokeByName(*entry, pObject, pName, pKind, pArguments, pNamed);
  if (!pNamed.empty()) Raise(RuntimeError::NamedArgumentNotFound);
  return InvokeForeign(pObject, pName, pKind, pArguments);
}

}  // namespace qzbase::automation

namespace qzbase::runtime {

// Stands here, where the members are known: the objects of every room answer by their tables.
Variant Object::Invoke(std::u16string_view pName, CallKind pKind, std::span<Variant> pArguments) {
  const automation::ClassEntry* entry = automation::ClassOf(*this);
  if (!entry) Raise(RuntimeError::MemberNotFound);
  if (pArguments.size() > automation::kMaxParameters) Raise(RuntimeError::WrongNumberOfArguments);
  std::array<Variant*, automation::kMaxParameters> arguments;
  std::transform(pArguments.begin(), pArguments.end(), arguments.begin(), [](Variant& pEach) { return &pEach; });
  return automation::InvokeByName(*entry, *this, pName, pKind, std::span(arguments).first(pArguments.size()));
}

}  // namespace qzbase::runtime
