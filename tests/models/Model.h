// Small models of the library's containers, and how the driver (World.h) calls them.
//
// A model is a class of plain members over plain arrays that does what its container is to do, one statement after the
// other, and nothing for speed. Its table has a row for each member:
//
//   Shown(Gets(u"Value", &DblVector::Value)),      // compared slot by slot when a sequence ends
//   Does(u"InsertValue", &DblVector::InsertValue),  // void InsertValue(At pAtPos, std::optional<double> pValue)
//
// The types of the parameters say which values the driver draws for them (Arguments.cpp): `At` is a position, `Count` a
// number of slots, `std::optional` may be left out, a reference to a model must be set, a pointer need not be. The
// driver calls the library by the same names, so that a row is all that a member needs.
#pragma once

#include <algorithm>
#include <cstdint>
#include <deque>
#include <functional>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "qzbase/core/QZVarType.h"
#include "qzbase/runtime/CheckedNarrow.h"
#include "qzbase/runtime/Convert.h"
#include "qzbase/runtime/Object.h"

namespace qzbase::models {

using runtime::Array;
using runtime::CallKind;
using runtime::Date;
using runtime::Raise;
using runtime::RuntimeError;
using runtime::Variant;
using Byte = std::uint8_t;
using Long = std::int32_t;
using Text = std::u16string;

struct TooMuch {};  // thrown where a model would take too long: the sequence ends there

struct At {
  Long value = 0;
  operator Long() const { return value; }
};
struct Count : At {};
struct Block : At {};

// The same value on both sides.
struct Pair {
  Variant library, model;
};

class World;
class Model;

struct Member {
  CallKind kind{};
  std::u16string_view name;
  std::vector<Pair (*)(World&)> arguments;
  std::size_t required = 0;
  std::function<Variant(Model&, std::span<Variant>)> call;
  bool isShown = false;
};

struct Class {
  std::u16string_view name;
  Ref<Model> (*create)() = nullptr;
  std::vector<Member> members;
};

class Model : public runtime::Object {
 public:
  virtual const Class& Table() const = 0;
  Variant Invoke(std::u16string_view pName, CallKind pKind, std::span<Variant> pArguments) final {
    for (const Member& each : Table().members)
      if (each.kind == pKind && each.name == pName) return each.call(*this, pArguments);
    Raise(RuntimeError::MemberNotFound);
  }
};

// ---- Arguments and results. `Draw` makes a value, `From` takes it out of the arguments of a call.

Pair DrawObject(World& pWorld, const Class& pClass);

template <class T>
struct Argument {
  static Pair Draw(World& pWorld);
  static T From(std::span<Variant> pArguments, std::size_t pIndex) {
    if constexpr (std::is_same_v<T, Variant>)
      return pArguments[pIndex];
    else if constexpr (std::is_base_of_v<At, T>)
      return T{{*pArguments[pIndex].If<Long>()}};
    else
      return *pArguments[pIndex].If<T>();
  }
};
template <>
inline At Argument<At>::From(std::span<Variant> pArguments, std::size_t pIndex) {
  return {*pArguments[pIndex].If<Long>()};
}
template <>
inline QZVarType Argument<QZVarType>::From(std::span<Variant> pArguments, std::size_t pIndex) {
  return static_cast<QZVarType>(*pArguments[pIndex].If<Long>());
}
template <>
inline Byte Argument<Byte>::From(std::span<Variant> pArguments, std::size_t pIndex) {
  return static_cast<Byte>(*pArguments[pIndex].If<std::int16_t>());
}
template <class T>
struct Argument<const T&> : Argument<T> {};
template <class T>
struct Argument<Array<T>> {
  static Pair Draw(World& pWorld);
  static Array<T> From(std::span<Variant> pArguments, std::size_t pIndex) {
    return std::get<Array<T>>(*pArguments[pIndex].IfArray());
  }
};
template <class T>
struct Argument<std::optional<T>> : Argument<T> {
  static std::optional<T> From(std::span<Variant> pArguments, std::size_t pIndex) {
    if (pIndex >= pArguments.size()) return {};
    return Argument<T>::From(pArguments, pIndex);
  }
};
template <std::derived_from<runtime::Object> M>
struct Argument<Ref<M>> {
  static Pair Draw(World& pWorld) { return DrawObject(pWorld, M::kTable()); }
  static Ref<M> From(std::span<Variant> pArguments, std::size_t pIndex) {
    return std::static_pointer_cast<M>(*pArguments[pIndex].If<Ref<runtime::Object>>());
  }
};
template <>
Pair Argument<Ref<runtime::Object>>::Draw(World& pWorld);
template <std::derived_from<Model> M>
struct Argument<M*> : Argument<Ref<M>> {
  static M* From(std::span<Variant> pArguments, std::size_t pIndex) {
    return Argument<Ref<M>>::From(pArguments, pIndex).get();
  }
};
template <std::derived_from<Model> M>
struct Argument<M&> : Argument<Ref<M>> {
  static M& From(std::span<Variant> pArguments, std::size_t pIndex) {
    if (M* object = Argument<M*>::From(pArguments, pIndex)) return *object;
    Raise(RuntimeError::ObjectNotSet);
  }
};

template <class T>
Variant ToVariant(T pValue) {
  if constexpr (std::is_same_v<T, Byte>)
    return std::int16_t{pValue};
  else
    return pValue;
}

// ---- Rows.

template <class T>
inline constexpr bool kIsOptional = false;
template <class T>
inline constexpr bool kIsOptional<std::optional<T>> = true;

template <class M, class R, class... A>
Member Row(CallKind pKind, std::u16string_view pName, R (M::*pCall)(A...)) {
  const auto call = [pCall]<std::size_t... I>(M & pModel, std::span<Variant> pArguments, std::index_sequence<I...>) {
    const std::tuple<decltype(Argument<A>::From(pArguments, I))...> arguments{Argument<A>::From(pArguments, I)...};
    if constexpr (std::is_void_v<R>)
      return (pModel.*pCall)(std::get<I>(arguments)...), Variant();
    else
      return ToVariant((pModel.*pCall)(std::get<I>(arguments)...));
  };
  return {pKind,
          pName,
          {&Argument<A>::Draw...},
          (std::size_t{0} + ... + !kIsOptional<A>),
          [call](Model& pModel, std::span<Variant> pArguments) {
            return call(static_cast<M&>(pModel), pArguments, std::index_sequence_for<A...>{});
          }};
}

inline Member Gets(std::u16string_view pName, auto pCall) {
  return Row(CallKind::Get, pName, pCall);
}
inline Member Lets(std::u16string_view pName, auto pCall) {
  return Row(CallKind::Let, pName, pCall);
}
inline Member Sets(std::u16string_view pName, auto pCall) {
  return Row(CallKind::Set, pName, pCall);
}
inline Member Does(std::u16string_view pName, auto pCall) {
  return Row(CallKind::Method, pName, pCall);
}
inline Member Shown(Member pMember) {
  pMember.isShown = true;
  return pMember;
}

// A property that is shown.
inline std::vector<Member> Both(std::u16string_view pName, auto pGet, auto pLet) {
  return {Shown(Gets(pName, pGet)), Lets(pName, pLet)};
}

using Members = std::vector<Member>;
inline Members AllOf(const auto&... pRows) {
  Members all;
  const auto add = [&]<class T>(const T& pRow) {
    if constexpr (std::is_same_v<T, Member>)
      all.push_back(pRow);
    else
      all.insert(all.end(), pRow.begin(), pRow.end());
  };
  (add(pRows), ...);
  return all;
}

// The records (BufferModel.h): the tag `Self::kTag`, what `Write` writes and `Read` reads, the closing tag.
class Buffer;
template <class Self>
void Save(Self& pObject, Buffer* pBuffer, std::optional<bool> pAppend);
template <class Self>
void Load(Self& pObject, Buffer* pBuffer, std::optional<bool> pAppend);

// What every container has.
template <class Self>
class ModelOf : public Model {
 public:
  static const Class& kTable() {
    static const Class table{Self::kName, [] { return Ref<Model>(New<Self>()); }, Self::Rows()};
    return table;
  }
  const Class& Table() const final { return kTable(); }
  Ref<Self> GetCopy() {
    auto copy = New<Self>();
    copy->CopyFrom(Itself());
    return copy;
  }
  void SaveToBuffer(Buffer* pBuffer, std::optional<bool> pAppend) { Save(Itself(), pBuffer, pAppend); }
  void LoadFromBuffer(Buffer* pBuffer, std::optional<bool> pAppend) { Load(Itself(), pBuffer, pAppend); }
  static Members CopyRows() { return {Does(u"CopyFrom", &Self::CopyFrom), Does(u"GetCopy", &Self::GetCopy)}; }
  static Members SaveRows() {
    return {Does(u"SaveToBuffer", &Self::SaveToBuffer), Does(u"LoadFromBuffer", &Self::LoadFromBuffer)};
  }
  static Members Family() { return AllOf(CopyRows(), Does(u"IsEqual", &Self::IsEqual), SaveRows()); }

