// The models of the vectors: CDblVector, CLngVector, CStrVector, CBoolVector and, as a vector of variants, CVector.
#pragma once

#include <cmath>

#include "qzbase/runtime/Compare.h"
#include "qzbase/runtime/TextCompare.h"
#include "tests/models/BufferModel.h"

namespace qzbase::models {

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

// What the element types have of their own. `Same` is the equality of `Index`, `IsEqual` and `NrValid`.
template <class T>
struct Of;
template <>
struct Of<double> {
  static constexpr std::u16string_view kName = u"CDblVector";
  static constexpr Long kBlock = 16;
  using Closest = Long;
  static double Invalid() { return kInvalidDouble; }
  static bool Same(double pLeft, double pRight) { return pLeft == pRight; }
  static double Read(const Text& pText) { return runtime::TextToDouble(pText); }
  static double Plus(double pLeft, double pRight) {
    const double sum = pLeft + pRight;
    if (std::isinf(sum) && std::isfinite(pLeft) && std::isfinite(pRight)) Raise(RuntimeError::Overflow);
    return sum;
  }
  static double Distance(double pLeft, double pRight) { return std::fabs(Plus(pLeft, -pRight)); }
  static constexpr auto kAdd = &Buffer::AddDouble;
  static constexpr auto kNext = &Buffer::NextDouble;
};
template <>
struct Of<Long> {
  static constexpr std::u16string_view kName = u"CLngVector";
  static constexpr Long kBlock = 16;
  using Closest = double;
  static Long Invalid() { return kInvalidLong; }
  static bool Same(Long pLeft, Long pRight) { return pLeft == pRight; }
  static Long Read(const Text& pText) { return runtime::TextToLong(pText); }
  static Long Plus(Long pLeft, Long pRight) { return Checked(std::int64_t{pLeft} + pRight); }
  static Long Distance(Long pLeft, Long pRight) { return Checked(std::abs(std::int64_t{pLeft} - pRight)); }
  static constexpr auto kAdd = &Buffer::AddLong;
  static constexpr auto kNext = &Buffer::NextLong;
};
template <>
struct Of<Text> {
  static constexpr std::u16string_view kName = u"CStrVector";
  static constexpr Long kBlock = 16;
  static Text Invalid() { return u"~"; }
  static bool Same(const Text& pLeft, const Text& pRight) { return runtime::EqualText(pLeft, pRight); }
  static Text Read(const Text& pText) { return pText; }
  static constexpr auto kAdd = &Buffer::AddString;
  static constexpr auto kNext = &Buffer::NextString;
};
template <>
struct Of<bool> {
  static constexpr std::u16string_view kName = u"CBoolVector";
  static constexpr Long kBlock = 1;
  static bool Invalid() { return false; }
  static bool Same(bool pLeft, bool pRight) { return pLeft == pRight; }
  static bool Read(const Text& pText) { return runtime::TextToBoolean(pText); }
  static constexpr auto kAdd = &Buffer::AddBoolean;
  static constexpr auto kNext = &Buffer::NextBoolean;
};
template <>
struct Of<Variant> {
  static constexpr std::u16string_view kName = u"CVector";
  static constexpr Long kBlock = 16;
  static Variant Invalid() { return kInvalidDouble; }
  static bool Same(const Variant& pLeft, const Variant& pRight) {
    return runtime::CompareExact(pLeft, pRight) == runtime::Order::Equal;
  }
};

template <class T>
class Vector final : public ModelOf<Vector<T>> {
  using V = Vector;
  static constexpr bool kIsVariant = std::is_same_v<T, Variant>;
  static constexpr bool kIsNumber = std::is_same_v<T, double> || std::is_same_v<T, Long>;

 public:
  static constexpr std::u16string_view kName = Of<T>::kName;

  QZVarType VarType() { return kIsVariant ? varType_ : std::is_same_v<T, bool> ? EVTBoolean : EVTDouble; }
  void LetVarType(QZVarType pVarType) { varType_ = pVarType; }
  Long Size() { return slots_.size; }
  void LetSize(Count pSize) { slots_.LetSize(pSize); }
  void LetBlockSize(Block pBlockSize) { slots_.LetBlock(pBlockSize); }
  T Value(At pIndex) { return slots_[pIndex]; }
  void LetValue(At pIndex, T pValue) { slots_[pIndex] = pValue; }

