// Lists of objects, and the models of the vectors: CDblVector, CLngVector, CStrVector, CBoolVector and, as a vector of
// variants, CVector.
#pragma once

#include <cmath>

#include "qzbase/runtime/Compare.h"
#include "qzbase/runtime/TextCompare.h"
#include "tests/models/BufferModel.h"

namespace qzbase::models {

inline Long Inside(Long pAtPos, Long pSize) {
  return pAtPos < 1 || pAtPos > pSize ? pSize : pAtPos;
}

// A list of objects with as many slots as it counts, one at least; slots may hold none.
template <class Self, class X>
class ListOf : public ModelOf<Self> {
 public:
  Long Size() { return size_; }
  X& Stored(std::int64_t pIndex) { return The(slots_[pIndex]); }
  Ref<X> Copy(At pIndex) { return Stored(pIndex).GetCopy(); }
  Ref<X> Reference(At pIndex) { return slots_[pIndex]; }
  void SetStored(At pIndex, const Ref<X>& pObject) { slots_[pIndex] = pObject; }
  void LetStored(At pIndex, X& pObject) { Stored(pIndex).CopyFrom(pObject); }
  bool IsEqual(Self& pCompare) {
    if (size_ != pCompare.Size()) return false;
    for (Long i = 1; i <= size_; ++i)
      if (!Stored(i).IsEqual(pCompare.Stored(i))) return false;
    return true;
  }
  void Write(const Ref<Buffer>& pBuffer) {
    pBuffer->AddLong(size_);
    Each([&](X& pObject) { pObject.SaveToBuffer(pBuffer, true); });
  }

 protected:
  void Resize(std::int64_t pSize) {
    size_ = Checked(pSize);
    slots_.ReDim(std::max(size_, 1));
  }
  void Fill(auto pMake) {
    for (Long i = 1; i <= size_; ++i)
      if (!slots_[i]) slots_[i] = pMake();
  }
  Long Insert(At pAtPos, const Ref<X>& pObject) {
    Resize(std::int64_t{size_} + 1);
    const Long at = Inside(pAtPos, size_);
    slots_.Open(at, size_);
    slots_[at] = pObject;
    return at;
  }
  void Delete(At pIndex) {
    slots_.Close(pIndex, size_);
    Resize(std::int64_t{size_} - 1);
  }
  // Keeps what there is until all is made.
  void Replace(Long pSize, auto pMake) {
    Slots<Ref<X>> made;
    made.ReDim(std::max(pSize, 1));
    for (Long i = 1; i <= pSize; ++i) made[i] = pMake(i);
    slots_ = made;
    size_ = pSize;
  }
  void Each(auto pBody) {
    for (Long i = 1; i <= size_; ++i) pBody(Stored(i));
  }

  Slots<Ref<X>> slots_;
  Long size_ = 0;
};

// Slots that come in blocks, and how many of them count.
template <class T>
class BlockSlots : public Slots<T> {
 public:
  explicit BlockSlots(Long pBlockSize) : block(pBlockSize) { this->ReDim(pBlockSize); }
  Long size = 0, block;

  void LetSize(std::int64_t pSize) {
    size = Checked(pSize);
    Resize();
  }
  void Delete(At pIndex) {
    this->Close(pIndex, size);
    LetSize(std::int64_t{size} - 1);
  }
  void LetBlock(Long pBlock) {
    block = pBlock;
    Resize();
  }
  void Resize() {
    if (block == 1) return this->ReDim(std::max(size, 1));
    if (block == 0) Raise(RuntimeError::DivisionByZero);
    const Long count = runtime::CheckedNarrow<std::int16_t>(this->Upper() / block);
    const Long needed = std::max(Checked(std::int64_t{size} - 1) / block + 1, 1);
    if (count != needed) this->ReDim(std::int64_t{needed} * block);
  }
};

// The equality of `Index`, `IsEqual` and `NrValid`.
inline bool Same(const Text& pLeft, const Text& pRight) {
  return runtime::EqualText(pLeft, pRight);
}
inline bool Same(const Variant& pLeft, const Variant& pRight) {
  return runtime::CompareExact(pLeft, pRight) == runtime::Order::Equal;
}
inline Long Plus(Long pLeft, Long pRight) {
  return Checked(std::int64_t{pLeft} + pRight);
}
inline double Plus(double pLeft, double pRight) {
  const double sum = pLeft + pRight;
  if (std::isinf(sum) && std::isfinite(pLeft) && std::isfinite(pRight)) Raise(RuntimeError::Overflow);
  return sum;
}
inline Long Distance(Long pLeft, Long pRight) {
  return Checked(std::abs(std::int64_t{pLeft} - pRight));
}
inline double Distance(double pLeft, double pRight) {
  return std::fabs(Plus(pLeft, -pRight));
}

using Comparer = runtime::Order (*)(const Variant&, const Variant&, const runtime::LocaleRules&);
// Whether an element goes behind a key. An empty value sorts as 0; null and not-a-number have no place, beside texts
// neither.
inline bool IsBehind(Variant pElement, Variant pKey, bool pAscending, Comparer pCompare = &runtime::CompareExact) {
  for (Variant* each : {&pElement, &pKey})
    if (each->IsEmpty()) *each = Long{0};
  const runtime::LocaleRules& rules = runtime::ThreadLocale();
  const auto order = pCompare(pElement, pKey, rules);
  return pCompare(pElement, pElement, rules) == pCompare(pKey, pKey, rules) &&
         order == (pAscending ? runtime::Order::Greater : runtime::Order::Less);
}

// By the type of their elements.
inline constexpr const char16_t* kVectorNames[] = {u"CVector", u"CBoolVector", u"CDblVector", u"CLngVector",
                                                   u"CStrVector"};

template <class T>
class Vector final : public ModelOf<Vector<T>> {
  using V = Vector;
  static constexpr QZVarType kType = std::is_same_v<T, bool>     ? EVTBoolean
                                     : std::is_same_v<T, double> ? EVTDouble
                                     : std::is_same_v<T, Long>   ? EVTLong
                                     : std::is_same_v<T, Text>   ? EVTString
                                                                 : EVTInvalid;
  static constexpr bool kIsVariant = kType == EVTInvalid, kIsBoolean = kType == EVTBoolean,
                        kIsText = kType == EVTString, kIsNumber = kType == EVTDouble || kType == EVTLong;

