#include "qzbase/data/NumberVector.h"

#include "qzbase/data/CDblVector.h"
#include "qzbase/data/CLngVector.h"

namespace qzbase {

template <class Self, class Element>
typename Element::IndexOfClosest NumberVector<Self, Element>::ClosestIndex(Type pValue, std::int32_t pStartIndex,
                                                                           std::int32_t pEndIndex) const {
  Type bestDistance = Element::Distance(pValue, Value(pStartIndex));
  if (bestDistance == 0) return pStartIndex;
  std::int32_t best = pStartIndex;
  std::int32_t i = pStartIndex;
  storage_.Find(pStartIndex, pEndIndex <= pStartIndex ? Size() : pEndIndex, [&](Type pElement) {
    ++i;
    const Type distance = Element::Distance(pValue, pElement);
    if (distance < bestDistance) {
      best = i;
      bestDistance = distance;
    }
    return distance == 0;  // which ends it even behind a not-a-number, its better
  });
  return best;
}

template <class Self, class Element>
std::int32_t NumberVector<Self, Element>::ClosestLeftIndex(Type pValue) const {
  std::int32_t i = Size();
  while (Value(i) > pValue && i >= 2) i = std::min(i - 1, std::max(storage_.Written(i), 1));
  return i;
}

template <class Self, class Element>
std::int32_t NumberVector<Self, Element>::ClosestRightIndex(Type pValue) const {
  const std::int32_t size = std::max(Size(), 1);
  const std::int32_t found = storage_.Find(0, size, [pValue](Type pElement) { return !(pElement < pValue); });
  return found < 0 ? size : found;
}

template <class Self, class Element>
auto NumberVector<Self, Element>::Min() const -> Type {
  Type least = Value(1);
  Each([&](Type pValue) {
    if (pValue < least && pValue != Element::kDefault) least = pValue;
  });
  return least;
}

template <class Self, class Element>
auto NumberVector<Self, Element>::Max() const -> Type {
  Type greatest = Value(1);
  Each([&](Type pValue) {
    if (pValue > greatest && pValue != Element::kDefault) greatest = pValue;
  });
  return greatest;
}

template <class Self, class Element>
auto NumberVector<Self, Element>::Sum() const -> Type {
  Type sum{};
  Each([&](Type pValue) {
    if (pValue != Element::kDefault) sum = Element::Plus(sum, pValue);
  });
  return sum;
}

template class NumberVector<CDblVector, DoubleElement>;
template class NumberVector<CLngVector, LongElement>;

}  // namespace qzbase