  void SetFromArray(Array<T> pArray) {
    pArray.LowerBound();  // which an unallocated array has not
    LetSize({{pArray.Size()}});
    for (Long i = 1; i <= Size(); ++i) slots_[i] = pArray[Checked(std::int64_t{pArray.LowerBound()} + i - 1)];
  }
  Array<T> GetArray() {
    Array<T> array(1, slots_.Upper());
    for (Long i = 1; i <= slots_.Upper(); ++i) array[i] = slots_[i];
    return array;
  }
  void SetFromString(Text pText) {
    for (const char16_t* opening : {u"(", u"{"})
      if (runtime::EqualText(pText.substr(0, 1), opening))
        pText = pText.size() < 2 ? u"" : pText.substr(1, pText.size() - 2);
    std::vector<Text> pieces;
    for (std::size_t from = 0; !pText.empty() && from <= pText.size(); from += pieces.back().size() + 1)
      pieces.push_back(pText.substr(from, std::min(pText.find(u';', from), pText.size()) - from));
    const auto suppressed = [](auto pStatement) {
      try {
        pStatement();
      } catch (const runtime::AutomationError&) {
      }
    };
    suppressed([&] { slots_.LetSize(static_cast<std::int64_t>(pieces.size())); });
    for (std::size_t i = 0; i < pieces.size(); ++i)
      suppressed([&] { slots_[static_cast<Long>(i) + 1] = Of<T>::Read(pieces[i]); });
  }
  Text GetString() {
    Text text = u"(";
    for (Long i = 1; i <= Size(); ++i) text += (i > 1 ? u";" : u"") + runtime::ToText(slots_[i]);
    return text + u")";
  }

  void InsertValue(At pAtPos, std::optional<T> pValue) {
    slots_.LetSize(std::int64_t{Size()} + 1);
    if (kIsVariant) slots_.ReDim(std::max(Size(), 1));
    const Long at = Inside(pAtPos, Size());
    slots_.Open(at, Size());
    slots_[at] = pValue.value_or(Of<T>::Invalid());
  }
  void AddValue(T pValue) { InsertValue({0}, pValue); }
  void AddUniqueValue(T pValue) {
    if (Index(pValue, 1) == -1) AddValue(pValue);
  }
  void DeleteValue(At pIndex) {
    slots_.Close(pIndex, Size());
    slots_.LetSize(std::int64_t{Size()} - 1);
  }
  Long Index(T pValue, std::optional<Long> pStart) {
    for (Long i = std::max(pStart.value_or(1), 1); i <= Size(); ++i)
      if (Of<T>::Same(slots_[i], pValue)) return i;
    return -1;
  }
  Long NrValid() {
    Long count = 0;
    for (Long i = 1; i <= Size(); ++i) count += !Of<T>::Same(slots_[i], Of<T>::Invalid());
    return count;
  }

  auto ClosestIndex(T pValue, std::optional<At> pStart, std::optional<At> pEnd) {
    const Long start = pStart.value_or(At{1});
    const Long given = pEnd.value_or(At{0}), end = given <= start ? Size() : given;
    Long best = start;
    T least = Of<T>::Distance(pValue, slots_[start]), distance = least;
    for (std::int64_t i = std::int64_t{start} + 1; i <= end && distance != 0; ++i) {
      distance = Of<T>::Distance(pValue, slots_[i]);
      if (!(distance < least)) continue;
      best = static_cast<Long>(i);
      least = distance;
    }
    return static_cast<typename Of<T>::Closest>(best);
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
    T least = slots_[1];
    for (Long i = 1; i <= Size(); ++i)
      if (slots_[i] < least && slots_[i] != Of<T>::Invalid()) least = slots_[i];
    return least;
  }
  T Max() {
    T most = slots_[1];
    for (Long i = 1; i <= Size(); ++i)
      if (slots_[i] > most && slots_[i] != Of<T>::Invalid()) most = slots_[i];
    return most;
  }
  T Sum() {
    T sum = 0;
    for (Long i = 1; i <= Size(); ++i)
      if (slots_[i] != Of<T>::Invalid()) sum = Of<T>::Plus(sum, slots_[i]);
    return sum;
  }

