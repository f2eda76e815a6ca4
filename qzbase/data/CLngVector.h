// A one-based list of 32-bit integers (NumberVector.h). The invalid value is -2147483636. `Sum` and the distances of
// `ClosestIndex` raise error 6 past 32 bits.
#pragma once

#include "qzbase/data/NumberVector.h"

namespace qzbase {

class CLngVector final : public NumberVector<CLngVector, LongElement> {};

extern template class ElementVector<CLngVector, LongElement>;
extern template class TypedVector<CLngVector, LongElement>;
extern template class NumberVector<CLngVector, LongElement>;

}  // namespace qzbase
