// Small models of the library's containers, and how the driver (World.h) calls them.
//
// A model is a class of plain members over plain arrays that does what its container is to do, one statement after the
// other, and nothing for speed. To write one: derive from `ModelOf`, give it the name of its class as `kName`, and list
// in `Rows` the members that the driver is to call, the same one twice where it matters more:
//
//   Shown<&V::Size, &V::Value>()       // compared when a sequence ends, an indexed one slot by slot
//   Calls<&V::InsertValue, &V::Sum>()  // methods and reads
//   Lets<&V::LetSize>(), Sets<...>()   // assignments, by their names without "Let" and "Set"
//
// The library is called by the same names; `As` gives a row another one. The parameters say what values are drawn
// (Arguments.cpp): `At` is a position, `Count` a number of slots, `std::optional` may be left out, a reference to a
// model must be set, a `Ref` need not be. Errors are raised where the statement stands that meets them.
#pragma once

#include <algorithm>
#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <variant>
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
using Something = Ref<runtime::Object>;

struct TooMuch {};  // thrown where a model would take too long: the sequence ends there

// Longs of which some values are drawn more often.
template <int kUse>
struct Number {
  Number(Long pValue = 0) : value(pValue) {}
  operator Long() const { return value; }
  Long value;
};
using At = Number<0>;
using Count = Number<1>;
using Block = Number<2>;

// The same value on both sides.
struct Pair {
  Variant library, model;
};

class World;
class Model;

struct Member {
  CallKind kind{};
  Text name;
  std::vector<Pair (*)(World&)> arguments;
  std::size_t required = 0;
  std::function<Variant(Model&, std::span<Variant>)> call;
  bool isShown = false;
};
using Members = std::vector<Member>;

struct Class {
  std::u16string_view name;
  Ref<Model> (*create)() = nullptr;
  Members members;
};

class Model : public runtime::Object {
 public:
  virtual const Class& Table() const = 0;
  Variant Invoke(std::u16string_view pName, CallKind pKind, std::span<Variant> pArguments) final {
    for (const Member& each : Table().members)
      if ((static_cast<int>(each.kind) & static_cast<int>(pKind)) != 0 && each.name == pName)
        return each.call(*this, pArguments);
    Raise(RuntimeError::MemberNotFound);
  }
};

template <class M>
M& The(const Ref<M>& pObject) {
  if (!pObject) Raise(RuntimeError::ObjectNotSet);
  return *pObject;
}

// ---- Arguments: what is drawn for a parameter (Arguments.cpp), and what the model gets of it.

Pair DrawObject(World& pWorld, const Class* pClass);
Pair DrawOneOf(World& pWorld, std::size_t pKind);

using Drawn =
    std::variant<At, Count, Block, QZVarType, Long, std::int16_t, bool, double, Date, Text, Variant, Something>;
template <class T>
std::size_t KindOf() {
  return Drawn(std::in_place_type<T>).index();
}

template <class T>
struct Argument {
  static Pair Draw(World& pWorld) { return DrawOneOf(pWorld, KindOf<T>()); }
  static T From(std::span<Variant> pArguments, std::size_t pIndex) {
    if constexpr (std::is_same_v<T, Variant>)
      return pArguments[pIndex];
    else if constexpr (std::is_enum_v<T> || requires(T pNumber) { pNumber.value; })
      return static_cast<T>(*pArguments[pIndex].If<Long>());
    else
      return *pArguments[pIndex].If<T>();
  }
};
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
  static constexpr bool kIsOptional = true;
  static std::optional<T> From(std::span<Variant> pArguments, std::size_t pIndex) {
    return pIndex < pArguments.size() ? std::optional<T>(Argument<T>::From(pArguments, pIndex)) : std::nullopt;
  }
};
template <std::derived_from<Model> M>
struct Argument<Ref<M>> {
  static Pair Draw(World& pWorld) { return DrawObject(pWorld, &M::kTable()); }
  static Ref<M> From(std::span<Variant> pArguments, std::size_t pIndex) {
    return std::static_pointer_cast<M>(*pArguments[pIndex].If<Something>());
  }
};
template <std::derived_from<Model> M>
struct Argument<M&> : Argument<Ref<M>> {
  static M& From(std::span<Variant> pArguments, std::size_t pIndex) {
    return The(Argument<Ref<M>>::From(pArguments, pIndex));
  }
};

// ---- Rows.

