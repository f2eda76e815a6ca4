#include "qzbase/data/NumberVector.h"

#include "qzbase/data/CDblVector.h"
#include "qzbase/data/CLngVector.h"

namespace qzbase {

template <class Self, class Element>
typename Element::IndexOfClosest NumberVector<Self, Element>::ClosestIndex(Type pValue, std::int32_t pStartIndex,
                                                                           std::int32_t pEndIndex) const {
  const std::int32_t end = pEndIndex <= pStartIndex ? Size() : pEndIndex;
  std::int32_t best = pStartIndex;
  Type distance = Element::Distance(pValue, Value(pStartIndex));
  Type bestDistance = distance;
  for (std::int32_t i = pStartIndex; i < end && distance != 0;) {  // 0 ends it even behind a not-a-number, its better
    distance = Element::Distance(pValue, Value(++i));
    if (!(distance < bestDistance)) continue;
    best = i;
    bestDistance = distance;
  }
  return best;
}

template <class Self, class Element>
std::int32_t NumberVector<Self, Element>::ClosestLeftIndex(Type pValue) const {
  std::int32_t i = Size();
  while (Value(i) > pValue && i >= 2) --i;
  return i;
}

template <class Self, class Element>
std::int32_t NumberVector<Self, Element>::ClosestRightIndex(Type pValue) const {
  std::int32_t i = 1;
  while (Value(i) < pValue && i < Size()) ++i;
  return i;
}

template <class Self, class Element>
auto NumberVector<Self, Element>::Min() const -> Type {
  Type least = Value(1);
  for (std::int32_t i = 0; i < Size(); ++i)
    if (const Type value = Value(i + 1); value < least && value != Element::kDefault) least = value;
  return least;
}

template <class Self, class Element>
auto NumberVector<Self, Element>::Max() const -> Type {
  Type greatest = Value(1);
  for (std::int32_t i = 0; i < Size(); ++i)
    if (const Type value = Value(i + 1); value > greatest && value != Element::kDefault) greatest = value;
  return greatest;
}

template <class Self, class Element>
auto NumberVector<Self, Element>::Sum() const -> Type {
  Type sum{};
  for (std::int32_t i = 0; i < Size(); ++i)
    if (const Type value = Value(i + 1); value != Element::kDefault) sum = Element::Plus(sum, value);
  return sum;
}

template class NumberVector<CDblVector, DoubleElement>;
template class NumberVector<CLngVector, LongElement>;

}  // namespace qzbase
