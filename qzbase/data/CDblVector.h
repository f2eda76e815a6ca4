// A one-based list of doubles (NumberVector.h). The invalid value is -9.9999999999E+300.
#pragma once

#include "qzbase/data/NumberVector.h"

namespace qzbase {

class CDblVector final : public NumberVector<CDblVector, DoubleElement> {};

extern template class ElementVector<CDblVector, DoubleElement>;
extern template class TypedVector<CDblVector, DoubleElement>;
extern template class NumberVector<CDblVector, DoubleElement>;

}  // namespace qzbase