template <class M, class R, class... A>
Member Row(CallKind pKind, const Text& pName, R (M::*pCall)(A...)) {
  const auto call = [pCall]<std::size_t... I>(M & pModel, std::span<Variant> pArguments, std::index_sequence<I...>) {
    const std::tuple<decltype(Argument<A>::From(pArguments, I))...> all{Argument<A>::From(pArguments, I)...};
    if constexpr (std::is_void_v<R>)
      return (pModel.*pCall)(std::get<I>(all)...), Variant();
    else
      return Variant((pModel.*pCall)(std::get<I>(all)...));
  };
  const std::size_t required = (std::size_t{0} + ... + !requires { Argument<A>::kIsOptional; });
  return {pKind, pName, {&Argument<A>::Draw...}, required, [call](Model& pModel, std::span<Variant> pArguments) {
            return call(static_cast<M&>(pModel), pArguments, std::index_sequence_for<A...>());
          }};
}

// A member's own name: what stands behind the last "::" of "... [with auto kCall = &Vector<double>::Size; ...]".
template <auto kCall>
Text NameOf(std::size_t pPrefix) {
  std::string_view text = __PRETTY_FUNCTION__;
  text = text.substr(text.find("kCall = "));
  text = text.substr(0, text.find_first_of(";]"));
  text = text.substr(text.rfind("::") + 2 + pPrefix);
  return {text.begin(), text.end()};
}

template <auto... kCalls>
Members Calls() {
  return {Row(CallKind::MethodOrGet, NameOf<kCalls>(0), kCalls)...};
}
template <auto... kCalls>
Members Lets() {
  return {Row(CallKind::Let, NameOf<kCalls>(3), kCalls)...};
}
template <auto... kCalls>
Members Sets() {
  return {Row(CallKind::Set, NameOf<kCalls>(3), kCalls)...};
}
template <auto... kCalls>
Members Shown() {
  Members rows = Calls<kCalls...>();
  for (Member& each : rows) each.isShown = true;
  return rows;
}
inline Members As(const Text& pName, Members pRows) {
  for (Member& each : pRows) each.name = pName;
  return pRows;
}
inline Members operator+(Members pLeft, const Members& pRight) {
  pLeft.insert(pLeft.end(), pRight.begin(), pRight.end());
  return pLeft;
}
// Rows of a part that are those of the whole too.
template <class Whole, class Part>
Members Through(Part& (*pPart)(Whole&), std::u16string_view pNames) {
  Members rows;
  for (Member each : Part::kTable().members) {
    if ((u" " + Text(pNames) + u" ").find(u" " + each.name + u" ") == Text::npos) continue;
    each.call = [pPart, call = each.call](Model& pModel, std::span<Variant> pArguments) {
      return call(pPart(static_cast<Whole&>(pModel)), pArguments);
    };
    rows.push_back(std::move(each));
  }
  return rows;
}

// ---- What all containers have.

// Records (BufferModel.h): the tag `Self::kTag`, what `Write` writes and `Read` reads, the closing tag.
class Buffer;
void Save(Buffer* pBuffer, bool pAppend, const Text& pTag, const std::function<void()>& pWrite);
void Load(Buffer* pBuffer, bool pAppend, const std::function<void(const Text&)>& pRead);

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
  void SaveToBuffer(const Ref<Buffer>& pBuffer, std::optional<bool> pAppend) {
    Save(pBuffer.get(), pAppend.value_or(false), Self::kTag, [&] { Itself().Write(pBuffer); });
  }
  void LoadFromBuffer(const Ref<Buffer>& pBuffer, std::optional<bool> pAppend) {
    Load(pBuffer.get(), pAppend.value_or(false), [&](const Text& pTag) { Itself().Read(pBuffer, pTag); });
  }
  static Members Copies() { return Calls<&Self::CopyFrom, &Self::CopyFrom, &Self::GetCopy>(); }
  static Members Records() { return Calls<&Self::SaveToBuffer, &Self::LoadFromBuffer>(); }
  static Members Family() { return Copies() + Records() + Calls<&Self::IsEqual, &Self::IsEqual>(); }

 private:
  Self& Itself() { return static_cast<Self&>(*this); }
};

inline Long Checked(std::int64_t pValue) {
  return runtime::CheckedNarrow<Long>(pValue);
}

inline std::int64_t slotsMade = 0;  // by all models of a sequence

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
    constexpr Long kCost = requires {
      typename T::element_type;
    }
    ? 500 : 1;  // an object is more than a slot
    slotsMade += std::max<std::int64_t>(pUpper - Upper(), 0) * kCost;
    if (slotsMade > 500'000) throw TooMuch();
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
  std::deque<T> slots_ = std::deque<T>(1);
};

}  // namespace qzbase::models
