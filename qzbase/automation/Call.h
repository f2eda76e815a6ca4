// One call of a member, the same however its arguments arrive (Arguments.h) and its result is answered.
//
// Arguments are converted from left to right, the function is called, its result converted, and at last the changed
// by-reference arguments and the result are stored: whatever raises an error leaves all as it was and releases what was
// converted.
//
// An `Answer` has
//
//   Make(value)        converts the result
//   MakeAsGiven(given) the result is that argument, which goes back as it came, of whatever kind
//   Commit()           stores it; cannot fail
#pragma once

#include <array>
#include <cstddef>
#include <type_traits>
#include <utility>

#include "qzbase/automation/Arguments.h"
#include "qzbase/automation/Members.h"

namespace qzbase::automation {

namespace detail {

template <std::size_t kAt, class Argument>
struct Placed {
  template <class Given>
  Placed(const Given& pGiven, const ParameterDesc& pParameter) : argument(pGiven, pParameter) {}
  Argument argument;
};

template <class C, std::size_t kRow, class Declared, class At, class... Given>
class Call;

// The arguments are bases, which are made in their order and unmade if a later one fails.
template <class C, std::size_t kRow, class... Declared, std::size_t... kAt, class... Given>
class Call<C, kRow, TypeList<Declared...>, std::index_sequence<kAt...>, Given...>
    : Placed<kAt, Argument<Declared, Given>>... {
  using Member = MemberOf<C, kRow>;
  using Result = typename Member::Parts::Result;
  template <std::size_t kPlace, class Argument>
  static Argument& Of(Placed<kPlace, Argument>& pPlaced) noexcept {
    return pPlaced.argument;
  }

 public:
  explicit Call(const Given&... pGiven) : Placed<kAt, Argument<Declared, Given>>(pGiven, Member::kParameters[kAt])... {}

  template <class Answer>
  void Run(runtime::Object& pObject, Answer& pAnswer, const Given&... pGiven) {
    if constexpr (std::is_void_v<Result>) {
      CallFunction(pObject);
    } else if constexpr (std::is_same_v<Result, const runtime::Variant&>) {
      const runtime::Variant& result = CallFunction(pObject);
      const bool isGiven = (MadeAsGiven(pAnswer, result, Of<kAt>(*this), pGiven) || ...);
      if (!isGiven) pAnswer.Make(runtime::Variant(result));
    } else {
      pAnswer.Make(ValueOf<Result>(CallFunction(pObject)));
    }
    (Of<kAt>(*this).Prepare(), ...);
    (Of<kAt>(*this).Commit(), ...);
    pAnswer.Commit();
  }

 private:
  Result CallFunction([[maybe_unused]] runtime::Object& pObject) {
    if constexpr (Member::Parts::kIsStatic)
      return Member::kFunction(Of<kAt>(*this).Pass()...);
    else
      return (static_cast<C&>(pObject).*Member::kFunction)(Of<kAt>(*this).Pass()...);
  }

  template <class Answer, class Argument, class Form>
  static bool MadeAsGiven(Answer& pAnswer, const runtime::Variant& pResult, const Argument& pArgument,
                          const Form& pGiven) {
    if constexpr (std::is_same_v<decltype(pArgument.Pass()), const runtime::Variant&>) {
      if (&pArgument.Pass() != &pResult || pGiven.IsOmitted()) return false;
      pAnswer.MakeAsGiven(pGiven);
      return true;
    }
    return false;
  }
};

}  // namespace detail

// The object is of the class of the table; `pGiven` are as many as the member has parameters.
template <class C, std::size_t kRow, class Answer, class... Given>
void CallMember(runtime::Object& pObject, Answer&& pAnswer, const Given&... pGiven) {
  using Parameters = typename MemberOf<C, kRow>::Parts::Parameters;
  detail::Call<C, kRow, Parameters, std::make_index_sequence<sizeof...(Given)>, Given...>(pGiven...).Run(
      pObject, pAnswer, pGiven...);
}

// The same with the arguments in a list: a `Given` is made of each pointer, null for one that is left out.
template <class C, std::size_t kRow, class Given, class Value, class Answer>
void CallWithList(runtime::Object& pObject, [[maybe_unused]] Value* const* pArguments, Answer&& pAnswer) {
  [&]<std::size_t... kAt>(std::index_sequence<kAt...>) {
    CallMember<C, kRow>(pObject, pAnswer, Given{pArguments[kAt]}...);
  }
  (std::make_index_sequence<MemberOf<C, kRow>::Parts::Parameters::kSize>());
}

// A function of such a form for every row of a class.
template <class C, class Function, template <class, std::size_t> class Maker>
inline constexpr auto functionsOf = []<std::size_t... kRow>(std::index_sequence<kRow...>) {
  return std::array<Function, sizeof...(kRow)>{&Maker<C, kRow>::Run...};
}
(std::make_index_sequence<members<C>.kSize>());

}  // namespace qzbase::automation
