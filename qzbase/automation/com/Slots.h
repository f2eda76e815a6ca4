// The dual interface of a class, generated from its table: the seven slots of IDispatch, then one a row.
//
// A slot clears its result first, converts the arguments from left to right, calls the function, makes the natives of
// the result and of the by-reference arguments, and only then stores them all. Whatever is thrown, becomes a result.
#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>

#include "qzbase/automation/Members.h"
#include "qzbase/automation/Thunk.h"
#include "qzbase/automation/com/DispatchSlots.h"
#include "qzbase/automation/com/SlotArguments.h"

namespace qzbase::automation::com {

namespace detail {

// A constructor, because only braces evaluate their arguments from left to right.
template <class C, auto kFunction>
struct SlotCall {
  using Result = typename Signature<decltype(kFunction)>::Result;

  template <class... Arguments>
  SlotCall(runtime::Object& pObject, Arguments&&... pArguments) {
    automation::detail::CallFunction<C, kFunction>(pObject, pArguments.Pass()...);
    (pArguments.Prepare(), ...);
    (pArguments.Commit(), ...);
  }

  template <class Native, class... Arguments>
  SlotCall(Native* pResult, runtime::Object& pObject, Arguments&&... pArguments) {
    using T = ValueOf<Result>;
    OwnedNative<T> result(Border<T>::To(automation::detail::CallFunction<C, kFunction>(pObject, pArguments.Pass()...)));
    (pArguments.Prepare(), ...);
    (pArguments.Commit(), ...);
    *pResult = result.Release();
  }
};

// `Arguments` are the SlotArguments of the function; `Result` is the native of its result or void.
template <class C, std::size_t kRow, class Result, class... Arguments>
struct Stub {
  using Slot = HRESULT(STDMETHODCALLTYPE*)(DualInterface*, typename Arguments::Passed..., Result*) noexcept;

  static HRESULT STDMETHODCALLTYPE Call(DualInterface* pSelf, typename Arguments::Passed... pArguments,
                                        Result* pResult) noexcept {
    if (!pResult) return E_POINTER;
    *pResult = Result{};
    const OuterFace& face = *static_cast<OuterFace*>(pSelf);
    try {
      SlotCall<C, MemberOf<C, kRow>::kFunction>{pResult, *face.Object(), Arguments(pArguments)...};
      return S_OK;
    } catch (...) {
      return ReportEarly(&face.Class());
    }
  }
};

template <class C, std::size_t kRow, class... Arguments>
struct Stub<C, kRow, void, Arguments...> {
  using Slot = HRESULT(STDMETHODCALLTYPE*)(DualInterface*, typename Arguments::Passed...) noexcept;

  static HRESULT STDMETHODCALLTYPE Call(DualInterface* pSelf, typename Arguments::Passed... pArguments) noexcept {
    const OuterFace& face = *static_cast<OuterFace*>(pSelf);
    try {
      SlotCall<C, MemberOf<C, kRow>::kFunction>{*face.Object(), Arguments(pArguments)...};
      return S_OK;
    } catch (...) {
      return ReportEarly(&face.Class());
    }
  }
};

template <class Result>
struct NativeResult {
  using Type = typename Border<ValueOf<Result>>::Native;
};
template <>
struct NativeResult<void> {
  using Type = void;
};

template <class C, std::size_t kRow, class... Declared, std::size_t... kAt>
auto MakeStub(TypeList<Declared...>, std::index_sequence<kAt...>)
    -> Stub<C, kRow, typename NativeResult<typename MemberOf<C, kRow>::Parts::Result>::Type,
            SlotArgument<Declared, MemberOf<C, kRow>::kParameters[kAt].type.isByRef>...>;

template <class C, std::size_t kRow, class Parameters = typename MemberOf<C, kRow>::Parts::Parameters>
using StubOf = decltype(MakeStub<C, kRow>(Parameters(), std::make_index_sequence<Parameters::kSize>()));

}  // namespace detail

// The slots of a class from a row on, one behind the other.
template <class C, std::size_t kRow>
struct SlotsFrom {
  typename detail::StubOf<C, kRow>::Slot slot = detail::StubOf<C, kRow>::Call;
  SlotsFrom<C, kRow + 1> others;
};
template <class C, std::size_t kRow>
requires(kRow + 1 == members<C>.kSize) struct SlotsFrom<C, kRow> {
  typename detail::StubOf<C, kRow>::Slot slot = detail::StubOf<C, kRow>::Call;
};

template <class C>
struct Slots {
  DispatchSlots dispatch = kDispatchSlots;
  SlotsFrom<C, 0> rows;
};

template <class C>
inline constexpr Slots<C> slots = {};

}  // namespace qzbase::automation::com