 public:
  static constexpr std::u16string_view kName = kVectorNames[kType];

  QZVarType VarType() { return kIsVariant || kIsBoolean ? varType_ : EVTDouble; }
  void LetVarType(QZVarType pVarType) { varType_ = pVarType; }
  Long Size() { return slots_.size; }
  void LetSize(Count pSize) { slots_.LetSize(pSize); }
  void LetBlockSize(Block pBlockSize) { slots_.LetBlock(pBlockSize); }
  T Value(At pIndex) { return slots_[pIndex]; }
  void LetValue(At pIndex, const T& pValue) { slots_[pIndex] = pValue; }
  T& Slot(std::int64_t pIndex) { return slots_[pIndex]; }

  void SetFromArray(const Array<T>& pArray) {
    const Long lower = pArray.LowerBound();  // which an unallocated array has not
    LetSize(pArray.Size());
    for (Long i = 1; i <= Size(); ++i) slots_[i] = pArray[Checked(std::int64_t{lower} + i - 1)];
  }
  Array<T> GetArray() {
    Array<T> array(1, slots_.Upper());
    for (Long i = 1; i <= slots_.Upper(); ++i) array[i] = slots_[i];
    return array;
  }
  void SetFromString(const Text& pText) {
    Text text = pText;
    for (const char16_t* opening : {u"(", u"{"})
      if (runtime::EqualText(text.substr(0, 1), opening))
        text = text.size() < 2 ? u"" : text.substr(1, text.size() - 2);
    const auto suppressed = [](auto pStatement) {
      try {
        pStatement();
      } catch (const runtime::AutomationError&) {
      }
    };
    const auto separators = static_cast<Long>(std::count(text.begin(), text.end(), u';'));
    const Long count = text.empty() ? 0 : separators + 1;
    suppressed([&] { slots_.LetSize(count); });
    for (Long i = 1; i <= count; ++i) {
      const Text piece = text.substr(0, text.find(u';'));
      suppressed([&] { slots_[i] = As(runtime::ConvertTo(piece, Variant(T()).Kind())); });
      text.erase(0, piece.size() + 1);
    }
  }
  Text GetString() {
    Text text = u"(";
    for (Long i = 1; i <= Size(); ++i) text += (i > 1 ? u";" : u"") + runtime::ToText(slots_[i]);
    return text + u")";
  }

  void InsertValue(At pAtPos, const std::optional<T>& pValue) {
    slots_.LetSize(std::int64_t{Size()} + 1);
    if (kIsVariant) slots_.ReDim(std::max(Size(), 1));
    const Long at = Inside(pAtPos, Size());
    slots_.Open(at, Size());
    slots_[at] = pValue.value_or(Invalid());
  }
  void AddValue(const T& pValue) { InsertValue(0, pValue); }
  void AddUniqueValue(const T& pValue) {
    if (Index(pValue, 1) == -1) AddValue(pValue);
  }
  void DeleteValue(At pIndex) { slots_.Delete(pIndex); }
  Long Index(const T& pValue, std::optional<Long> pStart) {
    for (Long i = std::max(pStart.value_or(1), 1); i <= Size(); ++i)
      if (Same(slots_[i], pValue)) return i;
    return -1;
  }
  Long NrValid() {
    Long count = 0;
    for (Long i = 1; i <= Size(); ++i) count += !Same(slots_[i], Invalid());
    return count;
  }

