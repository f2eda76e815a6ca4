// A typed vector of numbers, which can be searched by distance and added up: CDblVector and CLngVector.
//
//   (-9.9999999999E+300;5;2)    Sum 7, NrValid 2, Max 5, but Min -9.9999999999E+300
//   (1;2;3;2.4)                 ClosestIndex(2.4) is 4
#pragma once

#include <cstdint>

#include "qzbase/data/BlockVector.h"

namespace qzbase {

template <class Self, class Element>
class NumberVector : public BlockVector<TypedVector<Self, Element>> {
  using Base = BlockVector<TypedVector<Self, Element>>;

 public:
  using Base::Size;
  using Base::Value;
  using typename Base::Type;

  // The element nearest to the value from the start to the end index, or to the last element when the end is not behind
  // the start; the first of several. Invalid values count as the numbers that they are. Error 6 where a distance leaves
  // the range of the numbers.
  typename Element::IndexOfClosest ClosestIndex(Type pValue, std::int32_t pStartIndex = 1,
                                                std::int32_t pEndIndex = 0) const;

  // The last element that is not above the value, 1 when there is none; error 9 for an empty vector.
  std::int32_t ClosestLeftIndex(Type pValue) const;

  // The first element that is not below the value, the last one when there is none; 1 for an empty vector.
  std::int32_t ClosestRightIndex(Type pValue) const;

  // Both begin with the first slot, whatever it holds, and skip invalid values behind it: the smallest of a vector that
  // begins with an invalid value is that value.
  Type Min() const;
  Type Max() const;

  // Of the valid elements. Error 6 where a sum leaves the range of the numbers.
  Type Sum() const;

 private:
  using Base::storage_;

  // All zeros that were never written are one: they change neither an extreme nor a sum more than once.
  template <class Body>
  void Each(Body pBody) const {
    storage_.Walk(Size(), pBody, [&](Type pZero, std::int32_t) { pBody(pZero); });
  }
};

}  // namespace qzbase
