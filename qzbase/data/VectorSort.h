// The order in which vectors, rows and columns sort: that of an insertion sort, in the time of a merge sort.
//
// Ascending, each element goes in front of the first one before it that is greater, descending in front of the first
// one that is smaller; elements that are neither keep their order. This also says where not-a-number and null come to
// stand: nothing is greater or smaller than they, so that they go to the end of what is before them and are passed over
// later.
//
//   const auto order = SortedOrder(count, ascending, [&](std::int32_t i, std::int32_t j) {
//     return CompareInSort(keys[i], keys[j]);
//   });
//   Rearrange(std::span(rows), order);
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "qzbase/data/BlockStorage.h"
#include "qzbase/runtime/Compare.h"

namespace qzbase {

void SortElements(std::span<double> pElements, bool pAscending);
void SortElements(std::span<std::int32_t> pElements, bool pAscending);

// Texts sort as the whole numbers that they say, and are replaced by the texts of those: "10", "9" and "2.6" give "3",
// "9" and "10". A text that is no number raises the error of its conversion; those before it are sorted then, it and
// those behind it unchanged.
void SortElements(std::span<std::u16string> pElements, bool pAscending);

// Variants sort by `CompareInSort`. An object or array among several elements raises error 13; those before it are
// sorted then, it and those behind it unchanged.
void SortElements(std::span<runtime::Variant> pElements, bool pAscending);

// Whether an element goes behind a slot that was never written. Texts do not: such a slot is no number and ends the
// sort. Nor do objects and arrays, which end it too.
inline bool SortsBehindZero(double pElement, bool pAscending) {
  return pAscending ? pElement > 0 : pElement < 0;
}
inline bool SortsBehindZero(const std::u16string&, bool) {
  return false;
}
bool SortsBehindZero(const runtime::Variant& pElement, bool pAscending);

// How two variants stand to each other when they sort: as they compare (runtime/Compare.h), but that there is one order
// among all: an empty one is the number 0 beside a text too, and not-a-number has no order to texts either. Texts
// compare exactly, or by text comparison when case is to be ignored.
runtime::Order CompareInSort(const runtime::Variant& pLeft, const runtime::Variant& pRight,
                             runtime::CaseRule pCase = runtime::CaseRule::CaseSensitive,
                             const runtime::LocaleRules& pRules = runtime::ThreadLocale());

// Where variants come to stand by `CompareInSort`, found faster where all are numbers (dates, booleans and empty ones
// included) or all are texts. Error 13 where one of several is an object or array.
std::vector<std::int32_t> SortedOrder(std::span<const runtime::Variant> pKeys, bool pAscending);

// Where the elements 0 to `pCount` - 1 come to stand: first the index of the one that goes first. `pOrder(i, j)` says
// how element i stands to element j: `Unknown` where one of them has no order, which it then has not to itself either.
template <class OrderOf>
std::vector<std::int32_t> SortedOrder(std::int32_t pCount, bool pAscending, OrderOf pOrder);

// How many of the first slots have to be sorted for `pCount` to be. Where none that was written belongs behind a zero,
// those never written stay where they are, and one of them stands for all.
template <class T>
std::int32_t SlotsToSort(const BlockStorage<T>& pStorage, std::int32_t pCount, bool pAscending);

// Puts the elements into such an order.
template <class T>
void Rearrange(std::span<T> pElements, const std::vector<std::int32_t>& pOrder);

namespace detail {

// An element without an order goes behind everything before it, and only what would go in front of one of those goes in
// front of it later. It thus sorts as if it were the last one of those: here is for each element the one as which it
// sorts, -1 for the very first place.
template <class OrderOf>
std::vector<std::int32_t> SortingAs(std::int32_t pCount, runtime::Order pBehind, OrderOf pOrder) {
  std::vector<std::int32_t> sortingAs(static_cast<std::size_t>(std::max(pCount, 0)));
  std::int32_t last = -1;
  for (std::int32_t i = 0; i < pCount; ++i) {
    const bool hasOrder = pOrder(i, i) != runtime::Order::Unknown;
    if (hasOrder && (last < 0 || pOrder(i, last) == pBehind)) last = i;
    sortingAs[static_cast<std::size_t>(i)] = hasOrder ? i : last;
  }
  return sortingAs;
}

}  // namespace detail

template <class T>
std::int32_t SlotsToSort(const BlockStorage<T>& pStorage, std::int32_t pCount, bool pAscending) {
  const std::int32_t reached = pStorage.Reached(pCount);
  const auto written = pStorage.WrittenSlots(reached);
  const auto count = static_cast<std::int32_t>(written.size());
  const auto goesBehindZero = [&](const T& pValue) { return SortsBehindZero(pValue, pAscending); };
  return count == reached || std::any_of(written.begin(), written.end(), goesBehindZero) ? reached : count + 1;
}

template <class OrderOf>
std::vector<std::int32_t> SortedOrder(std::int32_t pCount, bool pAscending, OrderOf pOrder) {
  const runtime::Order before = pAscending ? runtime::Order::Less : runtime::Order::Greater;
  const runtime::Order behind = pAscending ? runtime::Order::Greater : runtime::Order::Less;
  const std::vector<std::int32_t> sortingAs = detail::SortingAs(pCount, behind, pOrder);
  std::vector<std::int32_t> order(sortingAs.size());
  std::iota(order.begin(), order.end(), 0);
  std::stable_sort(order.begin(), order.end(), [&](std::int32_t pFirst, std::int32_t pSecond) {
    const std::int32_t first = sortingAs[static_cast<std::size_t>(pFirst)];
    const std::int32_t second = sortingAs[static_cast<std::size_t>(pSecond)];
    if (first < 0 || second < 0) return first < second;
    return pOrder(first, second) == before;
  });
  return order;
}

template <class T>
void Rearrange(std::span<T> pElements, const std::vector<std::int32_t>& pOrder) {
  std::vector<T> sorted;
  sorted.reserve(pOrder.size());
  for (const std::int32_t from : pOrder) sorted.push_back(std::move(pElements[static_cast<std::size_t>(from)]));
  std::move(sorted.begin(), sorted.end(), pElements.begin());
}

}  // namespace qzbase