 private:
  Self& Itself() { return static_cast<Self&>(*this); }
};

template <class M>
M& The(const Ref<M>& pObject) {
  if (!pObject) Raise(RuntimeError::ObjectNotSet);
  return *pObject;
}

inline Long Checked(std::int64_t pValue) {
  return runtime::CheckedNarrow<Long>(pValue);
}

// Of the slots that all models together may have.
class Share {
 public:
  Share() = default;
  Share(const Share& pOther) { Take(pOther.taken_); }
  Share& operator=(const Share& pOther) {
    Take(pOther.taken_);
    return *this;
  }
  ~Share() { all_ -= taken_; }
  void Take(std::int64_t pSlots) {
    constexpr std::int64_t kMost = 150'000;
    if (all_ - taken_ + pSlots > kMost) throw TooMuch();
    all_ += pSlots - std::exchange(taken_, pSlots);
  }

 private:
  static inline std::int64_t all_ = 0;
  std::int64_t taken_ = 0;
};

// An array with bounds 1 to `Upper()`, 1 at first.
template <class T>
class Slots {
 public:
  T& operator[](std::int64_t pIndex) {
    if (pIndex < 1 || pIndex > Upper()) Raise(RuntimeError::SubscriptOutOfRange);
    return slots_[static_cast<std::size_t>(pIndex - 1)];
  }
  Long Upper() const { return static_cast<Long>(slots_.size()); }
  void ReDim(std::int64_t pUpper) {  // keeping contents
    if (Checked(pUpper) < 0) Raise(RuntimeError::SubscriptOutOfRange);
    share_.Take(pUpper * kCost);
    slots_.resize(static_cast<std::size_t>(pUpper));
  }
  // Moves the slots from a position to the last but one up by one, the slots behind a position down by one.
  void Open(std::int64_t pFrom, Long pSize) {
    for (std::int64_t i = std::int64_t{pSize} - 1; i >= pFrom; --i) (*this)[i + 1] = (*this)[i];
  }
  void Close(std::int64_t pFrom, Long pSize) {
    for (std::int64_t i = pFrom + 1; i <= pSize; ++i) (*this)[i - 1] = (*this)[i];
  }

