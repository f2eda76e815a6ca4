#include "qzbase/data/VectorSort.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <functional>
#include <vector>

#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/Convert.h"
#include "qzbase/runtime/NumberText.h"

namespace qzbase {

using runtime::CaseRule;
using runtime::LocaleRules;
using runtime::Order;
using runtime::Raise;
using runtime::RuntimeError;
using runtime::Variant;
using runtime::VariantKind;

namespace {

template <class T>
void SortStable(std::span<T> pElements, bool pAscending) {
  if (pAscending)
    std::stable_sort(pElements.begin(), pElements.end(), std::less<T>());
  else
    std::stable_sort(pElements.begin(), pElements.end(), std::greater<T>());
}

void SortWithNaN(std::span<double> pElements, bool pAscending) {
  Rearrange(pElements, SortedOrder(static_cast<std::int32_t>(pElements.size()), pAscending,
                                   [&](std::int32_t pFirst, std::int32_t pSecond) {
                                     return runtime::CompareNumbers(pElements[static_cast<std::size_t>(pFirst)],
                                                                    pElements[static_cast<std::size_t>(pSecond)]);
                                   }));
}

void SortAndRewrite(std::span<std::u16string> pElements, std::vector<std::int32_t>& pKeys, bool pAscending) {
  SortStable(std::span(pKeys), pAscending);
  for (std::size_t i = 0; i < pKeys.size(); ++i) pElements[i] = runtime::NumberText(pKeys[i]);
}

bool HasNoOrderAtAll(const Variant& pValue) {
  return pValue.Kind() == VariantKind::Object || pValue.Kind() == VariantKind::Array;
}

}  // namespace

void SortElements(std::span<double> pElements, bool pAscending) {
  if (std::any_of(pElements.begin(), pElements.end(), [](double value) { return std::isnan(value); }))
    SortWithNaN(pElements, pAscending);
  else
    SortStable(pElements, pAscending);
}

void SortElements(std::span<std::int32_t> pElements, bool pAscending) {
  SortStable(pElements, pAscending);
}

void SortElements(std::span<std::u16string> pElements, bool pAscending) {
  std::vector<std::int32_t> keys;
  keys.reserve(pElements.size());
  try {
    for (const std::u16string& text : pElements) keys.push_back(runtime::TextToLong(text));
  } catch (const runtime::AutomationError&) {
    SortAndRewrite(pElements, keys, pAscending);
    throw;
  }
  SortAndRewrite(pElements, keys, pAscending);
}

Order CompareInSort(const Variant& pLeft, const Variant& pRight, CaseRule pCase, const LocaleRules& pRules) {
  const bool isLeftText = pLeft.Kind() == VariantKind::String;
  if (isLeftText != (pRight.Kind() == VariantKind::String)) {
    const Variant& other = isLeftText ? pRight : pLeft;
    if (runtime::CompareExact(other, other, pRules) == Order::Unknown) return Order::Unknown;
    return isLeftText ? Order::Greater : Order::Less;
  }
  return pCase == CaseRule::CaseSensitive ? runtime::CompareExact(pLeft, pRight, pRules)
                                          : runtime::Compare(pLeft, pRight, pCase, pRules);
}

bool SortsBehindZero(const Variant& pElement, bool pAscending) {
  return !HasNoOrderAtAll(pElement) &&
         CompareInSort(pElement, Variant()) == (pAscending ? Order::Greater : Order::Less);
}

void SortElements(std::span<Variant> pElements, bool pAscending) {
  const auto stranger = std::find_if(pElements.begin(), pElements.end(), HasNoOrderAtAll);
  const auto count = static_cast<std::size_t>(stranger - pElements.begin());
  Rearrange(pElements, SortedOrder(pElements.first(count), pAscending));
  if (stranger != pElements.end() && pElements.size() > 1) Raise(RuntimeError::TypeMismatch);
}

}  // namespace qzbase