  void Sort(std::optional<bool> pAscending) {
    if (std::min(Size(), slots_.Upper()) > 500) throw TooMuch();
    for (Long k = 1; k <= Size(); ++k) {
      T key = slots_[k];
      if constexpr (std::is_same_v<T, Text>) key = runtime::ToText(runtime::TextToLong(key));
      Long j = 1;
      while (j < k && !IsBehind(slots_[j], key, pAscending.value_or(true))) ++j;
      slots_.Open(j, k);
      slots_[j] = key;
    }
  }
  static bool IsBehind(const T& pElement, const T& pKey, bool pAscending) {
    if constexpr (std::is_same_v<T, Text>)
      return pAscending ? runtime::TextToDouble(pElement) > runtime::TextToDouble(pKey)
                        : runtime::TextToDouble(pElement) < runtime::TextToDouble(pKey);
    else if constexpr (kIsVariant)
      return InSort(pElement, pKey, &runtime::CompareExact) ==
             (pAscending ? runtime::Order::Greater : runtime::Order::Less);
    else
      return pAscending ? pElement > pKey : pElement < pKey;
  }
  // An empty value sorts as 0; null and not-a-number have no place, beside texts neither.
  static runtime::Order InSort(Variant pLeft, Variant pRight, auto pCompare) {
    if (pLeft.IsEmpty()) pLeft = Long{0};
    if (pRight.IsEmpty()) pRight = Long{0};
    const runtime::LocaleRules& rules = runtime::ThreadLocale();
    const auto order = pCompare(pLeft, pRight, rules);
    const bool isPlaced = pCompare(pLeft, pLeft, rules) == pCompare(pRight, pRight, rules);
    return isPlaced ? order : runtime::Order::Unknown;
  }

  void CopyFrom(V& pSource) {
    if (kIsVariant) varType_ = pSource.varType_;
    slots_.LetSize(pSource.Size());
    for (Long i = 1; i <= pSource.Size(); ++i) slots_[i] = pSource.slots_[i];
  }
  bool IsEqual(V& pCompare) {
    if (Size() != pCompare.Size() || varType_ != pCompare.varType_) return false;
    for (Long i = 1; i <= Size(); ++i)
      if (!Of<T>::Same(slots_[i], pCompare.slots_[i])) return false;
    return true;
  }
  static constexpr auto kTag = u"VE#1";
  void Write(Buffer& pBuffer) {
    pBuffer.AddLong(Size());
    for (Long i = 1; i <= Size() && HasRecords(); ++i)
      if constexpr (kIsVariant)
        pBuffer.AddObject(slots_[i], varType_);
      else
        (pBuffer.*Of<T>::kAdd)(slots_[i]);
  }
  void Read(Buffer& pBuffer) {
    slots_.LetSize(HasRecords() ? pBuffer.NextCount() : pBuffer.NextLong());
    for (Long i = 1; i <= Size() && HasRecords(); ++i)
      if constexpr (kIsVariant)
        slots_[i] =
            varType_ == EVTInvalid ? pBuffer.NextObject({}) : pBuffer.NextOf(varType_ == EVTColor ? EVTLong : varType_);
      else
        slots_[i] = (pBuffer.*Of<T>::kNext)();
  }
  T& Slot(std::int64_t pIndex) { return slots_[pIndex]; }

  static Members Rows() {
    Members rows = AllOf(Both(u"Size", &V::Size, &V::LetSize), Both(u"Value", &V::Value, &V::LetValue),
                         Does(u"GetString", &V::GetString), Does(u"InsertValue", &V::InsertValue),
                         Does(u"AddValue", &V::AddValue), Does(u"AddValue", &V::AddValue),
                         Does(u"DeleteValue", &V::DeleteValue), Does(u"Index", &V::Index), V::Family());
    if constexpr (kIsVariant)
      rows = AllOf(rows, Both(u"VarType", &V::VarType, &V::LetVarType));
    else
      rows = AllOf(rows, Does(u"SetFromArray", &V::SetFromArray), Does(u"GetArray", &V::GetArray),
                   Does(u"SetFromString", &V::SetFromString), Does(u"SetFromString", &V::SetFromString));
    if constexpr (!std::is_same_v<T, bool>)
      rows = AllOf(rows, Lets(u"BlockSize", &V::LetBlockSize), Does(u"AddUniqueValue", &V::AddUniqueValue),
                   Does(u"Sort", &V::Sort));
    if constexpr (kIsNumber)
      rows = AllOf(rows, Does(u"ClosestIndex", &V::ClosestIndex), Does(u"ClosestLeftIndex", &V::ClosestLeftIndex),
                   Does(u"ClosestRightIndex", &V::ClosestRightIndex), Does(u"Min", &V::Min), Does(u"Max", &V::Max),
                   Does(u"Sum", &V::Sum));
    if constexpr (kIsNumber || std::is_same_v<T, bool>) rows.push_back(Does(u"VarType", &V::VarType));
    if constexpr (kIsNumber || std::is_same_v<T, Text>) rows.push_back(Does(u"NrValid", &V::NrValid));
    return rows;
  }

 private:
  bool HasRecords() const { return !kIsVariant || (varType_ != EVTObject && varType_ >= 0 && varType_ <= EVTEnum); }

  BlockSlots<T> slots_{Of<T>::kBlock};
  QZVarType varType_ = EVTInvalid;
};

using DblVector = Vector<double>;
using VarVector = Vector<Variant>;

}  // namespace qzbase::models