 private:
  static constexpr Long kCost = requires { typename T::element_type; }
  ? 500 : 1;  // an object is more than a slot

  Share share_;
  std::deque<T> slots_ = std::deque<T>(1);
};

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
  void SetStored(At pIndex, Ref<X> pObject) { slots_[pIndex] = pObject; }
  void LetStored(At pIndex, X& pObject) { Stored(pIndex).CopyFrom(pObject); }

 protected:
  void Resize(std::int64_t pSize) {
    size_ = Checked(pSize);
    slots_.ReDim(std::max(size_, 1));
  }
  Long Insert(At pAtPos, Ref<X> pObject) {
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
  bool SameElements(ListOf& pCompare) {
    if (size_ != pCompare.size_) return false;
    for (Long i = 1; i <= size_; ++i)
      if (!Stored(i).IsEqual(pCompare.Stored(i))) return false;
    return true;
  }
  void WriteElements(auto& pBuffer) {
    pBuffer.AddLong(size_);
    Each([&](X& pObject) { pObject.SaveToBuffer(&pBuffer, true); });
  }
  void Each(auto pBody) {
    for (Long i = 1; i <= size_; ++i) pBody(Stored(i));
  }

  Slots<Ref<X>> slots_;
  Long size_ = 0;
};

}  // namespace qzbase::models
