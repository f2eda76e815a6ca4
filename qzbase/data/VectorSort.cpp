#include "qzbase/data/VectorSort.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <functional>
#include <limits>
#include <vector>

#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/Convert.h"
#include "qzbase/runtime/NumberText.h"

namespace qzbase {
namespace {

template <class T>
void SortStable(std::span<T> pElements, bool pAscending) {
  if (pAscending)
    std::stable_sort(pElements.begin(), pElements.end(), std::less<T>());
  else
    std::stable_sort(pElements.begin(), pElements.end(), std::greater<T>());
}

struct Keyed {
  double key;
  double value;

  bool operator<(const Keyed& pOther) const { return key < pOther.key; }
  bool operator>(const Keyed& pOther) const { return key > pOther.key; }
};

// A not-a-number goes behind everything that is before it, and only what would go in front of one of those goes in
// front of it later. It thus sorts as if it were the greatest (descending: the smallest) number before it.
void SortWithNaN(std::span<double> pElements, bool pAscending) {
  std::vector<Keyed> keyed;
  keyed.reserve(pElements.size());
  double last = pAscending ? -std::numeric_limits<double>::infinity() : std::numeric_limits<double>::infinity();
  for (const double value : pElements) {
    if (pAscending ? value > last : value < last) last = value;
    keyed.push_back({std::isnan(value) ? last : value, value});
  }
  SortStable(std::span(keyed), pAscending);
  std::transform(keyed.begin(), keyed.end(), pElements.begin(), [](const Keyed& entry) { return entry.value; });
}

void SortAndRewrite(std::span<std::u16string> pElements, std::vector<std::int32_t>& pKeys, bool pAscending) {
  SortStable(std::span(pKeys), pAscending);
  for (std::size_t i = 0; i < pKeys.size(); ++i) pElements[i] = runtime::NumberText(pKeys[i]);
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

}  // namespace qzbase
