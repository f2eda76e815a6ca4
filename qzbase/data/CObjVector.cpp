#include "qzbase/data/CObjVector.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "qzbase/os/ThreadSlot.h"
#include "qzbase/persist/Record.h"
#include "qzbase/runtime/NumberText.h"
#include "qzbase/runtime/TextCompare.h"

namespace qzbase {
namespace {

using runtime::Object;
using runtime::Raise;
using runtime::RuntimeError;
using runtime::Variant;

// A call into an object of a list. A list that holds itself would copy and save itself for ever.
class NestedCall {
 public:
  NestedCall() : depth_(Depth()) {
    if (depth_ >= kDeepest) Raise(RuntimeError::OutOfStackSpace);
    ++depth_;
  }
  ~NestedCall() { --depth_; }
  NestedCall(const NestedCall&) = delete;
  NestedCall& operator=(const NestedCall&) = delete;

 private:
  static constexpr std::int32_t kDeepest = 100;

  static std::int32_t& Depth() {
    static os::PerThread<std::int32_t> depth;
    return *depth;
  }

  std::int32_t& depth_;
};

Object& MustBeSet(Object* pObject) {
  if (pObject == nullptr) Raise(RuntimeError::ObjectNotSet);
  return *pObject;
}

runtime::Ref<Object> CopyOf(Object* pObject) {
  const NestedCall nested;
  const Variant copy = MustBeSet(pObject).Call(u"GetCopy");
  const auto* object = copy.If<runtime::Ref<Object>>();
  if (object == nullptr) Raise(RuntimeError::TypeMismatch);
  return *object;
}

// A buffer as an argument of calls by name; one that nobody holds by reference is lent for their length.
Variant AsArgument(CBuffer& pBuffer) {
  runtime::Ref<Object> buffer = pBuffer.weak_from_this().lock();
  return buffer ? buffer : runtime::Ref<Object>(runtime::Ref<Object>(), &pBuffer);
}

}  // namespace

void CObjVector::LetRef(std::int32_t pIndex, runtime::Ref<Object> pObject) {
  storage_.Store(pIndex, {Key(pIndex), std::move(pObject)});
}

runtime::Ref<Object> CObjVector::Copy(std::int32_t pIndex) const {
  return CopyOf(Ref(pIndex).get());
}

void CObjVector::LetKey(std::int32_t pIndex, std::u16string_view pKey) {
  storage_.Store(pIndex, {std::u16string(pKey), Ref(pIndex)});
}

void CObjVector::ReplaceObject(std::int32_t pIndex, std::u16string_view pKey, Object* pValue) {
  LetKey(pIndex, pKey);
  LetRef(pIndex, CopyOf(pValue));
}

void CObjVector::AddObject(std::u16string_view pKey, Object* pValue) {
  const std::u16string key(pKey);  // it may lie in a slot
  LetSize(runtime::CheckedNarrow<std::int32_t>(std::int64_t{Size()} + 1));
  ReplaceObject(Size(), key, pValue);
}

// Where many numbers are taken, they are looked up among sorted keys; the look-up by `Index` decides.
std::u16string CObjVector::GetUniqueKey(std::u16string_view pKey) const {
  std::u16string key(pKey);
  if (Index(key) == -1) return key;
  const runtime::LocaleRules& rules = runtime::ThreadLocale();
  const auto isBefore = [&](std::u16string_view pLeft, std::u16string_view pRight) {
    return runtime::CompareText(pLeft, pRight, rules) < 0;
  };
  std::vector<std::u16string_view> taken;
  const auto take = [&](const KeyedObject& pSlot) { taken.push_back(pSlot.key); };
  runtime::WithMemory(
      [&] { storage_.Walk(Size(), take, [&](const KeyedObject& pEmpty, std::int32_t) { take(pEmpty); }); });
  std::sort(taken.begin(), taken.end(), isBefore);
  for (std::int32_t number = 1;; ++number) {
    key.resize(pKey.size());
    runtime::AppendNumberText(key, number);
    if (!std::binary_search(taken.begin(), taken.end(), key, isBefore) && Index(key) == -1) return key;
  }
}

std::int32_t CObjVector::Index(std::u16string_view pKey) const {
  const runtime::LocaleRules& rules = runtime::ThreadLocale();
  return storage_.Find(0, Size(), [&](const KeyedObject& pSlot) { return runtime::EqualText(pSlot.key, pKey, rules); });
}

runtime::Ref<CStrVector> CObjVector::KeyVec() const {
  auto keys = runtime::New<CStrVector>();
  keys->LetSize(Size());
  std::int32_t i = 0;
  storage_.Walk(
      Size(), [&](const KeyedObject& pSlot) { keys->LetValue(++i, pSlot.key); },
      [](const KeyedObject&, std::int32_t) {});  // no key is "", which the others are too
  return keys;
}

void CObjVector::CopyFrom(const CObjVector& pSource) {
  LetSize(pSource.Size());
  for (std::int32_t i = 0; i < Size(); ++i) {
    LetKey(i + 1, pSource.Key(i + 1));
    LetRef(i + 1, pSource.Copy(i + 1));
  }
}

runtime::Ref<CObjVector> CObjVector::GetCopy() const {
  auto copy = runtime::New<CObjVector>();
  copy->CopyFrom(*this);
  return copy;
}

// In both, the object is held while it is called: the call may change this list.
void CObjVector::SaveToBuffer(CBuffer* pBuffer, bool pAppend) const {
  SaveRecord(pBuffer, pAppend, u"VO#1", [this](CBuffer& pTo) {
    const NestedCall nested;
    const Variant buffer = AsArgument(pTo);
    pTo.AddLong(Size());
    for (std::int32_t i = 0; i < Size(); ++i) {
      pTo.AddString(Key(i + 1));
      const runtime::Ref<Object> object = Ref(i + 1);
      MustBeSet(object.get()).Call(u"SaveToBuffer", buffer, true);
    }
  });
}

void CObjVector::LoadFromBuffer(CBuffer* pBuffer, bool pAppend) {
  LoadRecord(pBuffer, pAppend, [this](CBuffer& pFrom) {
    const NestedCall nested;
    const Variant buffer = AsArgument(pFrom);
    LetSize(pFrom.NextCount());
    for (std::int32_t i = 0; i < Size(); ++i) {
      const std::u16string text = pFrom.NextString();
      const runtime::Ref<Object> object = Ref(i + 1);
      MustBeSet(object.get()).Let(u"", text);
      object->Call(u"LoadFromBuffer", buffer, true);
    }
  });
}

}  // namespace qzbase
