// The late-bound form of every member, generated from the tables: a function that takes variants.
//
// A thunk gets one variant a parameter, omitted ones already replaced by their defaults. Arguments are converted from
// left to right, the function is called, its result converted, and at last the by-reference arguments are changed:
// whatever raises an error, leaves them as they were.
#pragma once

#include <array>
#include <cstddef>
#include <type_traits>
#include <utility>

#include "qzbase/automation/Arguments.h"
#include "qzbase/automation/Members.h"

namespace qzbase::automation {

// `pArguments` are as many as the member has parameters. The object is of the class of the table.
using Thunk = void (*)(runtime::Object& pObject, runtime::Variant* const* pArguments, runtime::Variant& pResult);

namespace detail {

template <class C, auto kFunction, class... Passed>
decltype(auto) CallFunction([[maybe_unused]] runtime::Object& pObject, Passed&&... pPassed) {
  if constexpr (Signature<decltype(kFunction)>::kIsStatic)
    return kFunction(std::forward<Passed>(pPassed)...);
  else
    return (static_cast<C&>(pObject).*kFunction)(std::forward<Passed>(pPassed)...);
}

// A constructor, because only braces evaluate their arguments from left to right.
template <class C, auto kFunction, class... Declared>
struct Call {
  Call(runtime::Object& pObject, runtime::Variant& pResult, Argument<Declared>&&... pArguments) {
    using Result = typename Signature<decltype(kFunction)>::Result;
    if constexpr (std::is_void_v<Result>)
      CallFunction<C, kFunction>(pObject, pArguments.Pass()...);
    else
      pResult =
          VariantValue<ValueOf<Result>>::To(ValueOf<Result>(CallFunction<C, kFunction>(pObject, pArguments.Pass()...)));
    (pArguments.Prepare(), ...);
    (pArguments.Commit(), ...);
  }
};

template <class C, auto kFunction, class... Declared, std::size_t... kAt>
void CallWith(runtime::Object& pObject, [[maybe_unused]] runtime::Variant* const* pArguments, runtime::Variant& pResult,
              TypeList<Declared...>, std::index_sequence<kAt...>) {
  Call<C, kFunction, Declared...>{pObject, pResult, Argument<Declared>(*pArguments[kAt])...};
}

template <class C, std::size_t kSlot>
void CallSlot(runtime::Object& pObject, runtime::Variant* const* pArguments, runtime::Variant& pResult) {
  using Parameters = typename MemberOf<C, kSlot>::Parts::Parameters;
  CallWith<C, MemberOf<C, kSlot>::kFunction>(pObject, pArguments, pResult, Parameters{},
                                             std::make_index_sequence<Parameters::kSize>());
}

template <class C, std::size_t... kSlot>
constexpr std::array<Thunk, sizeof...(kSlot)> MakeThunks(std::index_sequence<kSlot...>) {
  return {&CallSlot<C, kSlot>...};
}

}  // namespace detail

// One a row, in slot order.
template <class C>
inline constexpr auto thunks = detail::MakeThunks<C>(std::make_index_sequence<members<C>.kSize>());

}  // namespace qzbase::automation
