// Whether a member has changed a value that it was given by reference: equal to the last bit, so that a zero that
// becomes negative counts as a change and an invalid number that stays does not.
#pragma once

#include <array>
#include <cstring>
#include <type_traits>
#include <utility>
#include <variant>

#include "qzbase/automation/Records.h"
#include "qzbase/automation/Types.h"

namespace qzbase::automation {

template <class T>
bool SameValue(const T& pLeft, const T& pRight);

namespace detail {

template <class R, std::size_t... kField>
bool SameFields(const R& pLeft, const R& pRight, std::index_sequence<kField...>) {
  using Fields = std::remove_const_t<decltype(fields<R>)>;
  return (SameValue(pLeft.*(Fields::template kPointer<kField>), pRight.*(Fields::template kPointer<kField>)) && ...);
}

template <class Elements>
bool SameElements(const Elements& pLeft, const Elements& pRight) {
  if (pLeft.size() != pRight.size()) return false;
  for (std::size_t i = 0; i < pLeft.size(); ++i)
    if (!SameValue<typename Elements::value_type>(pLeft[i], pRight[i])) return false;
  return true;
}

}  // namespace detail

template <class T>
bool SameValue(const T& pLeft, const T& pRight) {
  if constexpr (std::is_same_v<T, runtime::Variant>) {
    return pLeft.Kind() == pRight.Kind() && pLeft.Visit([&]<class Inside>(const Inside& pInside) {
      return SameValue(pInside, *pRight.template If<Inside>());
    });
  } else if constexpr (std::is_same_v<T, runtime::ArrayBox>) {
    return (*pLeft).index() == (*pRight).index() &&
           std::visit([&]<class A>(const A& pArray) { return SameValue(pArray, std::get<A>(*pRight)); }, *pLeft);
  } else if constexpr (detail::kIsArray<T>) {
    return pLeft.IsAllocated() == pRight.IsAllocated() &&
           (!pLeft.IsAllocated() || pLeft.LowerBound() == pRight.LowerBound()) &&
           detail::SameElements(pLeft.Elements(), pRight.Elements());
  } else if constexpr (detail::kFixedLength<T> != 0) {
    return detail::SameElements(pLeft, pRight);
  } else if constexpr (RecordType<T>) {
    using Fields = std::remove_const_t<decltype(fields<T>)>;
    return detail::SameFields(pLeft, pRight, std::make_index_sequence<Fields::kSize>());
  } else if constexpr (std::is_same_v<T, std::u16string> || detail::kIsRef<T> || std::is_empty_v<T>) {
    return pLeft == pRight;
  } else {
    static_assert(std::is_trivially_copyable_v<T>);
    // The bits decide: -0 is another value than 0, and a not-a-number the same as itself.
    return std::memcmp(&pLeft, &pRight, sizeof(T)) == 0;  // NOLINT(bugprone-suspicious-memory-comparison)
  }
}

}  // namespace qzbase::automation
