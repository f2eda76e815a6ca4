// The dual interface of a class, generated from its table: the seven slots of IDispatch, then one a row.
//
// What early-bound callers pass, by the declared type of a parameter and by how it is passed (Rows.h):
//
//   a value            its native (Border.h); a pointer to it where it goes by reference, and of a record always
//   an object          its interface
//
// Null where there must be a pointer gives E_POINTER. A slot clears its result first; whatever is thrown becomes a
// result.
#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>

#include "qzbase/automation/Call.h"
#include "qzbase/automation/com/DispatchCall.h"
#include "qzbase/automation/com/DispatchSlots.h"
#include "qzbase/automation/com/ErrorBorder.h"

namespace qzbase::automation::com {

namespace detail {

// An argument in a slot, `kByPointer` where a pointer to its native is passed.
template <class T, bool kByPointer>
class SlotGiven {
  using Native = typename Border<T>::Native;

 public:
  using Passed = std::conditional_t<kByPointer, Native*, Native>;

  explicit SlotGiven(const Passed& pPassed) : passed_(&pPassed) {
    if constexpr (kByPointer)
      if (!pPassed) throw NullPointer();
  }

  static constexpr bool IsOmitted() noexcept { return false; }
  template <class Wanted>
  const Wanted* Peek() const noexcept {
    return nullptr;
  }
  std::optional<std::u16string_view> PeekText() const noexcept {
    return kByPointer ? std::nullopt : std::optional(TextIn(In()));
  }
  template <class Wanted>
  Wanted Read(const ParameterDesc&) const {
    return Border<Wanted>::From(In());
  }

  template <class Changed>
  class Store {
   public:
    void Prepare(const SlotGiven& pGiven, const Changed& pValue) {
      fresh_ = OwnedNative<Changed>(Border<Changed>::To(pValue));
      if constexpr (std::is_same_v<Native, SAFEARRAY*>) CheckReplaceable(**pGiven.passed_, fresh_.Get());
      target_ = *pGiven.passed_;
    }
    void Commit() noexcept {
      if (!target_) return;
      if constexpr (std::is_same_v<Native, SAFEARRAY*>) {
        ReplaceArray(*target_, fresh_.Release());
      } else {
        Border<Changed>::Clear(*target_);
        *target_ = fresh_.Release();
      }
    }

   private:
    Native* target_ = nullptr;
    OwnedNative<Changed> fresh_;
  };

 private:
  const Native& In() const noexcept {
    if constexpr (kByPointer)
      return **passed_;
    else
      return *passed_;
  }

  const Passed* passed_;
};

// A variant in a slot is what it is in a late-bound call.
template <bool kByPointer>
class SlotGiven<runtime::Variant, kByPointer> : public DispatchGiven {
 public:
  using Passed = std::conditional_t<kByPointer, VARIANT*, VARIANT>;
  explicit SlotGiven(const Passed& pPassed) : DispatchGiven(Of(pPassed)) {}

 private:
  static DispatchGiven Of(const Passed& pPassed) {
    if constexpr (kByPointer)
      return DispatchGiven::Variable(pPassed);
    else
      return DispatchGiven::Value(pPassed);
  }
};

template <class Native, class T>
struct SlotAnswer {
  Native* target;
  OwnedNative<T> made{};

  void Make(const T& pValue) { made = OwnedNative<T>(Border<T>::To(pValue)); }
  void MakeAsGiven(const DispatchGiven& pGiven) { made = OwnedNative<T>(pGiven.Copy()); }
  void Commit() noexcept { *target = made.Release(); }
};
struct NoAnswer {
  void Commit() noexcept {}
};

// Calls `pBody` with the object, which is held meanwhile.
template <class Body>
HRESULT RunSlot(DualInterface* pSelf, Body pBody) noexcept {
  const HeldFace face(pSelf);
  try {
    pBody(*face.Get().Object());
    return S_OK;
  } catch (...) {
    return ReportEarly(&face.Get().Class());
  }
}

template <class C, std::size_t kRow, class Result, class... Given>
struct Slot {
  using Native = typename Border<ValueOf<Result>>::Native;
  using Function = HRESULT(STDMETHODCALLTYPE*)(DualInterface*, typename Given::Passed..., Native*) noexcept;

  static HRESULT STDMETHODCALLTYPE Run(DualInterface* pSelf, typename Given::Passed... pPassed,
                                       Native* pResult) noexcept {
    if (!pResult) return NullPointerResult();
    *pResult = Native{};
    return RunSlot(pSelf, [&](runtime::Object& pObject) {
      CallMember<C, kRow>(pObject, SlotAnswer<Native, ValueOf<Result>>{pResult}, Given(pPassed)...);
    });
  }
};

template <class C, std::size_t kRow, class... Given>
struct Slot<C, kRow, void, Given...> {
  using Function = HRESULT(STDMETHODCALLTYPE*)(DualInterface*, typename Given::Passed...) noexcept;

  static HRESULT STDMETHODCALLTYPE Run(DualInterface* pSelf, typename Given::Passed... pPassed) noexcept {
    return RunSlot(pSelf,
                   [&](runtime::Object& pObject) { CallMember<C, kRow>(pObject, NoAnswer(), Given(pPassed)...); });
  }
};

// The value behind a declared parameter: objects are passed by reference or pointer.
template <class Declared>
struct SlotValue {
  using Type = ValueOf<Declared>;
};
template <class Declared>
requires ObjectType<std::remove_cvref_t<Declared>> || std::is_pointer_v<Declared>
struct SlotValue<Declared> {
  using Type = runtime::Ref<std::remove_cvref_t<std::remove_pointer_t<std::remove_cvref_t<Declared>>>>;
};

template <class C, std::size_t kRow, std::size_t kAt, class Declared>
using GivenOf = SlotGiven<typename SlotValue<Declared>::Type, MemberOf<C, kRow>::kParameters[kAt].IsByRef() ||
                                                                  RecordType<typename SlotValue<Declared>::Type>>;

template <class C, std::size_t kRow, class... Declared, std::size_t... kAt>
auto MakeSlot(TypeList<Declared...>, std::index_sequence<kAt...>)
    -> Slot<C, kRow, typename MemberOf<C, kRow>::Parts::Result, GivenOf<C, kRow, kAt, Declared>...>;

template <class C, std::size_t kRow, class Parameters = typename MemberOf<C, kRow>::Parts::Parameters>
using SlotOf = decltype(MakeSlot<C, kRow>(Parameters(), std::make_index_sequence<Parameters::kSize>()));

}  // namespace detail

// The slots of a class from a row on, one behind the other.
template <class C, std::size_t kRow>
struct SlotsFrom {
  typename detail::SlotOf<C, kRow>::Function slot = detail::SlotOf<C, kRow>::Run;
  SlotsFrom<C, kRow + 1> others;
};
template <class C, std::size_t kRow>
requires(kRow + 1 == members<C>.kSize) struct SlotsFrom<C, kRow> {
  typename detail::SlotOf<C, kRow>::Function slot = detail::SlotOf<C, kRow>::Run;
};

template <class C>
struct Slots {
  DispatchSlots dispatch = kDispatchSlots;
  SlotsFrom<C, 0> rows;
};

template <class C>
inline constexpr Slots<C> slots = [] {
  static_assert(sizeof(Slots<C>) == (7 + members<C>.kSize) * sizeof(void*), "a slot is not where it belongs");
  return Slots<C>();
}();

}  // namespace qzbase::automation::com