  auto ClosestIndex(T pValue, std::optional<At> pStart, std::optional<At> pEnd) {
    const Long start = pStart.value_or(1);
    const Long given = pEnd.value_or(0), end = given <= start ? Size() : given;
    const auto distance = [&](std::int64_t pIndex) { return Distance(pValue, slots_[pIndex]); };
    std::int64_t best = start;
    for (std::int64_t i = best + 1; distance(best) != 0 && i <= end; ++i)
      if (distance(i) < distance(best)) best = i;
    return static_cast<std::conditional_t<kType == EVTLong, double, Long>>(best);
  }
  Long ClosestLeftIndex(T pValue) {
    Long i = Size();
    while (slots_[i] > pValue && i >= 2) --i;
    return i;
  }
  Long ClosestRightIndex(T pValue) {
    Long i = 1;
    while (slots_[i] < pValue && i < Size()) ++i;
    return i;
  }
  T Min() {
    return Fold(slots_[1], [](T pLeast, T pEach) { return pEach < pLeast ? pEach : pLeast; });
  }
  T Max() {
    return Fold(slots_[1], [](T pMost, T pEach) { return pEach > pMost ? pEach : pMost; });
  }
  T Sum() {
    return Fold(0, [](T pSum, T pEach) { return Plus(pSum, pEach); });
  }

  void Sort(std::optional<bool> pAscending) {
    if (std::min(Size(), slots_.Upper()) > 500) throw TooMuch();
    for (Long k = 1; k <= Size(); ++k) {
      T key = slots_[k];
      if constexpr (kIsText) key = runtime::ToText(runtime::TextToLong(key));
      Long j = 1;
      while (j < k && !IsBehind(Key(slots_[j]), Key(key), pAscending.value_or(true))) ++j;
      slots_.Open(j, k);
      slots_[j] = key;
    }
  }

  void CopyFrom(V& pSource) {
    varType_ = pSource.varType_;
    slots_.LetSize(pSource.Size());
    for (Long i = 1; i <= pSource.Size(); ++i) slots_[i] = pSource.slots_[i];
  }
  bool IsEqual(V& pCompare) {
    if (Size() != pCompare.Size() || varType_ != pCompare.varType_) return false;
    for (Long i = 1; i <= Size(); ++i)
      if (!Same(slots_[i], pCompare.slots_[i])) return false;
    return true;
  }
  static constexpr auto kTag = u"VE#1";
  void Write(const Ref<Buffer>& pBuffer) {
    pBuffer->AddLong(Size());
    for (Long i = 1; i <= Size() && HasRecords(); ++i) pBuffer->AddObject(slots_[i], varType_);
  }
  void Read(const Ref<Buffer>& pBuffer, const Text&) {
    slots_.LetSize(HasRecords() ? pBuffer->NextCount() : pBuffer->NextLong());
    for (Long i = 1; i <= Size() && HasRecords(); ++i) {
      const Variant next =
          varType_ == EVTInvalid ? pBuffer->NextObject({}) : pBuffer->NextOf(varType_ == EVTColor ? EVTLong : varType_);
      slots_[i] = As(next);
    }
  }

  static Members Rows() {
    Members rows = Shown<&V::Size, &V::Value>() + Lets<&V::LetSize, &V::LetValue>() + V::Family() +
                   Calls<&V::GetString, &V::InsertValue, &V::AddValue, &V::AddValue, &V::DeleteValue, &V::Index>();
    if constexpr (kIsVariant)
      rows = rows + Shown<&V::VarType>() + Lets<&V::LetVarType>();
    else
      rows = rows + Calls<&V::SetFromArray, &V::GetArray, &V::SetFromString, &V::SetFromString>();
    if constexpr (!kIsBoolean) rows = rows + Lets<&V::LetBlockSize>() + Calls<&V::AddUniqueValue, &V::Sort>();
    if constexpr (kIsNumber)
      rows = rows + Calls<&V::ClosestIndex, &V::ClosestLeftIndex, &V::ClosestRightIndex, &V::Min, &V::Max, &V::Sum>();
    if constexpr (kIsNumber || kIsBoolean) rows = rows + Calls<&V::VarType>();
    if constexpr (kIsNumber || kIsText) rows = rows + Calls<&V::NrValid>();
    return rows;
  }

 private:
  bool HasRecords() const { return varType_ != EVTObject && varType_ >= 0 && varType_ <= EVTEnum; }
  static T As(Variant pValue) { return Argument<T>::From(std::span(&pValue, 1), 0); }
  static T Invalid() { return As(kIsVariant ? kInvalidDouble : InvalidValueOf(kType)); }
  T Fold(T pStart, auto pStep) {
    T result = pStart;
    for (Long i = 1; i <= Size(); ++i)
      if (slots_[i] != Invalid()) result = pStep(result, slots_[i]);
    return result;
  }
  static Variant Key(const T& pElement) {
    if constexpr (kIsText) return runtime::TextToDouble(pElement);
    return pElement;
  }

  BlockSlots<T> slots_{kIsBoolean ? 1 : 16};
  QZVarType varType_ = kType;
};

using DblVector = Vector<double>;
using VarVector = Vector<Variant>;

}  // namespace qzbase::models
